#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <utility>

#include "platform/CWinApp.h"
#include "platform/CWnd.h"
#include "platform/WindowRef.h"
#include "platform/qt/interop.h"

namespace coregui::test {

using coregui::WidgetOf;

inline const std::set<UINT> kStates{WM_CREATE, WM_DESTROY,    WM_NCDESTROY, WM_SIZE,
                                    WM_MOVE,   WM_SHOWWINDOW, WM_ENABLE};

/// A window that writes down what reaches it: input always, each message as its number in hexadecimal or a
/// name, and what it carries.
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

  bool passes = false;  ///< calls the default for mouse buttons and keys too
  bool wantsPan = false;
  std::set<UINT> logs;  ///< what is written down besides input: kStates, WM_SETCURSOR, WM_CONTEXTMENU
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
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (journal != nullptr && (message == WM_SETFOCUS || message == WM_KILLFOCUS)) LogFocus(message, wParam);
    if (timer && message == WM_TIMER) timer(static_cast<UINT>(wParam));
    if (captureLost && message == WM_CAPTURECHANGED) captureLost(reinterpret_cast<HWND>(lParam));
    const bool input = Log(message, static_cast<UINT>(wParam), CPoint::FromLParam(lParam));
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

 private:
  /// True for input.
  bool Log(UINT message, UINT wParam, CPoint at) {
    static const std::set<UINT> keys{WM_KEYDOWN, WM_KEYUP, WM_CHAR, WM_SYSKEYDOWN};
    const bool mouse = message >= WM_MOUSEMOVE && message <= WM_MBUTTONDBLCLK;
    const bool wheel = message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL;
    if (message == WM_CREATE) at = CPoint();
    if (message == WM_APP) m_log.AppendFormat(L"app %u;", wParam);
    if (message == WM_MOUSELEAVE) m_log += L"leave;";
    if (message == WM_COREGUI_PAN) m_log.AppendFormat(L"pan %d,%d;", at.x, at.y);
    if (message == WM_COREGUI_PINCH) m_log.AppendFormat(L"pinch %u %d,%d;", wParam, at.x, at.y);
    if (keys.contains(message)) m_log.AppendFormat(L"%x %u;", message, wParam);
    if (mouse || (kStates.contains(message) && logs.contains(message)))
      m_log.AppendFormat(L"%x %u %d,%d;", message, wParam, at.x, at.y);
    if (wheel)
      m_log.AppendFormat(L"%swheel %d %d,%d;", message == WM_MOUSEHWHEEL ? L"h" : L"",
                         static_cast<short>(HIWORD(wParam)), at.x, at.y);
    if (logs.contains(message) && !kStates.contains(message))
      m_log.AppendFormat(L"%s %d,%d;", message == WM_SETCURSOR ? L"cursor" : L"menu", at.x, at.y);
    return mouse || wheel || keys.contains(message) || message == WM_COREGUI_PAN ||
           message == WM_COREGUI_PINCH;
  }
  void LogFocus(UINT message, WPARAM wParam) {
    const auto* other = dynamic_cast<LogWindow*>(FromHandle(reinterpret_cast<HWND>(wParam)));
    *journal += name + (message == WM_SETFOCUS ? " gets from " : " gives to ") +
                (other == nullptr ? "-" : other->name) + ";";
  }

  CString m_log;
};

/// One that is shown and has nothing more to say.
class OpenWindow : public LogWindow {
 public:
  explicit OpenWindow(CRect rect = CRect(0, 0, 200, 100)) { Settle(Open(rect)); }
  OpenWindow(CWnd& parent, CRect rect, UINT id = 0) { Settle(OpenIn(parent, rect, id)); }

 private:
  void Settle(BOOL opened) {
    EXPECT_TRUE(opened);
    CWinApp::PumpPending();
    TakeLog();
  }
};

}  // namespace coregui::test
