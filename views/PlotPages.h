#pragma once

#include <functional>

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

/// Says whether anything of a drawing lies in a part of the world: see coregui::PassesThrough.
using PLOT_PART_FILTER = std::function<bool(FRect const& part)>;

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
  /// The part of the world that a page shows between its margins.
  FRect GetPart(int page) const;

 private:
  CViewMapping m_first;
  CSize m_room;  ///< dots between the margins
  CSize m_step;  ///< dots from a page to its neighbours
  int m_columns = 0;
  int m_rows = 0;
};

/// Prints a view to scale on as many pages as it takes, in a document that the caller started, in rows from
/// the upper left. Returns the pages printed; when the device failed they are fewer than were meant.
///
/// Only the caller knows what the view draws: without `isDrawn` every page of the extents is printed, and
/// most are empty where a long road climbs. With it, those of whose part it says no are left out; the others
/// keep their places and overlaps. While a page is drawn, the view's GetPrintPage counts the pages that are
/// printed.
COREGUI_API int PrintToScale(CGUIBaseView& view, CPrinterDC& dc, PlotPageScale const& scale,
                             const PLOT_PART_FILTER& isDrawn = {});

}  // namespace coregui
