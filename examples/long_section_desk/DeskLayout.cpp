#include "DeskLayout.h"

#include <algorithm>

namespace desk {

void DeskLayout::Arrange(CSize client, int commandsHeight, int statusHeight, int barThickness) {
  const LONG width = std::max<LONG>(client.cx, 0);
  const LONG bottom = std::max<LONG>(client.cy - statusHeight, 0);
  const LONG top = std::min<LONG>(commandsHeight, bottom);
  commands = CRect(0, 0, width, top);
  status = CRect(0, bottom, width, std::max<LONG>(client.cy, 0));
  if (!hasPlots) {
    grid = CRect(0, top, width, bottom);
    bar = section = plotBar = difference = CRect();
    return;
  }
  const LONG split = static_cast<LONG>(width * gridShare);
  const LONG right = std::min<LONG>(split + barThickness, width);
  grid = CRect(0, top, split, bottom);
  bar = CRect(split, top, right, bottom);
  if (!hasDifference) {
    section = CRect(right, top, width, bottom);
    plotBar = difference = CRect();
    return;
  }
  const LONG plotSplit = top + static_cast<LONG>((bottom - top) * sectionShare);
  const LONG lower = std::min<LONG>(plotSplit + barThickness, bottom);
  section = CRect(right, top, width, plotSplit);
  plotBar = CRect(right, plotSplit, width, lower);
  difference = CRect(right, lower, width, bottom);
}

void DeskLayout::MoveBar(int pixels) {
  const LONG width = std::max<LONG>(status.Width(), 1);
  gridShare = std::clamp(gridShare + static_cast<double>(pixels) / width, kLeastShare, 1.0 - kLeastShare);
}

void DeskLayout::MovePlotBar(int pixels) {
  const LONG height = std::max<LONG>(bar.Height(), 1);
  sectionShare =
      std::clamp(sectionShare + static_cast<double>(pixels) / height, kLeastShare, 1.0 - kLeastShare);
}

}  // namespace desk
