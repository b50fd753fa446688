#pragma once

#include <QWidget>
#include <utility>

#include "platform/CWnd.h"
#include "platform/WindowState.h"

namespace coregui::test {

inline QWidget* WidgetOf(const CWnd& window) {
  return static_cast<QWidget*>(window.State().native->Widget());
}

/// A shown window for controls that logs what they tell it: "id:code " in hexadecimal for WM_COMMAND, "h:code
/// " and "v:code " for scrolling.
class ControlHost : public CWnd {
 public:
  ControlHost() {
    Create(L"", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 400, 300), nullptr, 0);
    SetActiveWindow();
  }
  CString TakeLog() { return std::exchange(m_log, CString()); }

  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_COMMAND) m_log.AppendFormat(L"%x:%x ", LOWORD(wParam), HIWORD(wParam));
    if (message == WM_HSCROLL || message == WM_VSCROLL) {
      m_log.AppendFormat(L"%c:%d ", message == WM_HSCROLL ? L'h' : L'v', LOWORD(wParam));
      OnScroll(LOWORD(wParam), FromHandle(reinterpret_cast<HWND>(lParam)));
    }
    return CWnd::WindowProc(message, wParam, lParam);
  }

 protected:
  /// What the host does when a scroll bar asks.
  virtual void OnScroll(int /*code*/, CWnd* /*bar*/) {}

 private:
  CString m_log;
};

}  // namespace coregui::test
