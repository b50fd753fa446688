#include "SheetPlan.h"

#include <algorithm>
#include <cmath>

namespace desk {

namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr std::size_t kMostSheets = 10000;
/// A sheet keeps this part of its height free above and below the lines when it is placed anew.
constexpr double kFree = 0.05;

/// The levels of the lines between two chainages, ends included.
struct Levels {
  double low = HUGE_VAL;  // above `high`: none
  double high = -HUGE_VAL;

  bool IsEmpty() const { return low > high; }
  double Height() const { return high - low; }
  void Add(double level) {
    if (std::isfinite(level)) {
      low = std::min(low, level);
      high = std::max(high, level);
    }
  }
};

/// Where a leg crosses a chainage. Not finite for a leg with a gap or without length.
double LevelAt(const PNT_2D_record& from, const PNT_2D_record& to, double x) {
  return from.y + (to.y - from.y) * ((x - from.x) / (to.x - from.x));
}

/// The points are in the order of their chainage.
void AddLevels(const std::vector<PNT_2D_record>& points, double from, double to, Levels& levels) {
  const auto before = [](const PNT_2D_record& point, double x) { return point.x < x; };
  const auto first = std::lower_bound(points.begin(), points.end(), from, before);
  auto at = first;
  for (; at != points.end() && at->x <= to; ++at) {
    levels.Add(at->y);
  }
  for (const auto& [edge, x] : {std::pair(first, from), std::pair(at, to)}) {
    if (edge != points.begin() && edge != points.end()) {
      levels.Add(LevelAt(*(edge - 1), *edge, x));
    }
  }
}

/// Places one sheet after the other.
class SheetPlacer {
 public:
  SheetPlacer(const CRect& room, LONG overlap) : m_room(room), m_overlap(overlap) {}

  /// The sheets of one stretch of the chainage, from the top; those that no line touches are left out.
  void Add(coregui::CViewMapping sheet, const std::vector<Levels>& lines) {
    Levels all;
    for (const Levels& line : lines) {
      all.Add(line.low);
      all.Add(line.high);
    }
    if (all.IsEmpty()) {
      return;
    }
    if (!m_sheets.empty()) {
      // The datum of the sheet before, as long as it serves.
      sheet.now.offsetY = m_sheets.back().now.offsetY;
    }
    if (m_sheets.empty() || !Holds(sheet, all)) {
      MoveTo(sheet, Top(sheet, all));
    }
    for (bool more = true; more && !IsFull(); sheet.Pan(CSize(0, m_overlap - m_room.Height()))) {
      const Levels shown = ShownOn(sheet);
      const bool touched = std::any_of(lines.begin(), lines.end(), [&shown](const Levels& line) {
        return line.low <= shown.high && line.high >= shown.low;
      });
      if (touched) {
        m_sheets.push_back(sheet);
      }
      more = all.low < shown.low;
    }
  }
  bool IsFull() const { return m_sheets.size() >= kMostSheets; }
  std::vector<coregui::CViewMapping> Take() { return std::move(m_sheets); }

 private:
  Levels ShownOn(const coregui::CViewMapping& sheet) const {
    return {sheet.WindowToUser(CPoint(0, m_room.bottom)).y, sheet.WindowToUser(CPoint(0, m_room.top)).y};
  }
  bool Holds(const coregui::CViewMapping& sheet, const Levels& levels) const {
    const Levels shown = ShownOn(sheet);
    return levels.high <= shown.high && levels.low >= shown.low;
  }
  /// The level at the upper edge of a sheet that is placed for these levels: they stand in the middle when
  /// there is room around them, and the lower edge is a round datum.
  double Top(const coregui::CViewMapping& sheet, const Levels& levels) const {
    const double height = sheet.WindowToUserHeight(m_room.Height());
    const double free = (height - levels.Height()) / 2.0;
    if (free < kFree * height) {
      return levels.high + std::max(free, 0.0);
    }
    const double step = std::pow(10.0, std::floor(std::log10(free)));
    return std::floor((levels.low - free) / step) * step + height;
  }
  void MoveTo(coregui::CViewMapping& sheet, double top) const {
    sheet.Pan(CSize(0, m_room.top - sheet.UserToWindow({sheet.extents.GetLeft(), top}).y));
  }

  CRect m_room;
  LONG m_overlap;
  std::vector<coregui::CViewMapping> m_sheets;
};

}  // namespace

std::vector<coregui::CViewMapping> PlanSheets(const coregui::CViewMapping& view, const PlotPageScale& scale,
                                              CSize page, CSize dotsPerInch,
                                              const std::vector<const CPlotSeries*>& lines) {
  coregui::CViewMapping flat = view;  // one row of pages: the levels place each sheet
  flat.extents.SetBottom(flat.extents.GetTop());
  const coregui::CPlotPages pages(flat, scale, page, dotsPerInch);
  if (pages.GetCount() == 0) {
    return {};
  }
  const CRect margins = pages.GetMapping(0).GetMarginPixels();
  const CRect room(margins.left, margins.top, page.cx - margins.right, page.cy - margins.bottom);
  const auto overlap = static_cast<LONG>(scale.overlap / kMillimetresPerInch * dotsPerInch.cy);
  if (room.Height() <= overlap) {
    return {};
  }
  SheetPlacer placer(room, overlap);
  for (int i = 0; i < pages.GetCount(); ++i) {
    const coregui::CViewMapping sheet = pages.GetMapping(i);
    std::vector<Levels> levels(lines.size());
    for (std::size_t line = 0; line < lines.size(); ++line) {
      AddLevels(lines[line]->GetPoints(), sheet.WindowToUser(room.TopLeft()).x,
                sheet.WindowToUser(room.BottomRight()).x, levels[line]);
    }
    placer.Add(sheet, levels);
    if (placer.IsFull()) {
      return {};
    }
  }
  return placer.Take();
}

}  // namespace desk
