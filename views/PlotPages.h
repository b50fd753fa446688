#pragma once

#include "views/CViewMapping.h"

class CGUIBaseView;
class CPrinterDC;

/// How a drawing is put on pages to scale.
struct PlotPageScale {
  double horizontal = 500.0;         ///< 1 : horizontal
  double vertical = 50.0;            ///< 1 : vertical
  double millimetresPerUnit = 1000;  ///< of the world; metres by default
  double overlap = 10.0;             ///< millimetres that two neighbouring pages both show
};

namespace coregui {

/// The pages of a drawing to scale, in rows from the upper left. Arithmetic only.
class COREGUI_API CPlotPages {
 public:
  /// `view` gives extents and margins. More than ten thousand pages, or margins that leave no room beside the
  /// overlap, give none.
  CPlotPages(CViewMapping view, PlotPageScale const& scale, CSize page, CSize dotsPerInch);

  int GetCount() const { return m_columns * m_rows; }
  int GetColumns() const { return m_columns; }
  int GetRows() const { return m_rows; }
  /// The mapping of a page, 0 to count - 1: true to scale on its device, the page's part inside the margins.
  CViewMapping GetMapping(int page) const;

 private:
  CViewMapping m_first;
  CSize m_step;  ///< dots from a page to its neighbours
  int m_columns = 0;
  int m_rows = 0;
};

/// Prints a view to scale on as many pages as it takes, in a document that the caller started. Returns the
/// pages printed; fewer than CPlotPages says when the device failed.
COREGUI_API int PrintToScale(CGUIBaseView& view, CPrinterDC& dc, PlotPageScale const& scale);

}  // namespace coregui
