#pragma once

#include <vector>

#include "core/Export.h"

namespace coregui {

/// The headings of one sheet. Index 0 is the heading row or column nearest to the cells: cell row -1, column
/// -1. The outermost heading row or column takes what the others leave of the total.
class COREGUI_API CGridHeadings {
 public:
  CGridHeadings();

  std::vector<int> topRowHeights;  ///< one per top heading row
  std::vector<int> sideColWidths;  ///< one per side heading column
  int topHeight;                   ///< of the whole top heading
  int sideWidth;                   ///< of the whole side heading

  int TopRows() const { return static_cast<int>(topRowHeights.size()); }
  int SideCols() const { return static_cast<int>(sideColWidths.size()); }
  /// Start and end of a heading row (-1 and down) in the top heading, or column in the side heading.
  struct Span {
    int start;
    int end;
  };
  Span TopRowSpan(long row) const;
  Span SideColSpan(int col) const;
  /// The heading row (or column) at a position of the heading; 0 when there is none.
  long TopRowAt(int y) const;
  int SideColAt(int x) const;
};

}  // namespace coregui
