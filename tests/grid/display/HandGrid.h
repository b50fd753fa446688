#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "platform/CWinApp.h"
#include "tests/grid/GridPicture.h"
#include "tests/support/Hand.h"
#include "tests/support/LogWatch.h"

namespace coregui::test {

/// Twenty columns of 50 pixels and a hundred rows of 20 under two heading rows, in a window. It writes down
/// what it is told and refuses where `refuses` says so.
class HandGrid : public CGridCtrl {
 public:
  std::string log;
  std::string refuses;      ///< the name of the question that is answered with 0
  bool takesMouse = false;  ///< being told of a size lets go of the mouse, as a dialog does that opens
  bool helps = false;       ///< its places have help numbers
  int sizedTo = -1;         ///< what the end of sizing makes of a size

  std::string TakeNotes() { return std::exchange(log, ""); }

  void OnSetup() override {
    SetDefColWidth(50);
    SetDefRowHeight(20);
    SetNumberCols(20);
    SetNumberRows(100);
    SetTH_NumberRows(2);
    SetHighlightRow(0);
    for (int col = 0; col < 20; ++col) QuickSetText(col, 0, CString::Formatted(L"c%d", col));
  }
  void OnLClicked(int col, long row, int updn, RECT*, POINT*, int) override { Click(L"L", col, row, updn); }
  void OnRClicked(int col, long row, int updn, RECT*, POINT*, int) override { Click(L"R", col, row, updn); }
  void OnDClicked(int col, long row, RECT*, POINT*, int) override { Click(L"D", col, row, -1); }
  void OnTH_LClicked(int c, long r, int updn, RECT*, POINT*, int) override { Click(L"THL", c, r, updn); }
  void OnTH_RClicked(int c, long r, int updn, RECT*, POINT*, int) override { Click(L"THR", c, r, updn); }
  void OnTH_DClicked(int c, long r, RECT*, POINT*, int) override { Click(L"THD", c, r, -1); }
  void OnSH_LClicked(int c, long r, int updn, RECT*, POINT*, int) override { Click(L"SHL", c, r, updn); }
  void OnSH_RClicked(int c, long r, int updn, RECT*, POINT*, int) override { Click(L"SHR", c, r, updn); }
  void OnSH_DClicked(int c, long r, RECT*, POINT*, int) override { Click(L"SHD", c, r, -1); }
  void OnCB_LClicked(int updn, RECT*, POINT*, int) override { Click(L"CBL", -1, -1, updn); }
  void OnCB_RClicked(int updn, RECT*, POINT*, int) override { Click(L"CBR", -1, -1, updn); }
  void OnCB_DClicked(RECT*, POINT*, int) override { Click(L"CBD", -1, -1, -1); }
  int OnMenuStart(int col, long row, int section) override {
    Note(L"menu %d,%ld in %d", col, row, section);
    return 0;
  }
  int OnCanSizeCol(int) override { return refuses != "OnCanSizeCol"; }
  void OnColSizing(int col, int* width) override { Size(L"col", col, *width); }
  void OnColSized(int col, int* width) override { Sized(L"col", col, width); }
  void OnRowSizing(long row, int* height) override { Size(L"row", row, *height); }
  void OnRowSized(long row, int* height) override { Sized(L"row", row, height); }
  int OnTopHdgSizing(int* height) override {
    Size(L"top", 0, *height);
    return refuses != "OnTopHdgSizing";
  }
  int OnTopHdgSized(int* height) override {
    Sized(L"top", 0, height);
    return 1;
  }
  int OnSideHdgSized(int* width) override {
    Sized(L"side", 0, width);
    return 1;
  }
  int OnColSwapStart(int) override { return refuses != "OnColSwapStart"; }
  int OnCanColSwap(int from, int to) override {
    Note(L"swap %d to %d?", from, to);
    return refuses != "OnCanColSwap";
  }
  void OnColSwapped(int from, int to) override { Note(L"swapped %d to %d", from, to); }
  DWORD OnGetContextHelpID(int col, long row, int section) override {
    return helps ? static_cast<DWORD>(1000 * section + 10 * col + row) : 0;
  }
  int OnHint(int col, long row, int section, CString* text) override {
    *text = CString::Formatted(L"%d,%ld in %d", col, row, section);
    return 1;
  }

 private:
  void Note(const wchar_t* format, auto... values) {
    log += CString::Formatted(format, values...).ToUtf8() + "; ";
  }
  void Click(const wchar_t* what, int col, long row, int updn) {
    static constexpr const wchar_t* kSteps[] = {L"", L" up", L" down"};
    Note(L"%s %d,%ld%s", what, col, row, kSteps[updn + 1]);
  }
  void Size(const wchar_t* what, long line, int size) {
    Note(L"%s %ld sizing %d", what, line, size);
    if (takesMouse) CWnd::ReleaseCapture();
  }
  void Sized(const wchar_t* what, long line, int* size) {
    Note(L"%s %ld sized %d", what, line, *size);
    if (sizedTo >= 0) *size = sizedTo;
  }
};

struct GridHandTest : testing::Test {
  CWnd frame;
  HandGrid grid;

  GridHandTest() {
    frame.Create(L"", L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 400, 300), nullptr, 0);
    grid.CreateGrid(WS_CHILD | WS_VISIBLE, CRect(0, 0, 316, 216), &frame, 1);
    Body().SetFocus();
    CWinApp::PumpPending();
    grid.TakeNotes();
  }
  ~GridHandTest() override {
    frame.DestroyWindow();
    // The headless display cannot confine the pointer and says so.
    EXPECT_THAT(TakeLog(), testing::Each(testing::HasSubstr(L"grabbing the mouse")));
  }
  CWnd& Body() { return *grid.GetGridWnd(); }
  CWnd& Top() { return *grid.GetTopHdgWnd(); }
  CWnd& Side() { return *grid.GetSideHdgWnd(); }
  CWnd& Corner() { return *grid.GetCornerWnd(); }
  static void PumpUntil(const std::function<bool()>& done) {
    while (!done() && CWinApp::PumpMessage()) {
    }
  }
  std::string DifferenceToFresh() {
    CWinApp::PumpPending();
    const std::vector<DWORD> before = ShownDots(grid);
    grid.RedrawWindow();
    for (CWnd* part : {&Body(), &Top(), &Side(), &Corner()}) part->RedrawWindow();
    return before == ShownDots(grid) ? "" : "not the picture of painting anew";
  }
};

}  // namespace coregui::test
