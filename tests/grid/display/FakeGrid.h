#pragma once

#include <functional>
#include <string>
#include <vector>

#include "grid/celltypes/CGridCellType.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "platform/CDC.h"
#include "tests/grid/GridPicture.h"

namespace coregui::test {

/// A cell type that writes down what it is asked, and draws nothing.
class LoggingType : public CGridCellType {
 public:
  void OnDraw(CDC*, RECT* rect, int col, long row, CGridCell*, int selected, int current) override {
    drawn.push_back(At(col, row) + (selected != 0 ? " s" + std::to_string(selected) : "") +
                    (current != 0 ? " c" : ""));
    lastRect = *rect;
    if (onDraw) onDraw(col, row);
  }
  int OnLClicked(int col, long row, int updn, RECT*, POINT*) override {
    log.push_back((updn != 0 ? "type down " : "type up ") + At(col, row));
    return takesClicks;
  }
  int OnMouseMove(int col, long row, POINT*, UINT) override {
    log.push_back("type move " + At(col, row));
    return 0;
  }
  int OnKeyDown(int, long, UINT* key) override {
    if (replacesKeyBy != 0) *key = replacesKeyBy;
    return 0;
  }

  std::vector<std::string> drawn;
  std::vector<std::string> log;
  std::function<void(int col, long row)> onDraw;
  CRect lastRect;
  int takesClicks = 0;
  UINT replacesKeyBy = 0;
};

/// A base class that comes first: the control must not outlive a registered type.
struct TypeHolder {
  LoggingType type;
};

/// A grid without a window: 20 columns of 50 pixels and 100 rows of 20 in a body of 210 × 110 pixels, all
/// cells of one logging type. It writes down the notifications that the tests look at.
class FakeGrid : public TypeHolder, public CGridCtrl {
 public:
  FakeGrid() {
    m_type = AddCellType(&type);
    SetDefColWidth(50);
    SetDefRowHeight(20);
    SetNumberCols(20);
    SetNumberRows(100);
    for (int col = 0; col < 20; ++col) {
      CGridCell cell;
      cell.SetPropertyFlags(0);
      cell.SetCellType(m_type);
      SetColDefault(col, &cell);
    }
    CGridInfo& info = GetInfo();
    info.columns.SetExtent(210);
    info.rows.SetExtent(110);
    info.view.highlightRow = 0;
    info.view.paintEnabled = 1;
  }

  void OnScreenDCSetup(CDC*, CDC* memory, int section) override {
    log.push_back("setup " + std::to_string(section) + (memory != nullptr ? " memory" : ""));
  }
  COLORREF OnGetDefBackColor(int) override { return 0x123456; }
  void OnDrawFocusRect(CDC*, RECT* rect) override { log.push_back("focus " + TextOf(*rect)); }
  void OnGetCell(int col, long row, CGridCell*) override {
    if (onGetCell) onGetCell(col, row);
  }
  void OnLClicked(int col, long row, int updn, RECT*, POINT*, int processed) override {
    log.push_back((updn != 0 ? "down " : "up ") + At(col, row) + (processed != 0 ? " processed" : ""));
    if (onClick) onClick();
  }
  void OnRClicked(int col, long row, int updn, RECT*, POINT*, int) override {
    log.push_back((updn != 0 ? "right down " : "right up ") + At(col, row));
  }
  void OnMouseMove(int col, long row, POINT*, UINT, int) override { log.push_back("move " + At(col, row)); }
  int OnHint(int, long, int, CString* text) override {
    *text = L"tip";
    return hintAnswer;
  }
  std::string Current() const { return CurrentOf(*this); }

  std::vector<std::string> log;
  std::function<void(int col, long row)> onGetCell;
  std::function<void()> onClick;
  int hintAnswer = 1;

 private:
  int m_type = 0;
};

}  // namespace coregui::test
