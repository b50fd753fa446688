#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "platform/CDC.h"
#include "tests/support/Hand.h"
#include "views/CGUIBaseView.h"

namespace coregui::test {

/// The application's end of a view: notes events as "2 6(x) ".
struct Hook {
  static void Note(PNT_2D_record const& position, EVENT_TYPE event, char flags, char key, CWnd* /*parent*/) {
    log += std::to_string(event) + (key == 0 ? std::string() : std::string("(") + key + ")") + " ";
    lastFlags = flags;
    lastPosition = position;
    if (onEvent) {
      const auto act = onEvent;
      act(event);
    }
  }
  static std::string Taken() {
    std::string taken;
    taken.swap(log);
    return taken;
  }
  static inline std::string log;
  static inline char lastFlags = 0;
  static inline PNT_2D_record lastPosition;
  static inline std::function<void(EVENT_TYPE)> onEvent;
};

class ParentWindow : public CWnd {
 public:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_VIEW_CHANGED) {
      ++changes;
      if (onChange) {
        const auto act = onChange;
        act();
      }
    }
    return CWnd::WindowProc(message, wParam, lParam);
  }
  int changes = 0;
  std::function<void()> onChange;
};

class TestView : public CGUIBaseView {
 public:
  using CGUIBaseView::CGUIBaseView;
  void CreateIn(CWnd& family, CRect const& place) {
    ASSERT_TRUE(Create(L"view", L"", WS_CHILD | WS_VISIBLE, place, &family, 1));
  }
  // What a person does, as the toolkit's own events.
  void Move(CPoint at, UINT flags = 0) { MovePointer(*this, at, flags); }
  void Press(UINT button, CPoint at) { PressButton(*this, button, at); }
  void Release(UINT button, CPoint at) { ReleaseButton(*this, button, at); }
  void Wheel(int notches, CPoint at = {0, 0}) { TurnWheel(*this, at, notches * WHEEL_DELTA); }
  void Key(UINT key) { PressKey(*this, key); }
  /// What the window shows when all is painted, dot by dot.
  std::vector<DWORD> Picture() {
    UpdateWindow();
    return ShownDots(*this);
  }
};

/// A view of 200 x 100 pixels over the world 0..100 by 0..10, in a parent window.
class ViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Hook::onEvent = nullptr;
    ASSERT_TRUE(
        parent.Create(L"", L"views", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 400, 300), nullptr, 0));
    MakeView();
  }
  void TearDown() override {
    Hook::onEvent = nullptr;
    parent.onChange = nullptr;
  }
  /// A new view; a test that asks for one that was not initialised creates it itself.
  void MakeView(bool initialise = true) {
    view = std::make_unique<TestView>(1.0, &parent);
    view->CreateIn(parent, CRect(0, 0, 200, 100));
    view->SetFuncHook(&Hook::Note);
    if (initialise) {
      view->InitView(FRect(0, 10, 100, 0), 1.0);
    }
    m_at = CPoint();
    m_held = 0;
    Hook::Taken();
  }

  /// What a person does, in words: ">60,58" moves the pointer, "L+" and "L-" press and release a button (L, R
  /// or M) there, "'m" types a character, "^C" with Ctrl, "esc", "space", "wheel+" and "wheel-" one notch,
  /// "lose" has another window take the mouse. Ends where the view is gone.
  void Do(const std::string& words) {
    std::istringstream steps(words);
    for (std::string step; view != nullptr && steps >> step;) {
      const char first = step[0];
      const UINT button = first == 'L' ? MK_LBUTTON : first == 'R' ? MK_RBUTTON : MK_MBUTTON;
      if (first == '>') {
        m_at = CPoint(std::stoi(step.substr(1)), std::stoi(step.substr(step.find(',') + 1)));
        view->Move(m_at, m_held);
      } else if (step.substr(1) == "+" || step.substr(1) == "-") {
        m_held = step[1] == '+' ? button : 0;
        step[1] == '+' ? view->Press(button, m_at) : view->Release(button, m_at);
      } else if (first == '\'' || first == '^') {
        SetKeyState(VK_CONTROL, first == '^');
        view->SendMessage(WM_CHAR, static_cast<WPARAM>(first == '^' ? step[1] - 64 : step[1]));
        SetKeyState(VK_CONTROL, false);
      } else if (first == 'w') {
        view->Wheel(step[5] == '+' ? 1 : -1);
      } else if (step == "lose") {
        parent.SetCapture();
      } else {
        view->Key(step == "esc" ? VK_ESCAPE : VK_SPACE);
      }
    }
  }

  ParentWindow parent;
  std::unique_ptr<TestView> view;

 private:
  CPoint m_at;      ///< of the pointer
  UINT m_held = 0;  ///< the button that is pressed
};

}  // namespace coregui::test
