#pragma once

#include <vector>

#include "coregui/coregui.h"

namespace desk {

class SurveyGrid;

/// Which columns of a survey make the long-section; -1 is none.
struct SectionColumns {
  int chainage = -1;
  int ground = -1;
  int design = -1;
};

/// Finds the columns by their headings, in English, German and French; else the first columns of numbers.
SectionColumns FindSectionColumns(const std::vector<std::wstring>& headings,
                                  const std::vector<bool>& numeric);

/// The long-section of a survey: chainages with levels, taken from the table once.
struct SectionData {
  SectionColumns columns;
  std::vector<double> chainages;      ///< for each row; NaN where the table has no number
  std::vector<PNT_2D_record> ground;  ///< one point a row; a gap (NaN) where a number is missing
  std::vector<PNT_2D_record> design;
  std::vector<PNT_2D_record> difference;  ///< ground less design
  FRect extents;                          ///< around ground and design
  FRect differenceExtents;

  bool IsEmpty() const { return ground.empty(); }
  /// The row whose chainage is nearest; -1 when there is none.
  long NearestRow(double chainage) const;
  double ChainageOf(long row) const;
};

SectionData TakeSection(SurveyGrid& grid);

}  // namespace desk
