#include "grid/display/CGridTips.h"

#include <limits>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "platform/CToolTipCtrl.h"
#include "platform/WindowRef.h"

namespace coregui {
namespace {

constexpr int kNoCol = std::numeric_limits<int>::min();  // -1 is a heading column
constexpr long kNoRow = std::numeric_limits<long>::min();

}  // namespace

CGridTips::CGridTips(CGridCtrl& control, CWnd& window, int section)
    : m_control(control), m_window(window), m_section(section), m_col(kNoCol), m_row(kNoRow) {}

CGridTips::~CGridTips() = default;

bool CGridTips::CellAt(CPoint point, int* col, long* row) const {
  RECT rect;
  return m_control.GetSectionCellFromPoint(m_section, point.x, point.y, col, row, &rect) == 0;
}

bool CGridTips::HitTest(int col, long row) {
  if (col == m_col && row == m_row) return true;
  Cancel();
  m_col = col;
  m_row = row;
  return false;
}

void CGridTips::PointerAt(CPoint point) {
  if (m_control.GetUseHints() == 0) return;
  m_point = point;
  int col = 0;
  long row = 0;
  if (!CellAt(point, &col, &row)) {
    Cancel();
    return;
  }
  const bool same = HitTest(col, row);
  if (!same || !m_shown) {
    m_window.TrackMouseLeave();
    m_window.SetTimer(kTimer, kInitialDelay);
  }
}

void CGridTips::Cancel() {
  m_window.KillTimer(kTimer);
  m_col = kNoCol;
  m_row = kNoRow;
  m_shown = false;
  m_text.Empty();
  if (m_tip != nullptr) m_tip->HideTip();
}

void CGridTips::TimeElapsed() {
  m_window.KillTimer(kTimer);
  if (m_shown) {  // long enough
    Cancel();
    return;
  }
  const WindowRef alive(&m_window);
  int col = 0;
  long row = 0;
  if (!CellAt(m_point, &col, &row) || !HitTest(col, row) || !AskText(col, row) || !alive) return;
  m_window.SetTimer(kTimer, kShownFor);
  Show();
}

void CGridTips::Show() {
  if (!m_window.HasWindow()) return;
  if (m_tip == nullptr) {
    m_tip = std::make_unique<CToolTipCtrl>();
    m_tip->CreateTips(&m_window);
    m_tip->SetMaxTipWidth(kWidest);
  }
  POINT screen = m_point;
  m_window.ClientToScreen(&screen);
  m_tip->ShowTip(m_text, screen);
}

bool CGridTips::AskText(int col, long row) {
  const WindowRef alive(&m_window);
  CString text;
  const bool wanted = m_control.OnHint(col, row, m_section, &text) == 1;
  if (!alive || !wanted) return false;
  m_text = text;
  m_shown = true;
  return true;
}

}  // namespace coregui
