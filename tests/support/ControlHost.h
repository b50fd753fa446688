#pragma once

#include <gtest/gtest.h>

#include <utility>

#include "platform/CComboBox.h"
#include "platform/CEdit.h"
#include "platform/qt/interop.h"

namespace coregui::test {

using coregui::WidgetOf;

inline constexpr DWORD kChild = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
inline CRect PlaceAt(int row) {
  return {10, 10 + 35 * row, 210, 38 + 35 * row};
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

  bool destroys = false;  ///< a control that tells of anything but the focus

  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    const bool scrolls = message == WM_HSCROLL || message == WM_VSCROLL;
    if (!scrolls && message != WM_COMMAND) return CWnd::WindowProc(message, wParam, lParam);
    CWnd* const control = FromHandle(reinterpret_cast<HWND>(lParam));
    const UINT code = HIWORD(wParam);
    const bool focus = !scrolls && (code == EN_SETFOCUS || code == CBN_SETFOCUS);
    if (destroys && !focus && control != nullptr) control->DestroyWindow();
    if (!scrolls) m_log.AppendFormat(L"%x:%x ", LOWORD(wParam), code);
    if (scrolls) m_log.AppendFormat(L"%c:%d ", message == WM_HSCROLL ? L'h' : L'v', LOWORD(wParam));
    if (scrolls) OnScroll(LOWORD(wParam), control);
    return CWnd::WindowProc(message, wParam, lParam);
  }

 protected:
  /// What the host does when a scroll bar asks.
  virtual void OnScroll(int /*code*/, CWnd* /*bar*/) {}

 private:
  CString m_log;
};

/// An edit with the focus, control 7, beside a plain one, control 8.
template <class Edit>
struct EditTest : testing::Test {
  EditTest() {
    Start();
    other.Create(kChild, PlaceAt(1), &host, 8);
  }
  /// Makes the edit anew.
  void Start(DWORD style = 0) {
    edit.DestroyWindow();
    edit.Create(kChild | style, PlaceAt(0), &host, 7);
    edit.SetFocus();
    host.TakeLog();
  }
  ControlHost host;
  Edit edit;
  CEdit other;
};

}  // namespace coregui::test
