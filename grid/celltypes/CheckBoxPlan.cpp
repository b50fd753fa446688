#include "grid/celltypes/CheckBoxPlan.h"

#include <algorithm>

#include "grid/celltypes/CellStyleBits.h"

namespace coregui {
namespace {

constexpr int kLargestCheckBox = 12;
constexpr int kRoomAround = 6;
constexpr int kIndent = 3;
constexpr int kDoubledAbove = 9;

void AddLine(CheckMark& mark, CPoint from, CPoint to) {
  mark.points[static_cast<std::size_t>(2 * mark.lines)] = from;
  mark.points[static_cast<std::size_t>(2 * mark.lines + 1)] = to;
  ++mark.lines;
}

}  // namespace

int CheckBoxSize(int cellHeight) {
  return std::min(cellHeight - kRoomAround, kLargestCheckBox);
}

CRect CheckBoxRect(const CRect& cell, int alignment, long extended) {
  const int size = CheckBoxSize(cell.Height());
  int x = cell.left + kIndent;
  int y = cell.top + (cell.Height() - size) / 2;
  if ((extended & kCheckAligned) != 0) {
    if ((alignment & kAlignCentre) != 0) {
      x = cell.left + cell.Width() / 2 - size / 2;
    } else if ((alignment & kAlignRight) != 0) {
      x = cell.right - size - kRoomAround;
    }
    if ((alignment & kAlignTop) != 0) {
      y = cell.top + kIndent;
    } else if ((alignment & kAlignBottom) != 0) {
      y = cell.bottom - size - kRoomAround;
    }
  }
  const int width = (extended & kCheckRound) != 0 ? size + 1 : size;
  return {x, y, x + width, y + size};
}

long NextCheckState(long state, long extended) {
  const long states = (extended & kCheckThreeStates) != 0 ? 3 : 2;
  return ((state + 1) % states + states) % states;
}

CheckMark CrossMark(const CRect& box) {
  CheckMark mark;
  const int left = box.left;
  const int top = box.top;
  const int right = box.right - 1;
  const int bottom = box.bottom - 1;
  AddLine(mark, {left, top}, {right + 1, bottom + 1});
  AddLine(mark, {right, top}, {left - 1, bottom + 1});
  if (box.Height() > kDoubledAbove) {
    AddLine(mark, {left + 1, top}, {right + 1, bottom});
    AddLine(mark, {right - 1, top}, {left - 1, bottom});
  }
  return mark;
}

CheckMark TickMark(const CRect& box) {
  CheckMark mark;
  const CPoint start(box.left + 2, box.bottom - 4);
  const CPoint turn(box.left + 4, box.bottom - 2);
  const CPoint end(box.right + 3, box.top - 1);
  AddLine(mark, start, turn);
  AddLine(mark, turn, end);
  if (box.Height() > kDoubledAbove) {
    AddLine(mark, {start.x, start.y - 1}, {turn.x, turn.y - 1});
    AddLine(mark, {turn.x, turn.y - 1}, {end.x, end.y - 1});
  }
  return mark;
}

}  // namespace coregui
