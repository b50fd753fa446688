#pragma once

#include <optional>
#include <vector>

#include "grid/control/CGridCellDelegate.h"
#include "grid/data/CGridCell.h"
#include "grid/data/GridID.h"

class CGridDrawHint;

/// How cells are drawn and how they react: the interface of all cell types, and the normal type, which draws
/// border, background, bitmap and text. An application derives from it and registers the type with
/// CGridCtrl::AddCellType; cells name it by the ID that they get there.
///
/// One object serves all cells of its type: what belongs to one cell lives in the cell, except for passing
/// state such as a pressed button.
class COREGUI_API CGridCellType : public coregui::CGridCellDelegate {
 public:
  CGridCellType() = default;
  CGridCellType(const CGridCellType&) = delete;
  CGridCellType& operator=(const CGridCellType&) = delete;

  // --- Drawing

  int DrawBitmap(CDC* dc, CBitmap* bitmap, RECT* rect, COLORREF backColor) override;
  void DrawBorder(CDC* dc, RECT* rect, RECT* inner, CGridCell* cell) override;
  void DrawText(CDC* dc, RECT* rect, int offset, int col, long row, CGridCell* cell, int selected,
                int current) override;
  void DrawBackground(CDC* dc, RECT* rect, COLORREF backColor, int col, int row, CGridCell* cell,
                      bool current, bool selected) override;
  int GetCellOverlapInfo(CDC* dc, int col, long row, int* startCol, CGridCell* startCell) override;
  void OnDraw(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected, int current) override;
  /// The room for bitmap and text with the margins and the border.
  void GetBestSize(CDC* dc, CSize* size, CGridCell* cell) override;

  // --- What the type is

  const wchar_t* GetName() override;
  GridID GetGridID() override;
  int OnCellTypeNotify(long id, int col, long row, long message, long param) override;
  int CanTextEdit() const override { return m_textEdit; }
  /// Stores 1 for any non-zero argument. 0.
  int SetTextEditMode(int on);
  int GetID() const { return m_id; }
  void SetID(int id) { m_id = id; }
  CGridCtrl* GetGridCtrl() const { return m_control; }
  void Attach(CGridCtrl* control, int id) override;
  /// Non-zero when the type shows labels instead of texts.
  int DrawTextOrLabel() const { return m_drawLabel; }
  /// Whether the cell's text may spill into empty neighbours: 1 for a plain left-aligned cell of a type that
  /// allows it.
  int CanOverLap(CGridCell* cell) const override;

  // --- Device-independent bitmap rules

  /// Palette entries of a bitmap with so many bits per pixel. `used`: the header's count of colours in use, 0
  /// when it names none.
  static int DIBNumColors(int bitsPerPixel, int used);
  /// Bytes of the palette: 4 an entry behind a header of 40 bytes, 3 behind the older one of 12.
  static int PaletteSize(int headerSize, int bitsPerPixel, int used);
  /// The bitmap as a device-independent one of 32 bits: header of 40 bytes, then rows from the bottom up.
  /// Empty for a bitmap without pixels.
  static std::vector<BYTE> BitmapToDIB(const CBitmap& bitmap);

 protected:
  /// What a cell is drawn in.
  struct Colours {
    COLORREF text = 0;
    COLORREF back = 0;
    bool highlighted = false;
  };
  /// From the normal or from the highlight colours, by the cell's state; a disabled cell is greyed and keeps
  /// its back colour.
  Colours GetColours(CGridCell* cell, int selected, int current) const;
  /// The text or, where the type or the cell's style asks for it, the label; never null. Valid until the cell
  /// changes.
  const wchar_t* GetShownText(CGridCell* cell) const;

  // What a derived type is, set in its constructor.
  int m_textEdit = 1;              ///< cells may be edited as text
  int m_drawLabel = 0;             ///< shows labels instead of texts
  int m_canOverlap = 1;            ///< texts may spill; a type that draws more than its text sets 0
  double m_scale = 1.0;            ///< for derived types; nothing here reads it
  CGridCtrl* m_control = nullptr;  ///< borrowed: outlives its types
  int m_id = 0;

 private:
  bool MayOverlap(int col, long row, CGridCell* cell) const;
  bool DrawSpilledText(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected, int current);
  void HintRightNeighbour(int col, long row);
  std::optional<int> FindSpillFromLeft(CDC* dc, int col, long row, int* startCol, CGridCell* startCell,
                                       const CGridDrawHint* hints);
  std::optional<int> SpillOver(CDC* dc, int distance, CGridCell* cell) const;
  int LeftBorderWidth(const CGridCell& cell) const;
  void PutText(CDC* dc, const RECT& rect, int offset, const wchar_t* text, CGridCell* cell) const;

  CGridCell m_spilling;  ///< scratch: the cell whose text spills into the one being drawn
};
