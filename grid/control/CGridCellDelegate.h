#pragma once

#include "core/Export.h"
#include "platform/CObject.h"
#include "platform/Geometry.h"

class CBitmap;
class CDC;
class CGridCell;
class CGridCtrl;
struct GridID;

namespace coregui {

/// What the control, the body and the headings call on a cell type. CGridCellType derives from it and draws;
/// every further type derives from CGridCellType. It stands here, below the types, so that the windows that
/// show cells need not know them. The defaults are those of a type that reacts to nothing.
///
/// A type is shared by all cells that name it. Rectangles and points are client pixels of the window that
/// shows the cell. The operations that return int answer 0 for "not handled" unless they say otherwise.
class COREGUI_API CGridCellDelegate : public CObject {
 public:
  // --- Drawing parts

  /// Draws the bitmap inside the rectangle; returns the width it took.
  virtual int DrawBitmap(CDC* dc, CBitmap* bitmap, RECT* rect, COLORREF backColor) = 0;
  /// Draws the cell's border; `inner` receives what it leaves of `rect`.
  virtual void DrawBorder(CDC* dc, RECT* rect, RECT* inner, CGridCell* cell) = 0;
  /// Draws the cell's bitmap and text, `offset` pixels further right than usual.
  virtual void DrawText(CDC* dc, RECT* rect, int offset, int col, long row, CGridCell* cell, int selected,
                        int current) = 0;
  /// Fills the cell with the colour and sets transparent background mode.
  virtual void DrawBackground(CDC* dc, RECT* rect, COLORREF backColor, int col, int row, CGridCell* cell,
                              bool current, bool selected) = 0;
  /// Finds the cell to the left whose text spills into this one; 0 when there is none, else `startCol` and
  /// `startCell` receive it and the result is the (negative) offset at which its text begins.
  virtual int GetCellOverlapInfo(CDC* dc, int col, long row, int* startCol, CGridCell* startCell) = 0;
  virtual const wchar_t* GetName() = 0;
  virtual GridID GetGridID() = 0;

  // --- Behaviour

  /// May shrink the rectangle that an editor gets; 0 when it did not.
  virtual int GetEditArea(RECT* rect);
  virtual int GetOption(long option, long* value);  ///< non-zero: no such option
  virtual int SetOption(long option, long value);   ///< non-zero: no such option
  /// `updn` is 1 for the press and 0 for the release. Non-zero takes the button until it is released.
  virtual int OnLClicked(int col, long row, int updn, RECT* rect, POINT* point);
  virtual int OnRClicked(int col, long row, int updn, RECT* rect, POINT* point);
  virtual int OnDClicked(int col, long row, RECT* rect, POINT* point);
  /// Non-zero: handled. The key may be changed.
  virtual int OnKeyDown(int col, long row, UINT* key);
  virtual int OnKeyUp(int col, long row, UINT* key);
  virtual int OnCharDown(int col, long row, UINT* key);
  virtual int OnMouseMove(int col, long row, POINT* point, UINT flags);
  /// Draws the cell. `selected` is 0, or the index of the deciding selection block plus 1.
  virtual void OnDraw(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected, int current) = 0;
  /// Non-zero: the type has drawn its own focus rectangle.
  virtual int OnDrawFocusRect(CDC* dc, RECT* rect, int col, long row);
  virtual void OnSetFocus(int col, long row, CGridCell* cell);
  virtual void OnKillFocus(int col, long row, CGridCell* cell);
  virtual void OnChangedCellWidth(int col, long row, int* width);
  virtual void OnChangingCellWidth(int col, long row, int* width);
  virtual void OnChangedCellHeight(int col, long row, int* height);
  virtual void OnChangingCellHeight(int col, long row, int* height);
  /// The size that the cell's content needs.
  virtual void GetBestSize(CDC* dc, CSize* size, CGridCell* cell) = 0;
  virtual void OnScrolled(int col, long row, CGridCell* cell);
  virtual int OnSystemChange();
  virtual int OnMessage(long message);
  /// Tells the application; `id` is the type's own. The default form asks CGridNotify::OnCellTypeNotify.
  virtual int OnCellTypeNotify(long id, int col, long row, long message, long param) = 0;

  // --- For the control

  /// Non-zero when cells of the type may be edited as text.
  virtual int CanTextEdit() const = 0;
  /// Whether the cell's text may spill into empty neighbours.
  virtual int CanOverLap(CGridCell* cell) const = 0;
  /// Called once, at registration: the control (borrowed: it outlives its types) and the type's ID in it.
  virtual void Attach(CGridCtrl* control, int id) = 0;
};

}  // namespace coregui
