#include "grid/display/CGridScroller.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "grid/display/CGridPainter.h"
#include "platform/CDC.h"

namespace coregui {
namespace {

ScrollDistance Distance(const CGridAxis& axis) {
  return MeasureScroll(axis.paintedFirst, axis.First(), axis.Extent(),
                       [&axis](long line) { return axis.SizeOf(line); });
}

bool IsWholeDots(std::int64_t pixels, double dots) {
  const double exact = static_cast<double>(pixels) * dots;
  return exact == std::floor(exact);
}

/// Whether the scroll moves dots onto dots, with the locked lines that stay put.
bool MovesDots(const ScrollDistance& distance, const CGridAxis& axis, double dots) {
  return distance.pixels == 0 || (IsWholeDots(distance.pixels, dots) && IsWholeDots(axis.LockedSize(), dots));
}

}  // namespace

CGridScroller::Shift CGridScroller::Plan(const CRect& client, double dots) {
  const CGridInfo& info = m_control.GetInfo();
  const ScrollDistance x = Distance(info.columns);
  const ScrollDistance y = Distance(info.rows);
  if (x.tooFar || y.tooFar || !MovesDots(x, info.columns, dots) || !MovesDots(y, info.rows, dots)) {
    m_painter.HintAll();
    return {};
  }
  Shift shift{x.pixels, y.pixels, client};
  if (x.pixels == 0 && y.pixels != 0) shift.area.top += static_cast<LONG>(info.rows.LockedSize());
  if (x.pixels != 0 && y.pixels == 0) shift.area.left += static_cast<LONG>(info.columns.LockedSize());
  return shift;
}

void CGridScroller::HintUncovered(const Shift& shift) {
  const CGridInfo& info = m_control.GetInfo();
  CGridDrawHint& hints = m_painter.Hints();
  const int cols = static_cast<int>(info.columns.Count());
  const long rows = info.rows.Count();
  if (shift.dx > 0) hints.AddHint(static_cast<int>(info.columns.last), 0, cols, rows);
  if (shift.dx < 0) hints.AddHint(0, 0, static_cast<int>(info.columns.paintedFirst), rows);
  if (shift.dy > 0) hints.AddHint(0, info.rows.last, cols, rows);
  if (shift.dy < 0) hints.AddHint(0, 0, cols, info.rows.paintedFirst);
  if (shift.dx != 0 && shift.dy != 0) {
    // Both ways at once, the locked cells move along with the rest and must be put back.
    if (info.columns.Locked() > 0) hints.AddHint(0, 0, static_cast<int>(info.columns.Locked()), rows);
    if (info.rows.Locked() > 0) hints.AddHint(0, 0, cols, info.rows.Locked());
  }
  HintAcrossLocked(shift);
}

/// A joined block or a text that reaches from the locked cells into the others changes its size as those
/// scroll.
void CGridScroller::HintAcrossLocked(const Shift& shift) {
  const CGridInfo& info = m_control.GetInfo();
  const auto crosses = [](const CGridAxis& axis, long start, long end) {
    return start < axis.Locked() && end >= axis.Locked();
  };
  for (const CGridDrawHint::Range& r : m_painter.Hints().GetDrawnAsOne()) {
    if ((shift.dx != 0 && crosses(info.columns, r.startCol, r.endCol)) ||
        (shift.dy != 0 && crosses(info.rows, r.startRow, r.endRow))) {
      m_painter.Hints().AddHint(r.startCol, r.startRow, r.endCol, r.endRow);
    }
  }
}

void CGridScroller::Move(CDC& dc, const Shift& shift) {
  const int width = shift.area.Width() - std::abs(shift.dx);
  const int height = shift.area.Height() - std::abs(shift.dy);
  if (width <= 0 || height <= 0) return;
  dc.BitBlt(shift.area.left + std::max(-shift.dx, 0), shift.area.top + std::max(-shift.dy, 0), width, height,
            &dc, shift.area.left + std::max(shift.dx, 0), shift.area.top + std::max(shift.dy, 0), SRCCOPY);
}

}  // namespace coregui
