#pragma once

#include <initializer_list>
#include <vector>

#include "core/Export.h"
#include "platform/Geometry.h"

class CString;
class CWnd;

namespace coregui {

/// Places a dialog's controls in rows from the top. Lengths going in are for 96 dots per inch; the rectangles
/// and the size that come out are scaled.
class COREGUI_API DialogLayout {
 public:
  /// `width` of the rows without the margins.
  explicit DialogLayout(int width);

  /// The next row, over the whole width.
  CRect Row(int height);
  /// The next row, as high as a text in it wants when it is wrapped: `least` or more, 20 lines at most. The
  /// window's font measures.
  CRect TextRow(CWnd& window, const CString& text, int least);
  /// The next row, divided: a column's width, or 0 for an equal share of what the others leave.
  std::vector<CRect> Columns(int height, std::initializer_list<int> widths);
  /// The next row: so many push buttons at the right edge.
  std::vector<CRect> Buttons(int count);
  /// More space above the next row.
  void Gap(int height);
  /// The client area that holds all rows and the margins.
  CSize Size() const;

 private:
  int m_width;
  int m_top;
};

}  // namespace coregui
