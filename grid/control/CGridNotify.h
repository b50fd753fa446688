#pragma once

#include "core/Export.h"
#include "platform/CString.h"
#include "platform/Geometry.h"

class CDC;
class CGridCell;
class CMenu;
class CWnd;

namespace coregui {

/// The places of a grid, as the notifications number them.
inline constexpr int GRIDSECTION_GRID = 1;
inline constexpr int GRIDSECTION_TOPHEADING = 2;
inline constexpr int GRIDSECTION_SIDEHEADING = 3;
inline constexpr int GRIDSECTION_CORNERBUTTON = 4;

/// Everything that a grid tells the application or asks it for leave: a derived control overrides what it
/// needs. The defaults do nothing, or allow. Vetoes return 1 to allow. Columns come before rows, both counted
/// from 0; negative ones are headings (top heading row -1 is the one nearest to the cells). Columns are those
/// of the grid: which data column one shows after columns were moved says CGridCtrl::GetColTranslation.
class COREGUI_API CGridNotify {
 public:
  virtual ~CGridNotify() = default;

  // --- Set-up

  /// The grid was created or attached: add fonts, cell types and data sources here. Options that are set here
  /// are those of the first sheet alone.
  virtual void OnSetup();
  /// Directly after OnSetup, when the grid was created (not when it was attached).
  virtual void OnSetupFinished();
  /// A sheet is new, and the current one meanwhile: set its counts, widths, headings and options here. 0 is
  /// the first one.
  virtual void OnSheetSetup(int sheet);
  /// A sheet's tab was chosen; the sheet is current already.
  virtual void OnTabSelected(int sheet);

  // --- Cells

  /// A cell is about to be displayed: everything stored and default is in; change what you like.
  virtual void OnGetCell(int col, long row, CGridCell* cell);
  /// A cell is about to be stored; what is changed in `cell` is stored.
  virtual void OnSetCell(int col, long row, CGridCell* cell);
  /// A pasted field was written to the cell.
  virtual void OnPaste(int col, long row);
  /// A cell type reports a user's action, with its own ID and codes. 1 accepts.
  virtual int OnCellTypeNotify(long id, int col, long row, long message, long param);

  // --- Moving

  /// The current cell is about to move. Asked after the column's data source.
  virtual int OnCanMove(int oldCol, long oldRow, int newCol, long newRow);
  /// The move needs the view to scroll to show (newLeftCol, newTopRow).
  virtual int OnCanViewMove(int oldLeftCol, long oldTopRow, int newLeftCol, long newTopRow);
  /// A move, or the paint pass that has room behind the last row, wants `row`: bring it into the sheet. 0
  /// when it is a row to go to, else 1. A control whose rows grow as they are wanted adds them here. Default:
  /// 0.
  virtual int VerifyCurrentRow(long* row);
  /// The current column, row, or either has changed.
  virtual void OnColChange(int oldCol, int newCol);
  virtual void OnRowChange(long oldRow, long newRow);
  virtual void OnCellChange(int oldCol, int newCol, long oldRow, long newRow);
  /// The first shown scrollable column or row has changed.
  virtual void OnLeftColChange(int oldCol, int newCol);
  virtual void OnTopRowChange(long oldRow, long newRow);

  // --- Selection. Mind the order: right column, top row, left column, bottom row.

  virtual void OnSelectionChanged(int right, long top, int left, long bottom, int blocks);

  // --- Mouse in the cells; col and row are -1 when no cell is there, `updn` is 1 for the press, 0 for the
  // release,
  //     `processed` is non-zero when the cell type has handled the event

  virtual void OnLClicked(int col, long row, int updn, RECT* rect, POINT* point, int processed);
  virtual void OnRClicked(int col, long row, int updn, RECT* rect, POINT* point, int processed);
  virtual void OnDClicked(int col, long row, RECT* rect, POINT* point, int processed);
  virtual void OnMouseMove(int col, long row, POINT* point, UINT flags, int processed);

  // --- Mouse in the top heading, the side heading and the corner button

  virtual void OnTH_LClicked(int col, long row, int updn, RECT* rect, POINT* point, int processed);
  virtual void OnTH_RClicked(int col, long row, int updn, RECT* rect, POINT* point, int processed);
  virtual void OnTH_DClicked(int col, long row, RECT* rect, POINT* point, int processed);
  virtual void OnSH_LClicked(int col, long row, int updn, RECT* rect, POINT* point, int processed);
  virtual void OnSH_RClicked(int col, long row, int updn, RECT* rect, POINT* point, int processed);
  virtual void OnSH_DClicked(int col, long row, RECT* rect, POINT* point, int processed);
  virtual void OnCB_LClicked(int updn, RECT* rect, POINT* point, int processed);
  virtual void OnCB_RClicked(int updn, RECT* rect, POINT* point, int processed);
  virtual void OnCB_DClicked(RECT* rect, POINT* point, int processed);

  // --- Keys in the cells; the key may be changed

  virtual void OnKeyDown(UINT* key, int processed);
  virtual void OnKeyUp(UINT* key, int processed);
  virtual void OnCharDown(UINT* key, int processed);

  // --- Focus, menu, hints

  virtual void OnSetFocus(int section);
  virtual void OnKillFocus(int section, CWnd* newFocus);
  /// The context menu is about to open: fill GetMenu(). 0 keeps it shut.
  virtual int OnMenuStart(int col, long row, int section);
  virtual void OnMenuCommand(int col, long row, int section, int item);
  /// The tip for a cell is wanted; exactly 1 shows `text`.
  virtual int OnHint(int col, long row, int section, CString* text);
  /// The tip beside the vertical thumb while it is dragged; `text` comes in as the row's number counted
  /// from 1. Exactly 1 (the default) shows it.
  virtual int OnVScrollHint(long row, CString* text);
  /// The same for the horizontal thumb and the column.
  virtual int OnHScrollHint(int col, CString* text);
  /// Help number of a place; 0 is none. Asked for the current cell when F1 is pressed (the windows around the
  /// grid then get WM_HELP with the number), and by WM_HELPHITTEST for a point of each part.
  virtual DWORD OnGetContextHelpID(int col, long row, int section);

  // --- Drawing

  /// A paint pass begins; `memDC` is null without double buffering.
  virtual void OnScreenDCSetup(CDC* screenDC, CDC* memDC, int section);
  /// The colour of the area without cells. Default: the system's window colour in the grid, its button face
  /// elsewhere.
  virtual COLORREF OnGetDefBackColor(int section);
  /// Draws the focus rectangle. Default: the device context's dotted one.
  virtual void OnDrawFocusRect(CDC* dc, RECT* rect);

  // --- Sizing by the user; sizes in pixels, and a changed size is taken over

  virtual int OnCanSizeCol(int col);
  virtual void OnColSizing(int col, int* width);
  virtual void OnColSized(int col, int* width);
  virtual int OnCanSizeRow(long row);
  virtual void OnRowSizing(long row, int* height);
  virtual void OnRowSized(long row, int* height);
  virtual int OnCanSizeTopHdg();
  /// 1 applies the total height.
  virtual int OnTopHdgSizing(int* height);
  virtual int OnTopHdgSized(int* height);
  virtual int OnCanSizeSideHdg();
  /// 1 applies the total width.
  virtual int OnSideHdgSizing(int* width);
  virtual int OnSideHdgSized(int* width);

  // --- Moving columns by the user

  /// Non-zero lets the user drag the column.
  virtual int OnColSwapStart(int col);
  virtual int OnCanColSwap(int fromCol, int toCol);
  virtual void OnColSwapped(int fromCol, int toCol);

  // --- Editing. Asked after the column's data source; both must allow.

  /// 0 refuses the edit; `edit` may be replaced by another editor window.
  virtual int OnEditStart(int col, long row, CWnd** edit);
  /// For each character; 0 refuses it, and it may be changed.
  virtual int OnEditVerify(int col, long row, CWnd* edit, UINT* key);
  /// 0 keeps the editor open.
  virtual int OnEditFinish(int col, long row, CWnd* edit, const wchar_t* text, int cancelled);
  /// 0 ends editing; the next cell may be changed.
  virtual int OnEditContinue(int oldCol, long oldRow, int* newCol, long* newRow);
  virtual int OnEditKeyDown(int col, long row, CWnd* edit, UINT* key);
  virtual int OnEditKeyUp(int col, long row, CWnd* edit, UINT* key);

 protected:
  CGridNotify() = default;
  CGridNotify(const CGridNotify&) = default;
  CGridNotify& operator=(const CGridNotify&) = default;
};

}  // namespace coregui
