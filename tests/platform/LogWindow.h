#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/CWnd.h"
#include "platform/WindowRef.h"
#include "platform/qt/interop.h"

namespace coregui::test {

using coregui::WidgetOf;

/// A window that writes down what reaches it.
class LogWindow : public CWnd {
 public:
  LogWindow() = default;
  ~LogWindow() override { DestroyWindow(); }

  BOOL Open(CRect rect = CRect(0, 0, 200, 100)) {
    return Create(L"", L"log", WS_OVERLAPPEDWINDOW | WS_VISIBLE, rect, nullptr, 0);
  }
  BOOL OpenIn(CWnd& parent, CRect rect, UINT id = 0) {
    return Create(L"", L"", WS_CHILD | WS_VISIBLE, rect, &parent, id);
  }
  std::string TakeLog() { return std::exchange(m_log, CString()).ToUtf8(); }
  void Add(const CString& line) { m_log += line; }

  bool passes = false;  ///< calls the default for mouse buttons and keys too
  bool wantsPan = false;
  bool logsCursor = false;
  bool logsMenu = false;
  bool logsState = false;
  std::function<void(UINT message)> onMessage;
  std::function<bool(const MSG& message)> preTranslate;
  std::function<void(UINT id)> timer;
  std::function<int(WPARAM wParam, LPARAM lParam)> activate;  ///< answers WM_MOUSEACTIVATE
  std::function<void(HWND to)> captureLost;
  std::string name;                ///< in the journal of focus changes
  std::string* journal = nullptr;  ///< borrowed

  BOOL PreTranslateMessage(MSG* message) override {
    return preTranslate && preTranslate(*message) ? TRUE : FALSE;
  }
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool LogInput(UINT message, WPARAM wParam, LPARAM lParam);
  void LogFocus(UINT message, WPARAM wParam);
  void LogState(UINT message, WPARAM wParam, LPARAM lParam);

  CString m_log;
};

}  // namespace coregui::test
