#include "grid/display/CGridSizer.h"

#include <algorithm>

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "grid/display/LineWalk.h"
#include "grid/display/SizingEdges.h"
#include "platform/CDC.h"
#include "platform/WindowRef.h"

namespace coregui {
namespace {

constexpr int kSizingOff = 0;  // of the user-sizing mode
constexpr int kSizingOutline = 1;
constexpr long kMostFitted = 100'000;  // rows that are measured without a wait that a person notices

}  // namespace

const CGridAxis& CGridSizer::Axis() const {
  const CGridInfo& info = m_control.GetInfo();
  return m_top ? static_cast<const CGridAxis&>(info.columns) : info.rows;
}

const CGridAxis& CGridSizer::AcrossAxis() const {
  const CGridInfo& info = m_control.GetInfo();
  return m_top ? static_cast<const CGridAxis&>(info.rows) : info.columns;
}

// --- Finding the edge

bool CGridSizer::Track(CPoint point) {
  m_what = What::nothing;
  if (m_control.GetUserSizingMode() == kSizingOff) return false;
  const WindowRef alive(&m_window);
  if (TrackLine(m_top ? point.x : point.y)) return true;
  return alive && TrackHeadingLine(m_top ? point.y : point.x);
}

bool CGridSizer::TrackLine(int position) {
  const CGridAxis& axis = Axis();
  const LineOrder order(axis.Locked(), axis.First());
  EdgeFinder finder(position);
  for (long line = order.First(); line < axis.Count(); line = order.After(line)) {
    if (!finder.Next(line, axis.SizeOf(line))) break;
    if (!finder.IsFound() && finder.Edge() > axis.Extent()) break;
  }
  if (!finder.IsFound()) return false;
  const long index = finder.Line();
  const WindowRef alive(&m_window);
  const int allowed = m_top ? m_control.OnCanSizeCol(static_cast<int>(index)) : m_control.OnCanSizeRow(index);
  if (!alive || allowed == 0) return false;
  m_what = What::line;
  m_index = index;
  m_start = position;
  m_sizeAtStart = LineSize();
  return true;
}

bool CGridSizer::TrackHeadingLine(int position) {
  const CGridHeadings& headings = m_control.GetInfo().headings;
  const std::vector<int>& sizes = m_top ? headings.topRowHeights : headings.sideColWidths;
  int edge = m_top ? headings.topHeight : headings.sideWidth;
  std::size_t index = 0;
  while (index < sizes.size() && !IsOnEdge(position, edge)) edge -= sizes[index++];
  if (index >= sizes.size()) return false;
  const int size = sizes[index];
  const int total = m_top ? headings.topHeight : headings.sideWidth;
  const WindowRef alive(&m_window);
  const int allowed = m_top ? m_control.OnCanSizeTopHdg() : m_control.OnCanSizeSideHdg();
  if (!alive || allowed == 0) return false;
  m_what = What::headingLine;
  m_index = static_cast<long>(index);
  m_start = position;
  m_sizeAtStart = size;
  m_totalAtStart = total;
  return true;
}

// --- Dragging it

void CGridSizer::Drag(CPoint point) {
  if (!m_sizing) return;
  if (m_what == What::line) {
    DragLine(m_top ? point.x : point.y);
  } else {
    DragHeadingLine(m_top ? point.y : point.x);
  }
}

int CGridSizer::LineSize() const {
  return Axis().SizeOf(m_index);
}

void CGridSizer::SetLineSize(int size) {
  if (m_top) {
    m_control.SetColWidth(static_cast<int>(m_index), size);
  } else {
    m_control.SetRowHeight(m_index, size);
  }
}

/// The rows in view of a column that is sized, and the other way round.
std::vector<long> CGridSizer::LinesAcross() const {
  const CGridAxis& across = AcrossAxis();
  LineWalk walk;
  WalkLines(walk, LineOrder(across.Locked(), across.First()), across.Count(), across.Extent(),
            [&across](long line) { return across.SizeOf(line); });
  std::vector<long> lines;
  for (const ShownLine& line : walk.lines) lines.push_back(line.index);
  return lines;
}

void CGridSizer::DragLine(int position) {
  const WindowRef alive(&m_window);
  position = std::max(position, m_start - m_sizeAtStart);
  int size = DraggedSize(m_sizeAtStart, m_start, position);
  for (const long line : LinesAcross()) {
    const int col = static_cast<int>(m_top ? m_index : line);
    const long row = m_top ? line : m_index;
    CGridCellDelegate* const type = m_control.GetCellDelegate(col, row);
    m_top ? type->OnChangingCellWidth(col, row, &size) : type->OnChangingCellHeight(col, row, &size);
    if (!alive) return;
  }
  if (m_top) {
    m_control.OnColSizing(static_cast<int>(m_index), &size);
  } else {
    m_control.OnRowSizing(m_index, &size);
  }
  if (!alive || !m_sizing) return;  // who was told may have taken the mouse
  const bool outline = m_control.GetUserSizingMode() == kSizingOutline;
  const int update = m_control.GetUpdate();
  if (outline) m_control.EnableUpdate(0);  // only the heading follows
  SetLineSize(std::max(size, 0));
  if (!alive) return;
  m_control.EnableUpdate(update);
  if (outline) {
    m_window.Invalidate(FALSE);
    m_window.UpdateWindow();
    if (alive) DrawOutline(position);
  } else {
    m_control.RedrawAll();
    ShowAtOnce(alive);
  }
}

/// A drag is followed without waiting for the events behind it.
void CGridSizer::ShowAtOnce(const WindowRef& alive) {
  for (CWnd* const part : {m_control.GetGridWnd(), m_control.GetTopHdgWnd(), m_control.GetSideHdgWnd()}) {
    if (alive && part != nullptr && part->HasWindow()) part->UpdateWindow();
  }
}

/// Moves the outline in the body; a negative position only removes it.
void CGridSizer::DrawOutline(int position) {
  CWnd* const body = m_control.GetGridWnd();
  if (body == nullptr || !body->HasWindow()) return;
  CClientDC dc(body);
  const CRect client = body->GetClientRectangle();
  const auto draw = [&](int at) {
    dc.DrawFocusRect(m_top ? CRect(at - 1, 0, at + 1, client.bottom)
                           : CRect(0, at - 1, client.right, at + 1));
  };
  if (m_outline >= 0) draw(m_outline);
  m_outline = position;
  if (m_outline >= 0) draw(m_outline);
}

void CGridSizer::DragHeadingLine(int position) {
  const WindowRef alive(&m_window);
  int total = DraggedSize(m_totalAtStart, m_start, position);
  CGridHeadings& headings = m_control.GetInfo().headings;
  std::vector<int>& sizes = m_top ? headings.topRowHeights : headings.sideColWidths;
  if (static_cast<std::size_t>(m_index) >= sizes.size()) return;
  sizes[static_cast<std::size_t>(m_index)] = DraggedSize(m_sizeAtStart, m_start, position);
  const int applied = m_top ? m_control.OnTopHdgSizing(&total) : m_control.OnSideHdgSizing(&total);
  if (!alive || !m_sizing || applied != 1) return;
  m_top ? m_control.SetTH_Height(total) : m_control.SetSH_Width(total);
  if (alive) m_control.AdjustComponentSizes();
}

// --- Its end

void CGridSizer::End() {
  if (!m_sizing) return;
  const WindowRef alive(&m_window);
  m_sizing = false;
  if (m_what == What::line) {
    DrawOutline(-1);
    EndLine();
  } else {
    int total = m_top ? m_control.GetTH_Height() : m_control.GetSH_Width();
    m_top ? m_control.OnTopHdgSized(&total) : m_control.OnSideHdgSized(&total);
    if (alive && total != (m_top ? m_control.GetTH_Height() : m_control.GetSH_Width())) {
      m_top ? m_control.SetTH_Height(total) : m_control.SetSH_Width(total);
    }
  }
  if (!alive) return;
  m_what = What::nothing;
  m_control.AdjustComponentSizes();
  if (alive) m_control.RedrawAll();
}

void CGridSizer::EndLine() {
  const WindowRef alive(&m_window);
  int size = LineSize();
  TellChanged(&size);
  if (alive && size != LineSize()) SetLineSize(std::max(size, 0));
}

void CGridSizer::TellChanged(int* size) {
  const WindowRef alive(&m_window);
  for (const long line : LinesAcross()) {
    const int col = static_cast<int>(m_top ? m_index : line);
    const long row = m_top ? line : m_index;
    CGridCellDelegate* const type = m_control.GetCellDelegate(col, row);
    m_top ? type->OnChangedCellWidth(col, row, size) : type->OnChangedCellHeight(col, row, size);
    if (!alive) return;
  }
  if (m_top) {
    m_control.OnColSized(static_cast<int>(m_index), size);
  } else {
    m_control.OnRowSized(m_index, size);
  }
}

bool CGridSizer::FitToContents() {
  if (!m_top || m_what != What::line) return false;
  const WindowRef alive(&m_window);
  m_sizing = false;
  const auto col = static_cast<int>(m_index);
  m_control.BestFit(col, col, m_control.GetNumberRows() <= kMostFitted ? -1 : kMostFitted);
  if (alive) EndLine();
  if (alive) m_control.RedrawAll();
  return true;
}

}  // namespace coregui
