#pragma once

#include <vector>

#include "coregui/coregui.h"

namespace desk {

/// The sheets of a long-section that is drawn to scale: one behind the other along the chainage, each moved
/// up or down so that its part of the lines stands on it, as the datum of a drawn section changes from sheet
/// to sheet. Where the lines are higher than a sheet, several stand below one another; where there are no
/// lines, there is no sheet.
///
/// `view` gives the extents and the margins, `page` and `dotsPerInch` the device. Returns the mapping of each
/// sheet, in their order; none when the margins leave no room or there would be more than ten thousand.
std::vector<coregui::CViewMapping> PlanSheets(const coregui::CViewMapping& view, const PlotPageScale& scale,
                                              CSize page, CSize dotsPerInch,
                                              const std::vector<const CPlotSeries*>& lines);

}  // namespace desk
