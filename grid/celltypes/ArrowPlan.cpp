#include "grid/celltypes/ArrowPlan.h"

namespace coregui {
namespace {

constexpr int kNarrowest = 4;
constexpr int kHeads = 4;  // columns of one arrow head, from 7 pixels high to 1

bool IsDouble(long style) {
  return (style & (kArrowDouble | kArrowDoubleWithBar)) != 0;
}

}  // namespace

ArrowGlyph PlanArrow(const CRect& cell, long style) {
  ArrowGlyph glyph;
  if (cell.Width() < kNarrowest) return glyph;
  const bool twice = IsDouble(style);
  const bool bar = (style & (kArrowWithBar | kArrowDoubleWithBar)) != 0;
  const int width = (twice ? 2 * kHeads : kHeads) + (bar ? 2 : 0);
  const int middle = cell.top + cell.Height() / 2;
  int x = cell.left + (cell.Width() - width) / 2;
  const auto column = [&](int half) {
    glyph.lines[static_cast<std::size_t>(glyph.count++)] = {CPoint(x, middle - half),
                                                            CPoint(x, middle + half + 1)};
    ++x;
  };
  if (bar) {
    column(kHeads - 1);
    ++x;
  }
  for (int head = 0; head < (twice ? 2 : 1); ++head) {
    for (int half = kHeads - 1; half >= 0; --half) column(half);
  }
  return glyph;
}

int ArrowWidth(long style) {
  return IsDouble(style) ? 14 : 10;
}

}  // namespace coregui
