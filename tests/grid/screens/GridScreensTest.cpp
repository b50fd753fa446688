// A grid on two screens of different scales (platform/screens/screens.json).

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "grid/control/CGridCtrl.h"
#include "platform/CWinApp.h"
#include "tests/support/Hand.h"

namespace coregui::test {
namespace {

TEST(GridScreens, ADoubleBufferedGridTakesTheScaleOfTheScreenThatItMovesTo) {
  CWnd frame;
  CGridCtrl grid;
  frame.Create(L"", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 500, 400), nullptr, 0);
  grid.CreateGrid(WS_CHILD | WS_VISIBLE, CRect(0, 0, 350, 250), &frame, 1);
  grid.SetNumberCols(3);
  grid.SetNumberRows(5);
  grid.QuickSetText(1, 1, L"1204.50");
  grid.SetDoubleBufferMode(1);
  CWnd& body = *grid.GetGridWnd();
  for (const auto& [left, scale] : {std::pair(1200, 2.0), std::pair(150, 1.0)}) {
    frame.MoveWindow(left, 100, 400, 300);
    CWinApp::PumpPending();
    ASSERT_EQ(body.GetScaleFactor(), scale);
    const std::vector<DWORD> buffered = ShownDots(body);
    grid.SetDoubleBufferMode(0);
    body.RedrawWindow();
    EXPECT_EQ(ShownDots(body) == buffered, true) << scale;
    grid.SetDoubleBufferMode(1);
    CWinApp::PumpPending();
  }
  frame.DestroyWindow();
}

}  // namespace
}  // namespace coregui::test
