#include "DeskLayout.h"

#include <algorithm>

namespace desk {

namespace {

constexpr double kLeast = 0.1;

}  // namespace

void DeskLayout::Arrange(CSize client, int statusHeight, int barThickness) {
  const LONG width = std::max<LONG>(client.cx, 0);
  const LONG height = std::max<LONG>(client.cy - statusHeight, 0);
  status = CRect(0, height, width, std::max<LONG>(client.cy, 0));
  if (!hasPlots) {
    grid = CRect(0, 0, width, height);
    bar = section = plotBar = difference = CRect();
    return;
  }
  const LONG split = static_cast<LONG>(width * gridShare);
  const LONG right = std::min<LONG>(split + barThickness, width);
  grid = CRect(0, 0, split, height);
  bar = CRect(split, 0, right, height);
  const LONG plotSplit = static_cast<LONG>(height * sectionShare);
  const LONG lower = std::min<LONG>(plotSplit + barThickness, height);
  section = CRect(right, 0, width, plotSplit);
  plotBar = CRect(right, plotSplit, width, lower);
  difference = CRect(right, lower, width, height);
}

void DeskLayout::MoveBar(int pixels) {
  const LONG width = std::max<LONG>(status.Width(), 1);
  gridShare = std::clamp(gridShare + static_cast<double>(pixels) / width, kLeast, 1.0 - kLeast);
}

void DeskLayout::MovePlotBar(int pixels) {
  const LONG height = std::max<LONG>(bar.Height(), 1);
  sectionShare = std::clamp(sectionShare + static_cast<double>(pixels) / height, kLeast, 1.0 - kLeast);
}

}  // namespace desk
