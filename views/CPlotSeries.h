#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/Export.h"
#include "core/PNT_2D_record.h"
#include "views/FRect.h"

/// The points of one polyline, however many, made ready once for drawing at any zoom.
///
/// A point with a NaN or infinite coordinate is a gap: the line stops before it and starts anew behind it.
/// Beside the points stands a pyramid of bounds: of every 16 points, of every four of those, and so on. It
/// costs 1.4 bytes per point of 16 bytes where x never turns back, 2.8 where it does.
class COREGUI_API CPlotSeries {
 public:
  /// Bounds of the drawable points of a node; lowest > highest when there is none.
  struct Bounds {
    double lowest;
    double highest;
  };
  static constexpr std::size_t kLeafSize = 16;
  static constexpr std::size_t kFanOut = 4;

  CPlotSeries() = default;
  explicit CPlotSeries(std::vector<PNT_2D_record> points);

  const std::vector<PNT_2D_record>& GetPoints() const { return m_points; }
  std::size_t GetCount() const { return m_points.size(); }
  /// True when x never turns back, upwards or downwards.
  bool IsMonotone() const { return m_monotone; }
  /// The rectangle around all drawable points; false when there are none.
  bool GetBounds(FRect* bounds) const;
  /// The first gap at or after an index; the count when there is none. Likewise the first drawable point.
  std::size_t FindGap(std::size_t from) const { return FindNext(from, true); }
  std::size_t FindPoint(std::size_t from) const { return FindNext(from, false); }
  std::size_t GetPyramidBytes() const;

  // The pyramid, for who draws it. Level 0 nodes hold kLeafSize points, each next level kFanOut nodes.
  std::size_t GetLevels() const { return m_levels.size(); }
  static std::size_t GetNodeSize(std::size_t level) { return kLeafSize << (2 * level); }
  const Bounds& GetBoundsY(std::size_t level, std::size_t node) const { return m_levels[level].y[node]; }
  /// Only where x is not monotone.
  const Bounds& GetBoundsX(std::size_t level, std::size_t node) const { return m_levels[level].x[node]; }

  /// The lowest and highest y of the points from `first` to before `last`; they must be drawable. Likewise of
  /// x, only where x is not monotone.
  Bounds GetRangeY(std::size_t first, std::size_t last) const {
    return GetRange(&PNT_2D_record::y, &Level::y, first, last);
  }
  Bounds GetRangeX(std::size_t first, std::size_t last) const {
    return GetRange(&PNT_2D_record::x, &Level::x, first, last);
  }
  /// Asks the processor for what GetRangeY will read around a point, so that it need not wait for memory.
  void PrefetchAround(std::size_t point) const;

  static bool IsDrawable(PNT_2D_record const& p);

 private:
  struct Level {
    std::vector<Bounds> y;
    std::vector<Bounds> x;           ///< empty where x is monotone
    std::vector<std::uint8_t> gaps;  ///< 1: a gap is among the node's points
  };

  Bounds GetRange(double PNT_2D_record::*axis, std::vector<Bounds> Level::*bounds, std::size_t first,
                  std::size_t last) const;
  void FindOrder();
  void BuildLeaves();
  void BuildLevelAbove();
  std::size_t FindNext(std::size_t from, bool gap) const;
  bool CanSkip(std::size_t level, std::size_t node, bool gap) const;

  std::vector<PNT_2D_record> m_points;
  std::vector<Level> m_levels;
  bool m_monotone = true;
};
