#include "grid/control/CGridHeadings.h"

#include "platform/System.h"

namespace coregui {

namespace {

/// `sizes` are stacked backwards from `total`; the outermost reaches to 0.
CGridHeadings::Span SpanOf(const std::vector<int>& sizes, int total, long index) {
  if (index >= 0 || -index > static_cast<long>(sizes.size())) {
    return {0, 0};
  }
  int end = total;
  const auto depth = static_cast<std::size_t>(-index - 1);
  for (std::size_t i = 0; i < depth; ++i) {
    end -= sizes[i];
  }
  const bool outermost = depth + 1 == sizes.size();
  return {outermost ? 0 : end - sizes[depth], end};
}

long IndexAt(const std::vector<int>& sizes, int total, int position) {
  for (long index = -1; - index <= static_cast<long>(sizes.size()); --index) {
    const CGridHeadings::Span span = SpanOf(sizes, total, index);
    if (position >= span.start && position < span.end) {
      return index;
    }
  }
  return 0;
}

}  // namespace

CGridHeadings::CGridHeadings()
    : topRowHeights{ScaleByDpi(20)},
      sideColWidths{ScaleByDpi(25)},
      topHeight(ScaleByDpi(20)),
      sideWidth(ScaleByDpi(40)) {}

CGridHeadings::Span CGridHeadings::TopRowSpan(long row) const {
  return SpanOf(topRowHeights, topHeight, row);
}
CGridHeadings::Span CGridHeadings::SideColSpan(int col) const {
  return SpanOf(sideColWidths, sideWidth, col);
}
long CGridHeadings::TopRowAt(int y) const {
  return IndexAt(topRowHeights, topHeight, y);
}
int CGridHeadings::SideColAt(int x) const {
  return static_cast<int>(IndexAt(sideColWidths, sideWidth, x));
}

}  // namespace coregui
