#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
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
      lastView = reinterpret_cast<CGUIBaseView*>(wParam);
      if (onChange) {
        const auto act = onChange;
        act();
      }
    }
    return CWnd::WindowProc(message, wParam, lParam);
  }
  int changes = 0;
  CGUIBaseView* lastView = nullptr;
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
    Hook::Taken();
  }

  ParentWindow parent;
  std::unique_ptr<TestView> view;
};

}  // namespace coregui::test
