#include "SectionMaker.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <utility>

namespace desk {

namespace {

constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t kBlockSize = 1U << 16U;

/// The bounds of the points that are whole, a twentieth of their height added above and below.
FRect BoundsOf(const std::vector<const std::vector<PNT_2D_record>*>& lines) {
  FRect bounds;
  bool any = false;
  for (const auto* line : lines) {
    for (const PNT_2D_record& point : *line) {
      if (std::isfinite(point.x) && std::isfinite(point.y)) {
        any ? bounds.Expand(point) : bounds.Set(point, point);
        any = true;
      }
    }
  }
  const double room = bounds.Height() > 0.0 ? bounds.Height() * 0.05 : 1.0;
  bounds.SetTop(bounds.GetTop() + room);
  bounds.SetBottom(bounds.GetBottom() - room);
  if (bounds.Width() == 0.0) {
    bounds.SetLeft(bounds.GetLeft() - 1.0);
    bounds.SetRight(bounds.GetRight() + 1.0);
  }
  return bounds;
}

/// What follows from the levels in their order; `rows` is how many the table has. False when stopped.
bool FillSection(SectionData& data, long rows, std::vector<PNT_2D_record> grounds,
                 std::vector<PNT_2D_record> designs, const std::atomic<bool>& stop) {
  data.points.assign(static_cast<std::size_t>(rows), -1);
  for (std::size_t point = 0; point < data.rows.size(); ++point) {
    data.points[static_cast<std::size_t>(data.rows[point])] = static_cast<long>(point);
  }
  std::vector<PNT_2D_record> differences;
  differences.reserve(designs.size());
  for (std::size_t point = 0; point < designs.size(); ++point) {
    differences.push_back({grounds[point].x, grounds[point].y - designs[point].y});
  }
  if (stop) {
    return false;
  }
  data.extents = BoundsOf({&grounds, &designs});
  data.differenceExtents = BoundsOf({&differences});
  data.differenceExtents.SetLeft(data.extents.GetLeft());
  data.differenceExtents.SetRight(data.extents.GetRight());
  data.ground = CPlotSeries(std::move(grounds));
  if (stop) {
    return false;
  }
  data.design = CPlotSeries(std::move(designs));
  data.difference = CPlotSeries(std::move(differences));
  return !stop;
}

}  // namespace

void SectionMaker::Begin(const SectionColumns& columns) {
  m_columns = columns;
  m_blocks.clear();
  m_count = 0;
}

void SectionMaker::Add(long row, const std::vector<double>& numbers) {
  const auto number = [&numbers](int col) {
    return col >= 0 ? numbers[static_cast<std::size_t>(col)] : kNothing;
  };
  if (!HasColumns() || !std::isfinite(number(m_columns.chainage))) {
    return;
  }
  if (m_blocks.empty() || m_blocks.back().size() == kBlockSize) {
    m_blocks.emplace_back().reserve(kBlockSize);
  }
  m_blocks.back().push_back(
      {row, number(m_columns.chainage), number(m_columns.ground), number(m_columns.design)});
  ++m_count;
}

SectionData SectionMaker::Make(long rows, const std::atomic<bool>& stop) {
  SectionData data;
  data.columns = m_columns;
  Line grounds;
  Line designs;
  const bool made = m_count > 0 && SortBlocks(stop) && MergeBlocks(data, grounds, designs, stop) &&
                    FillSection(data, rows, std::move(grounds), std::move(designs), stop);
  Begin(m_columns);
  if (made) {
    return data;
  }
  SectionData none;
  none.columns = m_columns;
  return none;
}

bool SectionMaker::SortBlocks(const std::atomic<bool>& stop) {
  const auto before = [](const Level& a, const Level& b) { return a.chainage < b.chainage; };
  for (Block& block : m_blocks) {
    if (stop) {
      return false;
    }
    if (!std::is_sorted(block.begin(), block.end(), before)) {
      std::stable_sort(block.begin(), block.end(), before);
    }
  }
  return true;
}

/// Takes from the block that is first in turn all that comes before the block next in turn: of a table that
/// runs along the chainage, a whole block at once. Of equal chainages the earlier row comes first.
bool SectionMaker::MergeBlocks(SectionData& data, Line& grounds, Line& designs,
                               const std::atomic<bool>& stop) {
  using Turn = std::pair<double, std::size_t>;  // the chainage that a block has reached, and the block
  data.rows.reserve(m_count);
  grounds.reserve(m_count);
  designs.reserve(m_columns.design >= 0 ? m_count : 0);
  std::vector<std::size_t> reached(m_blocks.size(), 0);
  std::vector<Turn> turns;
  for (std::size_t i = 0; i < m_blocks.size(); ++i) {
    turns.emplace_back(m_blocks[i].front().chainage, i);
  }
  std::make_heap(turns.begin(), turns.end(), std::greater<>());
  while (!turns.empty() && !stop) {
    std::pop_heap(turns.begin(), turns.end(), std::greater<>());
    const std::size_t index = turns.back().second;
    turns.pop_back();
    Block& block = m_blocks[index];
    std::size_t& at = reached[index];
    do {
      const Level& level = block[at++];
      data.rows.push_back(level.row);
      grounds.push_back({level.chainage, level.ground});
      if (m_columns.design >= 0) {
        designs.push_back({level.chainage, level.design});
      }
    } while (at < block.size() && (turns.empty() || Turn(block[at].chainage, index) < turns.front()));
    if (at < block.size()) {
      turns.emplace_back(block[at].chainage, index);
      std::push_heap(turns.begin(), turns.end(), std::greater<>());
    } else {
      Block().swap(block);
    }
  }
  return !stop;
}

}  // namespace desk
