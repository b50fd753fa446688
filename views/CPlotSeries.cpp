#include "views/CPlotSeries.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr CPlotSeries::Bounds kNothing = {std::numeric_limits<double>::infinity(),
                                          -std::numeric_limits<double>::infinity()};

void Include(CPlotSeries::Bounds& bounds, double low, double high) {
  bounds.lowest = std::min(bounds.lowest, low);
  bounds.highest = std::max(bounds.highest, high);
}

}  // namespace

bool CPlotSeries::IsDrawable(PNT_2D_record const& p) {
  return std::isfinite(p.x) && std::isfinite(p.y);
}

CPlotSeries::CPlotSeries(std::vector<PNT_2D_record> points) : m_points(std::move(points)) {
  if (m_points.empty()) {
    return;
  }
  FindOrder();
  BuildLeaves();
  while (m_levels.back().y.size() > 1) {
    BuildLevelAbove();
  }
}

void CPlotSeries::FindOrder() {
  bool rises = true;
  bool falls = true;
  std::size_t last = FindNext(0, false);
  for (std::size_t i = last; i < m_points.size(); ++i) {
    if (IsDrawable(m_points[i])) {
      rises = rises && m_points[i].x >= m_points[last].x;
      falls = falls && m_points[i].x <= m_points[last].x;
      last = i;
    }
  }
  m_monotone = rises || falls;
}

void CPlotSeries::BuildLeaves() {
  const std::size_t nodes = (m_points.size() + kLeafSize - 1) / kLeafSize;
  Level leaves;
  leaves.y.assign(nodes, kNothing);
  leaves.x.assign(m_monotone ? 0 : nodes, kNothing);
  leaves.gaps.assign(nodes, 0);
  for (std::size_t i = 0; i < m_points.size(); ++i) {
    const PNT_2D_record& p = m_points[i];
    if (!IsDrawable(p)) {
      leaves.gaps[i / kLeafSize] = 1;
      continue;
    }
    Include(leaves.y[i / kLeafSize], p.y, p.y);
    if (!m_monotone) {
      Include(leaves.x[i / kLeafSize], p.x, p.x);
    }
  }
  m_levels.push_back(std::move(leaves));
}

void CPlotSeries::BuildLevelAbove() {
  const Level& below = m_levels.back();
  const std::size_t nodes = (below.y.size() + kFanOut - 1) / kFanOut;
  Level level;
  level.y.assign(nodes, kNothing);
  level.x.assign(m_monotone ? 0 : nodes, kNothing);
  level.gaps.assign(nodes, 0);
  for (std::size_t child = 0; child < below.y.size(); ++child) {
    Include(level.y[child / kFanOut], below.y[child].lowest, below.y[child].highest);
    level.gaps[child / kFanOut] |= below.gaps[child];
    if (!m_monotone) {
      Include(level.x[child / kFanOut], below.x[child].lowest, below.x[child].highest);
    }
  }
  m_levels.push_back(std::move(level));
}

bool CPlotSeries::GetBounds(FRect* bounds) const {
  const std::size_t first = FindPoint(0);
  if (first == m_points.size()) {
    return false;
  }
  bounds->Set(m_points[first], m_points[first]);
  const Bounds& y = m_levels.back().y[0];
  bounds->SetBottom(y.lowest);
  bounds->SetTop(y.highest);
  if (!m_monotone) {
    bounds->SetLeft(m_levels.back().x[0].lowest);
    bounds->SetRight(m_levels.back().x[0].highest);
    return true;
  }
  std::size_t last = m_points.size() - 1;
  while (!IsDrawable(m_points[last])) {
    --last;
  }
  bounds->Expand(m_points[last]);
  return true;
}

CPlotSeries::Bounds CPlotSeries::GetRange(double PNT_2D_record::*axis, std::vector<Bounds> Level::*bounds,
                                          std::size_t first, std::size_t last) const {
  Bounds range = kNothing;
  const auto includePoints = [&](std::size_t from, std::size_t to) {
    for (; from < to; ++from) {
      Include(range, m_points[from].*axis, m_points[from].*axis);
    }
  };
  // From both ends inwards: points up to a leaf, nodes up to a node of the level above, and so on.
  std::size_t from = (first + kLeafSize - 1) / kLeafSize;
  std::size_t to = last / kLeafSize;
  if (from >= to) {
    includePoints(first, last);
    return range;
  }
  includePoints(first, from * kLeafSize);
  includePoints(to * kLeafSize, last);
  for (std::size_t level = 0; from < to; ++level) {
    const auto includeNodes = [&, nodes = (m_levels[level].*bounds).data()](std::size_t begin,
                                                                            std::size_t end) {
      for (; begin < end; ++begin) {
        Include(range, nodes[begin].lowest, nodes[begin].highest);
      }
    };
    const std::size_t innerFrom = (from + kFanOut - 1) / kFanOut;
    const std::size_t innerTo = to / kFanOut;
    if (innerFrom >= innerTo) {
      includeNodes(from, to);
      break;
    }
    includeNodes(from, innerFrom * kFanOut);
    includeNodes(innerTo * kFanOut, to);
    from = innerFrom;
    to = innerTo;
  }
  return range;
}

void CPlotSeries::PrefetchAround(std::size_t point) const {
#ifdef __GNUC__
  constexpr std::size_t kPointsOfLine = 64 / sizeof(PNT_2D_record);
  if (point >= m_points.size()) {
    return;
  }
  const std::size_t leaf = point / kLeafSize * kLeafSize;
  for (std::size_t i = leaf; i < std::min(leaf + kLeafSize, m_points.size()); i += kPointsOfLine) {
    __builtin_prefetch(&m_points[i]);
  }
  for (std::size_t level = 0; level + 1 < m_levels.size(); ++level) {
    __builtin_prefetch(&m_levels[level].y[point / GetNodeSize(level)]);
  }
#endif
}

bool CPlotSeries::CanSkip(std::size_t level, std::size_t node, bool gap) const {
  const Level& at = m_levels[level];
  return gap ? at.gaps[node] == 0 : at.y[node].lowest > at.y[node].highest;
}

std::size_t CPlotSeries::FindNext(std::size_t from, bool gap) const {
  std::size_t i = from;
  while (i < m_points.size()) {
    std::size_t skip = 0;  // the points of the largest node that starts here and holds nothing wanted
    for (std::size_t level = 0; level < m_levels.size() && i % GetNodeSize(level) == 0; ++level) {
      if (!CanSkip(level, i / GetNodeSize(level), gap)) {
        break;
      }
      skip = GetNodeSize(level);
    }
    if (skip == 0) {
      if (IsDrawable(m_points[i]) != gap) {
        return i;
      }
      skip = 1;
    }
    i += skip;
  }
  return m_points.size();
}

std::size_t CPlotSeries::GetPyramidBytes() const {
  std::size_t bytes = 0;
  for (const Level& level : m_levels) {
    bytes += (level.y.size() + level.x.size()) * sizeof(Bounds) + level.gaps.size();
  }
  return bytes;
}
