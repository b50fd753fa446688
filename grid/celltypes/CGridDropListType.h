#pragma once

#include "grid/celltypes/CGridCellType.h"
#include "platform/CStringList.h"

/// A cell with a drop button at its right; its choices are the lines of its label. A click on the button,
/// Enter or Ctrl+Down asks for the list, which StartDropList prepares.
class COREGUI_API CGridDropListType : public CGridCellType {
 public:
  CGridDropListType();

  /// Sent before the list opens; the parameter is the CStringList of choices, to be changed freely. 0
  /// cancels.
  static constexpr long kDropListStart = 100;

  const wchar_t* GetName() override;
  GridID GetGridID() override;
  /// Leaves the button out.
  int GetEditArea(RECT* rect) override;
  int OnLClicked(int col, long row, int updn, RECT* rect, POINT* point) override;
  int OnDClicked(int col, long row, RECT* rect, POINT* point) override;
  int OnKeyDown(int col, long row, UINT* key) override;
  void OnDraw(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected, int current) override;
  void OnKillFocus(int col, long row, CGridCell* cell) override;
  void GetBestSize(CDC* dc, CSize* size, CGridCell* cell) override;

 protected:
  /// Makes the cell current, collects its choices and asks the application; true when the list may open with
  /// them.
  bool StartDropList(int col, long row);
  /// The widest choice in the context's font, pixels.
  int GetMaxStringWidth(CDC* dc, const CStringList& choices) const;

 private:
  void Release(int col, long row);
  void DrawButton(CDC& dc, const CRect& button, bool pressed) const;

  bool m_pressed = false;
  int m_buttonWidth;
  int m_col = -1;  ///< of the cell whose list is open or pending, -1 when none
  long m_row = -1;
  CStringList m_choices;  ///< as the application left them
};
