#pragma once

#include "grid/celltypes/CGridCellType.h"
#include "grid/celltypes/CheckBoxPlan.h"

/// A box that a click or the space character switches: the cell's number is its state (0 off, 1 on, 2
/// indeterminate), the cell's label stands beside it. Sends check-changed with the new state.
class COREGUI_API CGridCheckBoxType : public CGridCellType {
 public:
  CGridCheckBoxType();

  /// Sent when the state has changed; the parameter is the new state.
  static constexpr long kCheckChanged = 53;

  const wchar_t* GetName() override;
  GridID GetGridID() override;
  int OnLClicked(int col, long row, int updn, RECT* rect, POINT* point) override;
  int OnDClicked(int col, long row, RECT* rect, POINT* point) override;
  int OnCharDown(int col, long row, UINT* key) override;
  void OnDraw(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected, int current) override;
  void GetBestSize(CDC* dc, CSize* size, CGridCell* cell) override;

 protected:
  /// Turns a cell's rectangle into its box's.
  void AdjustRect(RECT* rect, CGridCell* cell) const;
  /// The 8 × 8 checkerboard of the dithered fill, in the button's face and highlight colours.
  bool CreateDitherBitmap(CBitmap& bitmap) const;
  /// Fills with the checkerboard, or with the window colour where its bitmap cannot be made.
  void FillDitheredRect(CDC* dc, const RECT& rect) const;

 private:
  struct Look;
  bool Toggle(int col, long row);
  void DrawBox(CDC& dc, const CRect& box, const Look& look) const;
  void DrawRoundBox(CDC& dc, const CRect& box, const Look& look) const;
  void DrawFrame(CDC& dc, const CRect& box, const Look& look) const;
  void DrawMark(CDC& dc, const CRect& box, const Look& look) const;

  CGridCell m_clicked;  ///< scratch: the cell being toggled
};
