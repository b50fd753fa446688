#include "grid/celltypes/DropListPlan.h"

#include <algorithm>

namespace coregui {
namespace {

constexpr int kIndent = 10;  // of the list against the cell
constexpr int kFrame = 6;    // pixels that the list's frame adds to its items
constexpr int kRoomAroundText = 10;

}  // namespace

CRect DropButtonRect(const CRect& cell, int buttonWidth) {
  CRect button = cell;
  button.left = std::max(cell.left, cell.right - buttonWidth);
  return button;
}

CStringList SplitChoices(const CString& label) {
  CStringList choices;
  if (label.IsEmpty()) return choices;
  int start = 0;
  for (int end = label.Find(L'\n'); end >= 0; end = label.Find(L'\n', start)) {
    choices.AddTail(label.Mid(start, end - start));
    start = end + 1;
  }
  if (start < label.GetLength()) choices.AddTail(label.Mid(start));
  return choices;
}

CRect DropListRect(const CRect& cell, const DropListMeasures& measures) {
  const int visible = std::min(measures.choices, kMostVisibleChoices);
  CRect list(cell.left + kIndent, cell.bottom, cell.right + kIndent, 0);
  list.bottom = list.top + visible * measures.itemHeight + kFrame;
  if (list.bottom > measures.window.cy)
    list.OffsetRect(0, std::max<LONG>(measures.window.cy - list.bottom, -list.top));
  int width = std::max<int>(list.Width(), measures.widestChoice + kRoomAroundText);
  if (visible >= kMostVisibleChoices) width += measures.scrollBarWidth;
  list.right = list.left + width;
  if (list.right > measures.window.cx)
    list.OffsetRect(std::max<LONG>(measures.window.cx - list.right, -list.left), 0);
  return list;
}

}  // namespace coregui
