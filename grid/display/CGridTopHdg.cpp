#include "grid/display/CGridTopHdg.h"

#include <cstdlib>
#include <utility>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

namespace {

constexpr UINT kScrollTimer = 0x710A;
constexpr UINT kScrollEvery = 100;  // milliseconds
constexpr int kViewBack = 0;        // move codes of the control
constexpr int kViewForward = 1;

}  // namespace

void CGridTopHdg::NotifyLClicked(Click& click, int updn) {
  m_control->OnTH_LClicked(click.col, click.row, updn, &click.rect, &click.point, click.processed);
}

void CGridTopHdg::NotifyRClicked(Click& click, int updn) {
  m_control->OnTH_RClicked(click.col, click.row, updn, &click.rect, &click.point, click.processed);
}

void CGridTopHdg::NotifyDClicked(Click& click) {
  m_control->OnTH_DClicked(click.col, click.row, &click.rect, &click.point, click.processed);
}

void CGridTopHdg::PressedOn(const Click& click, CPoint point) {
  if (m_control->GetColSwapping() == 0 || click.col < 0) return;
  const coregui::WindowRef alive(this);
  const int allowed = m_control->OnColSwapStart(click.col);
  if (!alive || allowed == 0) return;
  m_source = click.col;
  m_pressed = point;
  m_dragged = false;
}

/// Whether the pointer is further from the press than a hand trembles.
bool CGridTopHdg::IsDrag(CPoint point) const {
  return std::abs(point.x - m_pressed.x) > GetSystemMetrics(SM_CXDRAG);
}

void CGridTopHdg::DraggedTo(CPoint point) {
  if (m_source < 0) return;
  KillTimer(kScrollTimer);
  m_scrollCode = -1;
  if (!m_dragged && IsDrag(point)) {
    m_dragged = true;
    m_painter.MarkLine(m_source);
    Invalidate(FALSE);
  }
  if (m_dragged && m_painter.MarkDrop(DropColumnAt(point.x))) Invalidate(FALSE);
  if (point.x < 0) m_scrollCode = kViewBack;
  if (point.x >= m_control->GetInfo().columns.Extent()) m_scrollCode = kViewForward;
  if (m_scrollCode >= 0) SetTimer(kScrollTimer, kScrollEvery);
}

void CGridTopHdg::TimerElapsed(UINT id) {
  if (id == kScrollTimer && m_scrollCode >= 0) m_control->MoveLeftCol(m_scrollCode);
}

void CGridTopHdg::ReleasedAt(CPoint point) {
  const int source = m_source;
  const bool dragged = m_dragged || IsDrag(point);
  PressLost();
  if (source >= 0 && dragged) Swap(source, DropColumnAt(point.x));
}

void CGridTopHdg::PressLost() {
  KillTimer(kScrollTimer);
  m_source = -1;
  m_scrollCode = -1;
  m_painter.MarkLine(-1);
  m_painter.MarkDrop(-1);
  if (std::exchange(m_dragged, false)) Invalidate(FALSE);
}

/// The column before which a column dropped at x comes to stand: the edge nearest to x.
int CGridTopHdg::DropColumnAt(int x) const {
  const coregui::CGridColumns& columns = m_control->GetInfo().columns;
  const long under = columns.IndexAtPosition(x);
  if (under < 0) return x < 0 ? static_cast<int>(columns.First()) : static_cast<int>(columns.Count());
  const bool right = x - columns.PositionOf(under) >= columns.SizeOf(under) / 2;
  return static_cast<int>(right ? under + 1 : under);
}

void CGridTopHdg::Swap(int source, int drop) {
  const coregui::WindowRef alive(this);
  const int target = source < drop ? drop - 1 : drop;
  if (target == source) return;
  const int allowed = m_control->OnCanColSwap(source, target);
  if (!alive || allowed == 0) return;
  m_control->MoveColPosition(source, drop, 1);
  if (!alive) return;
  m_control->OnColSwapped(source, target);
  if (alive) m_control->RedrawAll();
}
