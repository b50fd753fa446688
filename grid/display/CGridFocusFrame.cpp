#include "grid/display/CGridFocusFrame.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "grid/control/CellPlace.h"
#include "grid/display/CGridCellPainter.h"
#include "platform/CDC.h"
#include "platform/WindowRef.h"

namespace coregui {

void CGridFocusFrame::BeginPass() {
  m_place = m_pane = CRect();
  m_drawn.clear();
}

void CGridFocusFrame::NoteDrawn(const CRect& pane) {
  if (pane.top < m_shown.bottom && pane.bottom > m_shown.top) m_drawn.push_back(pane);
}

void CGridFocusFrame::EnterRow(long row, int top, int height, const LineWalk& columns,
                               const CGridCellPainter& cells) {
  const CGridInfo& info = m_control.GetInfo();
  if (row != info.rows.current) return;
  const ShownLine* const column = columns.Find(info.columns.current);
  if (info.view.highlightRow != 0) {
    m_place = CRect(0, top, RowEnd(columns), top + height);
  } else if (column != nullptr) {
    m_place = CRect(column->start, top, column->End(), top + height);
    const int col = static_cast<int>(info.columns.current);
    CellPlace start{col, row};
    if (m_control.GetJoinStartCell(&start.col, &start.row) == 0) {
      m_control.GetCellRect(col, row, &m_place);
      m_pane = cells.PaneOf({start.col, start.row, m_place, true});
    }
  }
}

/// Where the focus rectangle of a highlighted row ends.
///
/// Kept: where the columns fill the window, the locked ones do not count.
int CGridFocusFrame::RowEnd(const LineWalk& columns) const {
  const CGridInfo& info = m_control.GetInfo();
  if (columns.end < info.columns.Extent()) return columns.end;
  if (info.view.highlightRowToEdge != 0) return info.columns.Extent();
  const std::int64_t scrolled = info.columns.TotalSize() - info.columns.OffsetOf(info.columns.First());
  return static_cast<int>(std::min<std::int64_t>(scrolled, std::numeric_limits<std::int16_t>::max()));
}

bool CGridFocusFrame::Shows() const {
  return !m_off && m_control.GetEditInProgress() == 0 && (m_hasFocus || m_control.IsFindDialogOpen() != 0);
}

bool CGridFocusFrame::Draw(CDC& dc, bool anew, int col, long row, const LineWalk& columns) {
  const bool shows = !m_place.IsRectEmpty() && Shows();
  const CRect before = Exchange(shows ? m_place : CRect());
  if (!shows) {
    m_off = false;
    return true;
  }
  const WindowRef alive(&m_owner);
  RECT rect = m_place;
  const int saved = dc.SaveDC();
  if (!m_pane.IsRectEmpty()) dc.IntersectClipRect(m_pane);
  if (before == m_place && !anew) ExcludeWhatStayed(dc, columns);
  CGridCellDelegate* const type = m_control.GetCellDelegate(col, row);
  if (type->OnDrawFocusRect(&dc, &rect, col, row) == 0 && alive) m_control.OnDrawFocusRect(&dc, &rect);
  if (!alive) return false;
  dc.RestoreDC(saved);
  m_off = false;
  return true;
}

/// Confines the context to the columns that were drawn anew in the frame's height.
void CGridFocusFrame::ExcludeWhatStayed(CDC& dc, const LineWalk& columns) const {
  for (const ShownLine& line : columns.lines) {
    const bool drawn = std::any_of(m_drawn.begin(), m_drawn.end(), [&](const CRect& cell) {
      return cell.left <= line.start && cell.right >= line.End();
    });
    if (!drawn) dc.ExcludeClipRect(CRect(line.start, m_shown.top, line.End(), m_shown.bottom));
  }
}

CRect CGridFocusFrame::Exchange(const CRect& shown) {
  return std::exchange(m_shown, shown);
}

}  // namespace coregui
