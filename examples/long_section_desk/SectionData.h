#pragma once

#include <atomic>
#include <vector>

#include "coregui/coregui.h"

namespace desk {

/// Which columns of a survey make the long-section; -1 is none.
struct SectionColumns {
  int chainage = -1;
  int ground = -1;
  int design = -1;
};

/// Finds the columns by their headings, in English, German and French; else the first columns of numbers.
SectionColumns FindSectionColumns(const std::vector<std::wstring>& headings,
                                  const std::vector<bool>& numeric);

/// The long-section of a survey, in the order of its chainages, whatever the order of the table's rows.
struct SectionData {
  SectionColumns columns;
  std::vector<long> rows;  ///< for each point the row of the table
  CPlotSeries ground;      ///< y is NaN, a gap, where a level is missing
  CPlotSeries design;      ///< empty where the table has none
  CPlotSeries difference;  ///< ground less design
  FRect extents;           ///< around ground and design
  FRect differenceExtents;
  std::vector<long> points;  ///< for each row of the table its point, or -1

  bool IsEmpty() const { return ground.GetCount() == 0; }
  bool HasDesign() const { return design.GetCount() > 0; }
  /// The index of the point whose chainage is nearest; -1 when there is none.
  long NearestPoint(double chainage) const;
  /// The index of a table's row; -1 for one that has no chainage.
  long PointOfRow(long row) const;
};

/// The section of a table's cells as they stand, in so many rows. Rows without a chainage are no part of it.
/// Needs no window; empty soon after `stop` has become true.
SectionData TakeSection(CGridMem& cells, long rows, const SectionColumns& columns,
                        const std::atomic<bool>& stop);

}  // namespace desk
