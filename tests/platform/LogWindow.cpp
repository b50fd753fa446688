#include "tests/platform/LogWindow.h"

namespace coregui::test {

bool LogWindow::LogInput(UINT message, WPARAM wParam, LPARAM lParam) {
  const CPoint at = CPoint::FromLParam(lParam);
  if (message >= WM_LBUTTONDOWN && message <= WM_MBUTTONDBLCLK) {
    m_log.AppendFormat(L"%x %u %d,%d;", message, static_cast<UINT>(wParam), at.x, at.y);
    return true;
  }
  switch (message) {
    case WM_MOUSEMOVE:
      m_log.AppendFormat(L"200 %u %d,%d;", static_cast<UINT>(wParam), at.x, at.y);
      return true;
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR:
    case WM_SYSKEYDOWN:
      m_log.AppendFormat(L"%x %u;", message, static_cast<UINT>(wParam));
      return true;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
      m_log.AppendFormat(L"%ls %d %d,%d;", message == WM_MOUSEWHEEL ? L"wheel" : L"hwheel",
                         static_cast<short>(HIWORD(wParam)), at.x, at.y);
      return true;
    case WM_COREGUI_PAN:
      m_log.AppendFormat(L"pan %d,%d;", at.x, at.y);
      return true;
    case WM_COREGUI_PINCH:
      m_log.AppendFormat(L"pinch %u %d,%d;", static_cast<UINT>(wParam), at.x, at.y);
      return true;
    default:
      return false;
  }
}

void LogWindow::LogState(UINT message, WPARAM wParam, LPARAM lParam) {
  const CPoint pair = CPoint::FromLParam(lParam);
  switch (message) {
    case WM_MOUSELEAVE:
      m_log += L"leave;";
      break;
    case WM_APP:
      m_log.AppendFormat(L"app %u;", static_cast<UINT>(wParam));
      break;
    case WM_SETCURSOR:
      if (logsCursor) m_log.AppendFormat(L"cursor %d,%d;", pair.x, pair.y);
      break;
    case WM_CONTEXTMENU:
      if (logsMenu) m_log.AppendFormat(L"menu %d,%d;", pair.x, pair.y);
      break;
    case WM_CREATE:
    case WM_DESTROY:
    case WM_NCDESTROY:
    case WM_SIZE:
    case WM_MOVE:
    case WM_SHOWWINDOW:
    case WM_ENABLE:
      if (logsState)
        m_log.AppendFormat(L"%x %u %d,%d;", message, static_cast<UINT>(wParam),
                           message == WM_CREATE ? 0 : pair.x, message == WM_CREATE ? 0 : pair.y);
      break;
    default:
      break;
  }
}

void LogWindow::LogFocus(UINT message, WPARAM wParam) {
  const auto* other = dynamic_cast<LogWindow*>(FromHandle(reinterpret_cast<HWND>(wParam)));
  *journal += name + (message == WM_SETFOCUS ? " gets from " : " gives to ") +
              (other == nullptr ? "-" : other->name) + ";";
}

LRESULT LogWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (journal != nullptr && (message == WM_SETFOCUS || message == WM_KILLFOCUS)) LogFocus(message, wParam);
  if (timer && message == WM_TIMER) timer(static_cast<UINT>(wParam));
  if (captureLost && message == WM_CAPTURECHANGED) captureLost(reinterpret_cast<HWND>(lParam));
  const bool input = LogInput(message, wParam, lParam);
  LogState(message, wParam, lParam);
  if (onMessage) {
    // A copy: the call may destroy this object.
    const coregui::WindowRef self(this);
    const std::function<void(UINT)> call = onMessage;
    call(message);
    if (!self) return 0;
  }
  if (activate && message == WM_MOUSEACTIVATE) return activate(wParam, lParam);
  if (message == WM_COREGUI_WANTPAN) return wantsPan ? 1 : 0;
  return input && !passes ? 1 : CWnd::WindowProc(message, wParam, lParam);
}

}  // namespace coregui::test
