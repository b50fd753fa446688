#pragma once

#include <algorithm>
#include <vector>

namespace coregui {

/// One row or column as the window shows it: number, first pixel, pixels.
struct ShownLine {
  long index = 0;
  int start = 0;
  int size = 0;

  int End() const { return start + size; }
  bool operator==(const ShownLine&) const = default;
};

/// The order in which the lines of an axis are shown: the locked ones from 0, then on from the first
/// scrollable one. The count is asked for again at each step, as a handler may add or remove lines meanwhile.
class LineOrder {
 public:
  /// `locked`: how many lines are locked; `first`: the top row or left column.
  LineOrder(long locked, long first) : m_locked(locked), m_first(std::max(locked, first)) {}
  long First() const { return Jump(0); }
  long After(long line) const { return Jump(line + 1); }

 private:
  long Jump(long line) const { return line == m_locked ? m_first : line; }

  long m_locked;
  long m_first;
};

/// What one walk over an axis met.
struct LineWalk {
  std::vector<ShownLine> lines;  ///< without those of size 0
  int end = 0;                   ///< the pixel after the last line; within the extent only when all lines fit
  long last = 0;                 ///< the line whose end passed the extent; the count when none did

  /// The line's place; null when it is not shown.
  const ShownLine* Find(long index) const {
    const auto at = std::lower_bound(lines.begin(), lines.end(), index,
                                     [](const ShownLine& line, long wanted) { return line.index < wanted; });
    return at != lines.end() && at->index == index ? &*at : nullptr;
  }
};

/// Walks until a line's end passes `extent` pixels. `size(line)` gives a line's pixels. Reuses the room in
/// `walk`.
template <class Size>
void WalkLines(LineWalk& walk, LineOrder order, long count, int extent, Size size) {
  walk.lines.clear();
  walk.end = 0;
  walk.last = count;
  for (long line = order.First(); line < count; line = order.After(line)) {
    const int pixels = size(line);
    if (pixels <= 0) continue;
    walk.lines.push_back({line, walk.end, pixels});
    walk.end += pixels;
    if (walk.end > extent) {
      walk.last = line;
      return;
    }
  }
}

/// How far the picture moves when the first scrollable line changes.
struct ScrollDistance {
  int pixels = 0;       ///< negative towards the start
  bool tooFar = false;  ///< further than the window reaches: nothing can be kept

  bool operator==(const ScrollDistance&) const = default;
};

/// Sums the sizes between the two lines and gives up as soon as they pass `extent`, so that the cost does not
/// grow with the distance.
template <class Size>
ScrollDistance MeasureScroll(long before, long now, int extent, Size size) {
  const int sign = now < before ? -1 : 1;
  const long end = std::max(before, now);
  int sum = 0;
  for (long line = std::min(before, now); line < end; ++line) {
    sum += size(line);
    if (sum > extent) return {0, true};
  }
  return {sign * sum, false};
}

}  // namespace coregui
