#include "grid/display/CGridHeadingPainter.h"

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "platform/CDC.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

namespace coregui {
namespace {

const CGridAxis& AxisOf(const CGridInfo& info, bool top) {
  return top ? static_cast<const CGridAxis&>(info.columns) : info.rows;
}

}  // namespace

int CGridHeadingPainter::HeadingLines() const {
  const CGridHeadings& headings = m_control.GetInfo().headings;
  return m_top ? headings.TopRows() : headings.SideCols();
}

void CGridHeadingPainter::HintAll() {
  const CGridInfo& info = m_control.GetInfo();
  const int lines = HeadingLines();
  if (m_top) {
    m_hints.AddHint(0, -lines, static_cast<int>(info.columns.Count()), -1);
  } else {
    m_hints.AddHint(-lines, 0, -1, info.rows.Count());
  }
}

bool CGridHeadingPainter::IsViewStale() const {
  return m_shownFirst != AxisOf(m_control.GetInfo(), m_top).First();
}

void CGridHeadingPainter::Paint(CDC& dc, const CRect& client) {
  if (m_painting) return;
  const WindowRef alive(&m_owner);
  m_painting = true;
  Run(dc, client);
  if (alive) m_painting = false;
}

bool CGridHeadingPainter::Run(CDC& dc, const CRect& client) {
  const WindowRef alive(&m_owner);
  const int section = m_top ? GRIDSECTION_TOPHEADING : GRIDSECTION_SIDEHEADING;
  dc.SelectObject(m_control.GetDefFont());
  m_control.OnScreenDCSetup(&dc, nullptr, section);
  if (!alive) return false;
  m_hints.SpreadHints();
  const CGridAxis& axis = AxisOf(m_control.GetInfo(), m_top);
  WalkLines(m_lines, LineOrder(axis.Locked(), axis.First()), axis.Count(), axis.Extent(),
            [&axis](long line) { return axis.SizeOf(line); });
  m_shownFirst = axis.First();
  for (const ShownLine& line : m_lines.lines) {
    bool drawn = false;
    for (int heading = -1; heading >= -HeadingLines(); --heading) {
      const CGridCellPainter::Cell cell = CellOf(line, heading);
      if (m_hints.IsInvalid(cell.col, cell.row) == 0) continue;
      if (!DrawCell(dc, cell)) return false;
      drawn = true;
    }
    if (drawn && line.index == m_marked) {
      dc.InvertRect(m_top ? CRect(line.start, client.top, line.End(), client.bottom)
                          : CRect(client.left, line.start, client.right, line.End()));
    }
  }
  m_hints.ClearHints();
  const CBrush brush(m_control.OnGetDefBackColor(section));
  if (!alive) return false;
  const CRect blank = m_top ? CRect(m_lines.end, client.top, client.right, client.bottom)
                            : CRect(client.left, m_lines.end, client.right, client.bottom);
  if (!blank.IsRectEmpty()) dc.FillRect(blank, &brush);
  DrawDrop(dc, client);
  return true;
}

/// A bar over the edge where the marked line would come to stand.
void CGridHeadingPainter::DrawDrop(CDC& dc, const CRect& client) const {
  constexpr int kThick = 3;
  if (m_drop < 0 || m_lines.lines.empty()) return;
  const ShownLine* const line = m_lines.Find(m_drop);
  const int at = (line != nullptr ? line->start : m_lines.lines.back().End()) - kThick / 2;
  const CRect bar = m_top ? CRect(at, client.top, at + kThick, client.bottom)
                          : CRect(client.left, at, client.right, at + kThick);
  dc.FillSolidRect(bar, GetSysColor(COLOR_HIGHLIGHT));
}

CGridCellPainter::Cell CGridHeadingPainter::CellOf(const ShownLine& line, int headingLine) const {
  const CGridHeadings& headings = m_control.GetInfo().headings;
  if (m_top) {
    const CGridHeadings::Span span = headings.TopRowSpan(headingLine);
    return {static_cast<int>(line.index), headingLine, CRect(line.start, span.start, line.End(), span.end),
            false};
  }
  const CGridHeadings::Span span = headings.SideColSpan(headingLine);
  return {headingLine, line.index, CRect(span.start, line.start, span.end, line.End()), false};
}

bool CGridHeadingPainter::DrawCell(CDC& dc, CGridCellPainter::Cell cell) {
  const WindowRef alive(&m_owner);
  switch (m_cells.Fetch(cell, alive)) {
    case CGridCellPainter::Fetched::gone:
      return false;
    case CGridCellPainter::Fetched::drawn:
      return true;
    case CGridCellPainter::Fetched::draw:
      break;
  }
  if (cell.rect.IsRectEmpty()) return true;
  const int saved = dc.SaveDC();
  dc.IntersectClipRect(cell.rect);
  m_cells.Draw(dc, cell, 0, 0);
  if (!alive) return false;
  dc.RestoreDC(saved);
  return true;
}

}  // namespace coregui
