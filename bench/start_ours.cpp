// Shows an empty grid, as a program does that is built on the library, and says when its first frame is
// there.

#include <cstdio>
#include <cstdlib>

#include "grid/control/CGridCtrl.h"
#include "platform/CDC.h"
#include "platform/CWinApp.h"

int main() {
  CWnd frame;
  CGridCtrl grid;
  frame.CreateEx(0, L"Frame", L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 1600, 1000), nullptr, 0);
  grid.SetNumberCols(256);
  grid.SetNumberRows(16384);
  grid.CreateGrid(WS_CHILD | WS_VISIBLE, frame.GetClientRectangle(), &frame, 1);
  CWinApp::PumpPending();
  // The first frame has lines between its cells.
  CClientDC dc(grid.GetGridWnd());
  int lines = 0;
  for (int x = 1; x < 1000; ++x) lines += dc.GetPixel(x, 5) != dc.GetPixel(x - 1, 5) ? 1 : 0;
  if (lines < 5) return 1;
  std::puts("frame");
  std::fflush(stdout);
  std::_Exit(0);  // what follows is not measured
}
