#include "grid/display/CGridPainter.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "grid/control/CGridMultiSelect.h"
#include "grid/control/CellPlace.h"
#include "grid/control/DarkInk.h"
#include "platform/CDC.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

namespace coregui {

/// What one pass carries from step to step. The steps answer false when a handler destroyed the grid.
struct CGridPainter::Pass {
  const PaintSurface& surface;
  const WindowRef alive;
  CDC* dc = nullptr;    ///< what cells are drawn on
  int y = 0;            ///< the top of the row at hand
  bool anyRow = false;  ///< a row was drawn, so the columns' end is known
  bool allRows = true;  ///< the walk reached the last row
};

CGridPainter::CGridPainter(CGridCtrl& control, CWnd& owner)
    : m_control(control),
      m_owner(owner),
      m_cells(control, m_hints),
      m_row(m_hints),
      m_frame(control, owner) {}

void CGridPainter::Paint(const PaintSurface& surface) {
  if (m_painting) return;
  Pass pass{
      surface, WindowRef(&m_owner), surface.memory != nullptr ? surface.memory : surface.screen, 0, false,
      true};
  m_painting = true;
  m_frame.BeginPass();
  Run(pass);
  if (pass.alive) m_painting = false;
}

void CGridPainter::Print(CDC& paper, const CRect& client) {
  if (m_painting) return;
  const WindowRef alive(&m_owner);
  const CGridDrawHint waiting = std::exchange(m_hints, {});
  const CRect frame = m_frame.Exchange({});
  const CellPlace shown = m_shown;
  const int sheet = m_control.GetSheetNumber();
  const CGridInfo& info = m_control.GetInfo();
  const std::pair cols(info.columns.paintedFirst, info.columns.last);
  const std::pair rows(info.rows.paintedFirst, info.rows.last);
  HintAll();
  Paint({&paper, nullptr, client});
  if (!alive) return;
  m_hints = waiting;
  m_frame.Exchange(frame);
  m_shown = shown;
  if (m_control.GetSheetNumber() != sheet) return;  // a handler has chosen another
  CGridInfo& now = m_control.GetInfo();
  std::tie(now.columns.paintedFirst, now.columns.last) = cols;
  std::tie(now.rows.paintedFirst, now.rows.last) = rows;
}

bool CGridPainter::Run(Pass& pass) {
  if (!Begin(pass) || !WalkRows(pass)) return false;
  m_hints.ClearHints();
  for (const CGridDrawHint::Range& range : m_requested) {
    m_hints.AddHint(range.startCol, range.startRow, range.endCol, range.endRow);
  }
  RememberShown();
  if (!FillBlank(pass)) return false;
  if (CDC* const memory = pass.surface.memory; memory != nullptr) {
    memory->SelectObject(static_cast<CFont*>(nullptr));
    const CGridInfo& info = m_control.GetInfo();
    pass.surface.screen->BitBlt(0, 0, info.columns.Extent(), info.rows.Extent(), memory, 0, 0, SRCCOPY);
  }
  return m_frame.Draw(*pass.surface.screen, pass.surface.memory != nullptr, m_shown.col, m_shown.row,
                      m_columns);
}

bool CGridPainter::Begin(Pass& pass) {
  CFont* const font = m_control.GetDefFont();
  pass.surface.screen->SelectObject(font);
  if (pass.surface.memory != nullptr) pass.surface.memory->SelectObject(font);
  m_control.OnScreenDCSetup(pass.surface.screen, pass.surface.memory, GRIDSECTION_GRID);
  if (!pass.alive) return false;
  CGridInfo& info = m_control.GetInfo();
  CGridColumns& columns = info.columns;
  columns.last = columns.Count();
  info.rows.last = info.rows.Count();
  WalkLines(m_columns, LineOrder(columns.Locked(), columns.First()), columns.Count(), columns.Extent(),
            [&columns](long col) { return columns.SizeOf(col); });
  m_hints.SpreadHints();
  return true;
}

bool CGridPainter::WalkRows(Pass& pass) {
  const LineOrder order(m_control.GetInfo().rows.Locked(), m_control.GetInfo().rows.First());
  for (long row = order.First(); row < m_control.GetInfo().rows.Count(); row = order.After(row)) {
    const long before = m_control.GetInfo().rows.Count();
    const int height = m_control.GetInfo().rows.SizeOf(row);
    if (height <= 0) continue;
    if (!DrawRow(pass, row, height)) return false;
    pass.y += height;
    CGridInfo& info = m_control.GetInfo();
    if (pass.y > info.rows.Extent()) {
      info.rows.last = row;
      pass.allRows = false;
      return true;
    }
    if (row + 1 >= before && !GrowRows(pass, row + 1, before)) return false;
  }
  m_control.GetInfo().rows.last = m_control.GetInfo().rows.Count();
  return true;
}

/// There may be more rows than were told of: the control learns that the next one is wanted, and where there
/// are more than `before` now, that one is drawn in the same pass.
bool CGridPainter::GrowRows(Pass& pass, long next, long before) {
  long wanted = next;
  m_control.VerifyCurrentRow(&wanted);
  if (!pass.alive) return false;
  CGridInfo& info = m_control.GetInfo();
  if (info.rows.Count() > before) {
    m_hints.AddHint(0, next, static_cast<int>(info.columns.Count()), next);
  }
  return true;
}

bool CGridPainter::DrawRow(Pass& pass, long row, int height) {
  pass.anyRow = true;
  m_control.GetInfo().columns.last = m_columns.last;
  m_row.Enter(row);
  if (!m_row.IsEmpty()) {
    m_hints.EnterRow(row);
    if (!DrawCells(pass, row, height)) return false;
    m_hints.LeaveRow();
  }
  m_frame.EnterRow(row, pass.y, height, m_columns, m_cells);
  return true;
}

/// Drawing a cell may hint the next one, as its text may go on there; those that are hinted before it are
/// asked for in their own right.
bool CGridPainter::DrawCells(Pass& pass, long row, int height) {
  const std::vector<ShownLine>& lines = m_columns.lines;
  const int first = static_cast<int>(m_control.GetInfo().columns.First());
  // A text may spill in from a column that is scrolled out of view.
  const bool spillsIn = m_row.Touches(static_cast<int>(m_control.GetInfo().columns.Locked()), first - 1);
  bool asked = !lines.empty() && m_row.IsInvalid(static_cast<int>(lines.front().index));
  bool handedOn = false;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const ShownLine& line = lines[i];
    const int col = static_cast<int>(line.index);
    const int next = i + 1 < lines.size() ? static_cast<int>(lines[i + 1].index) : -1;
    const bool nextAsked = next >= 0 && m_row.IsInvalid(next);
    const CGridCellPainter::Cell cell{col, row, CRect(line.start, pass.y, line.End(), pass.y + height),
                                      false};
    const bool visited = asked || handedOn || (spillsIn && col == first) || m_row.IsInvalid(col);
    handedOn = false;
    if (visited && !(asked ? DrawCell(pass, cell) : DrawNeighbour(pass, cell, &handedOn))) return false;
    asked = nextAsked;
  }
  return true;
}

/// A cell that only the drawing of its left neighbour hints. Nothing spills over a text or a joined block, so
/// what shows its own looks as it did and only hands the hint on: to types of the application's, as only they
/// could tell.
bool CGridPainter::DrawNeighbour(Pass& pass, CGridCellPainter::Cell cell, bool* handsOn) {
  *handsOn = false;
  const CGridCellPainter::Fetched fetched = m_cells.Fetch(cell, pass.alive);
  if (fetched != CGridCellPainter::Fetched::draw) return fetched != CGridCellPainter::Fetched::gone;
  if (m_requested.empty() && (cell.joined || m_cells.ShowsOwnText())) {
    *handsOn = m_control.HasOwnCellTypes() && m_cells.MayOverlap();
    return true;
  }
  return DrawFetched(pass, cell);
}

bool CGridPainter::DrawCell(Pass& pass, CGridCellPainter::Cell cell) {
  const CGridCellPainter::Fetched fetched = m_cells.Fetch(cell, pass.alive);
  if (fetched != CGridCellPainter::Fetched::draw) return fetched != CGridCellPainter::Fetched::gone;
  return DrawFetched(pass, cell);
}

bool CGridPainter::DrawFetched(Pass& pass, const CGridCellPainter::Cell& cell) {
  const CGridInfo& info = m_control.GetInfo();
  const bool current =
      cell.row == info.rows.current && (cell.col == info.columns.current || info.view.highlightRow != 0);
  int selected = 0;
  if (int block = 0;
      !current && info.selection != nullptr && info.selection->IsSelected(cell.col, cell.row, &block)) {
    selected = block + 1;
  }
  const int saved = pass.dc->SaveDC();
  const CRect pane = m_cells.PaneOf(cell);
  // Where a pixel is no whole number of dots, a line at a cell's edge would else reach into the next cell.
  pass.dc->IntersectClipRect(pane);
  m_frame.NoteDrawn(pane);
  m_cells.Draw(*pass.dc, cell, selected, current ? 1 : 0);
  if (!pass.alive) return false;
  pass.dc->RestoreDC(saved);
  DrawSeparators(*pass.dc, pane, cell.col, cell.row);
  return true;
}

/// The dot by which each line goes on belongs to the cell behind, which may be a joined block without a
/// separator there. A block that reaches out of what is locked has one where it is cut off.
void CGridPainter::DrawSeparators(CDC& dc, const CRect& rect, int col, long row) const {
  const CGridInfo& info = m_control.GetInfo();
  const long lockedCols = info.columns.Locked();
  const long lockedRows = info.rows.Locked();
  if (lockedCols <= 0 && lockedRows <= 0) return;
  const auto vertical = [&](int x) {
    dc.MoveTo(x, rect.top);
    dc.LineTo(x, rect.bottom + 1);
  };
  const auto horizontal = [&](int y) {
    dc.MoveTo(rect.left, y);
    dc.LineTo(rect.right + 1, y);
  };
  const int saved = dc.SaveDC();
  dc.IntersectClipRect(CRect(rect.left - 1, rect.top - 1, rect.right, rect.bottom));
  CPen light(PS_SOLID, 1, LineInk(GetSysColor(COLOR_WINDOW)));
  if (light.GetColor() == 0) {
    dc.SelectStockObject(StockObject::blackPen);
  } else {
    dc.SelectObject(&light);  // black lines would not be seen under a dark theme
  }
  if (lockedCols > 0 && col == info.columns.First()) vertical(rect.left - 1);
  if (col < lockedCols && rect.right == info.columns.LockedSize()) vertical(rect.right - 1);
  if (lockedRows > 0 && row == info.rows.First()) horizontal(rect.top - 1);
  if (row < lockedRows && rect.bottom == info.rows.LockedSize()) horizontal(rect.bottom - 1);
  dc.RestoreDC(saved);
}

void CGridPainter::RememberShown() {
  CGridInfo& info = m_control.GetInfo();
  if (IsViewStale()) {
    m_hints.ForgetUnlessShown([&rows = info.rows](const CGridDrawHint::Range& range) {
      return range.startRow < rows.Locked() || (range.endRow >= rows.First() && range.startRow <= rows.last);
    });
  }
  info.columns.paintedFirst = info.columns.First();
  info.rows.paintedFirst = info.rows.First();
  m_shown = {static_cast<int>(info.columns.current), info.rows.current};
}

bool CGridPainter::IsViewStale() const {
  const CGridInfo& info = m_control.GetInfo();
  return info.columns.paintedFirst != info.columns.First() || info.rows.paintedFirst != info.rows.First();
}

bool CGridPainter::FillBlank(Pass& pass) {
  const CGridInfo& info = m_control.GetInfo();
  const bool right = pass.anyRow && m_columns.end < info.columns.Extent();
  const bool below = pass.allRows && pass.y < info.rows.Extent();
  if (!right && !below) return true;
  const CBrush brush(m_control.OnGetDefBackColor(GRIDSECTION_GRID));
  if (!pass.alive) return false;
  const CRect& client = pass.surface.client;
  if (right) pass.dc->FillRect(CRect(m_columns.end, client.top, client.right, client.bottom), &brush);
  if (below) pass.dc->FillRect(CRect(client.left, pass.y, client.right, client.bottom), &brush);
  return true;
}

void CGridPainter::HintCurrent(int col, long row) {
  if (col < 0 || row < 0) return;
  const CGridInfo& info = m_control.GetInfo();
  if (info.view.highlightRow != 0) {
    m_hints.AddHint(0, row, static_cast<int>(info.columns.Count()), row);
  } else {
    m_hints.AddHint(col, row);
  }
}

void CGridPainter::HintAll() {
  const CGridInfo& info = m_control.GetInfo();
  m_hints.AddHint(0, 0, static_cast<int>(info.columns.Count()), info.rows.Count());
}

std::vector<CGridDrawHint::Range> CGridPainter::TakeRequested() {
  return std::exchange(m_requested, {});
}

}  // namespace coregui
