#pragma once

#include <gtest/gtest.h>

#include <utility>

#include "platform/CEdit.h"

namespace coregui::test {

/// A shown window for controls, which notes what they tell it: "id:code " for WM_COMMAND and "scroll " for
/// WM_HSCROLL, in decimal.
class ControlWindow : public CWnd {
 public:
  ControlWindow() {
    Create(L"", L"controls", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 400, 300), nullptr, 0);
    SetActiveWindow();
  }
  CString TakeLog() { return std::exchange(m_log, CString()); }

  CWnd* destroyOnChange = nullptr;  ///< goes as soon as it tells of a change

  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    const bool changed = message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE;
    if (changed && destroyOnChange != nullptr) destroyOnChange->DestroyWindow();
    if (message == WM_COMMAND) m_log.AppendFormat(L"%d:%d ", LOWORD(wParam), HIWORD(wParam));
    if (message == WM_HSCROLL) m_log += L"scroll ";
    return CWnd::WindowProc(message, wParam, lParam);
  }

 private:
  CString m_log;
};

inline constexpr DWORD kChild = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
inline CRect Place(int row) {
  return {10, 10 + 35 * row, 210, 38 + 35 * row};
}

/// An edit with the focus, control 7, beside a plain one.
template <class Edit>
struct EditTest : testing::Test {
  EditTest() {
    edit.Create(kChild, Place(0), &host, 7);
    other.Create(kChild, Place(1), &host, 8);
    edit.SetFocus();
  }
  ControlWindow host;
  Edit edit;
  CEdit other;
};

}  // namespace coregui::test
