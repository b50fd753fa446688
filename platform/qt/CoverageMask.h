#pragma once

#include <cstdint>
#include <vector>

#include "platform/Geometry.h"
#include "platform/qt/Surface.h"

namespace coregui {

/// Which parts of a surface's dots a shape covers: each dot of a rectangle has kPlaces rows of kPlaces
/// places, which are covered or not. A place covered twice is covered once, so what is gathered here before
/// it is blended gets no darker where it overlaps itself.
class CoverageMask {
 public:
  static constexpr int kPlaces = 8;  ///< along each side of a dot

  explicit CoverageMask(CRect const& dots);

  /// The mask's edges, in places of the surface.
  const CRect& Places() const { return m_places; }
  /// Covers what lies between two positions in a row of places, which must be one of the mask's; columns
  /// outside are left out.
  void CoverRun(int row, double from, double to);
  /// The same in all the rows of the dots' row that begins at `row`.
  void CoverRuns(int row, double from, double to);
  /// Blends the covered places onto the surface.
  void Blend(Surface& surface, std::uint32_t colour) const;

 private:
  /// A position within the mask in steps from its left edge: kPlaces steps are a place.
  int StepOf(double position) const;
  void Cover(int row, double from, double to, std::uint64_t rows);

  CRect m_dots;
  CRect m_places;
  std::vector<std::uint64_t> m_cells;  ///< of each dot: a byte for each of its rows of places, left is low
};

}  // namespace coregui
