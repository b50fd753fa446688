#include "platform/CToolTipCtrl.h"

#include <algorithm>
#include <utility>

#include "platform/CDC.h"
#include "platform/System.h"
#include "platform/Toolkit.h"
#include "platform/WindowState.h"

using coregui::Tip;
using coregui::TipClock;
using coregui::WindowRef;

namespace {

constexpr UINT kTimer = 1;
constexpr int kPadding = 3;
constexpr int kBelowPointer = 20;

UINT TextFormat(int widest) {
  return DT_LEFT | DT_NOPREFIX | DT_EXPANDTABS | (widest > 0 ? DT_WORDBREAK : 0U);
}

}  // namespace

CToolTipCtrl::CToolTipCtrl() = default;

CToolTipCtrl::~CToolTipCtrl() {
  DestroyWindow();
}

BOOL CToolTipCtrl::CreateTips(CWnd* owner) {
  return CreateEx(WS_EX_NOACTIVATE, L"", L"", WS_POPUP | WS_DISABLED, CRect(0, 0, 1, 1), owner, 0);
}

const coregui::MessageTable& CToolTipCtrl::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_TIMER>(&CToolTipCtrl::HandleTimer)
                                                 .On<WM_PAINT>(&CToolTipCtrl::HandlePaint);
  return table;
}

void CToolTipCtrl::AddTool(CWnd* window, const wchar_t* text, const RECT* rect) {
  const WindowRef tool(window);
  const bool whole = rect == nullptr;
  const CRect part = whole ? CRect() : CRect(*rect);
  AddTool(window, [tool, whole, part, label = CString(text)](CPoint client, bool /*wantText*/, Tip& tip) {
    const CWnd* alive = tool.Get();
    tip.area = alive != nullptr && whole ? alive->GetClientRectangle() : part;
    tip.text = label;
    return tip.area.PtInRect(client);
  });
}

void CToolTipCtrl::AddTool(CWnd* window, coregui::TipFinder finder) {
  m_tools.push_back({WindowRef(window), std::move(finder)});
}

void CToolTipCtrl::RemoveTools(const CWnd* window) {
  std::erase_if(m_tools, [window](const Tool& tool) { return !tool.window || tool.window.Get() == window; });
  if (m_over.Get() == window) {
    m_over = WindowRef();
    Obey(m_clock.PointerAway());
  }
}

void CToolTipCtrl::RelayEvent(const MSG& message) {
  CWnd* window = FromHandle(message.hwnd);
  const UINT number = message.message;
  if (window == nullptr || !m_active) {
    return;
  }
  if (number == WM_MOUSEMOVE) {
    Follow(*window, CPoint::FromLParam(message.lParam));
  } else if (number == WM_MOUSELEAVE) {
    if (m_over.Get() == window) Obey(m_clock.PointerAway());
  } else if (number == WM_KEYDOWN || number == WM_SYSKEYDOWN ||
             (number > WM_MOUSEMOVE && number <= WM_MOUSEHWHEEL)) {
    Obey(m_clock.Cancel());
  }
}

bool CToolTipCtrl::Find(CWnd& window, CPoint client, bool wantText, Tip& tip) const {
  return std::any_of(m_tools.begin(), m_tools.end(), [&](const Tool& tool) {
    return tool.window.Get() == &window && tool.finder(client, wantText, tip);
  });
}

void CToolTipCtrl::Follow(CWnd& window, CPoint client) {
  Tip tip;
  if (m_over.Get() != &window) {
    Obey(m_clock.PointerAway());
    m_over = WindowRef(&window);
  }
  m_pointer = client;
  if (!Find(window, client, false, tip)) {
    Obey(m_clock.PointerAway());
    return;
  }
  window.TrackMouseLeave();
  Obey(m_clock.PointerAt(tip.area));
}

void CToolTipCtrl::Obey(TipClock::Action action) {
  if (action == TipClock::Action::hide) {
    HideTip();
  } else if (action == TipClock::Action::show) {
    ShowFound();
  }
  if (m_clock.Timer() == 0) {
    KillTimer(kTimer);
  } else {
    SetTimer(kTimer, m_clock.Timer());
  }
}

void CToolTipCtrl::HandleTimer(UINT /*id*/) {
  Obey(m_clock.Elapsed());
}

void CToolTipCtrl::ShowFound() {
  CWnd* window = m_over.Get();
  Tip tip;
  if (window == nullptr || !Find(*window, m_pointer, true, tip) || !m_over) {
    return;
  }
  POINT screen = m_pointer;
  window->ClientToScreen(&screen);
  ShowTip(tip.text, screen);
}

void CToolTipCtrl::Activate(bool active) {
  m_active = active;
  if (!active) {
    Obey(m_clock.PointerAway());
  }
}

CSize CToolTipCtrl::TextSize(int widest) {
  CClientDC dc(this);
  const CString text = GetWindowTextString();
  dc.SelectObject(GetFont());
  CRect rect(0, 0, widest, 0);
  dc.DrawText(text, text.GetLength(), &rect, TextFormat(m_widest) | DT_CALCRECT);
  return rect.Size();
}

void CToolTipCtrl::ShowTip(const wchar_t* text, CPoint screen) {
  if (!HasWindow() || text == nullptr || *text == L'\0') {
    HideTip();
    return;
  }
  SetWindowText(text);
  const CRect room = coregui::ScreenRect();
  const CSize inner = TextSize(m_widest > 0 ? std::min<int>(m_widest, room.Width() - 2 * kPadding) : 0);
  const CSize size(inner.cx + 2 * kPadding, inner.cy + 2 * kPadding);
  const int x = std::max<int>(room.left, std::min<int>(screen.x, room.right - size.cx));
  const bool below = screen.y + kBelowPointer + size.cy <= room.bottom;
  const int y = below ? screen.y + kBelowPointer : screen.y - size.cy - kPadding;
  MoveWindow(x, y, size.cx, size.cy);
  Invalidate();
  ShowWindow(SW_SHOWNOACTIVATE);
  UpdateWindow();
}

void CToolTipCtrl::HideTip() {
  ShowWindow(SW_HIDE);
}

void CToolTipCtrl::HandlePaint() {
  CPaintDC dc(this);
  CRect rect = GetClientRectangle();
  dc.FillSolidRect(rect, GetSysColor(COLOR_INFOBK));
  dc.FrameRect(rect, GetSysColor(COLOR_INFOTEXT));
  rect.DeflateRect(kPadding, kPadding);
  dc.SelectObject(GetFont());
  dc.SetBkMode(TRANSPARENT);
  dc.SetTextColor(GetSysColor(COLOR_INFOTEXT));
  const CString text = GetWindowTextString();
  dc.DrawText(text, text.GetLength(), &rect, TextFormat(m_widest));
}
