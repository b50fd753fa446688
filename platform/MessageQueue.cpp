#include "platform/MessageQueue.h"

#include <algorithm>
#include <deque>
#include <vector>

#include "platform/CWnd.h"
#include "platform/Toolkit.h"
#include "platform/WindowState.h"

namespace coregui {
namespace {

struct PostedMessage {
  WindowRef window;
  UINT message = 0;
  WPARAM wParam = 0;
  LPARAM lParam = 0;
};

std::deque<PostedMessage>& Posted() {
  static auto& queue = *new std::deque<PostedMessage>;  // never destroyed: see WindowRegistry.cpp
  return queue;
}

std::deque<WindowRef>& Dirty() {
  static auto& windows = *new std::deque<WindowRef>;  // never destroyed: see WindowRegistry.cpp
  return windows;
}

bool CanPaint(const CWnd& window) {
  const WindowState& state = window.State();
  return state.native != nullptr && !state.destroying && !state.update.hold &&
         !state.update.region.IsEmpty() && window.IsWindowVisible();
}

bool IsQueued(UINT message) {
  return (message >= WM_KEYDOWN && message <= WM_SYSKEYDOWN) ||
         (message >= WM_MOUSEMOVE && message <= WM_MOUSEHWHEEL);
}

}  // namespace

void QueueMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam) {
  Posted().push_back({WindowRef(&window), message, wParam, lParam});
  WakeForMessages();
}

bool DeliverPosted() {
  std::size_t count = Posted().size();
  const bool any = count > 0;
  // A handler may run a nested loop that takes messages out of the same queue.
  for (; count > 0 && !Posted().empty(); --count) {
    const PostedMessage next = Posted().front();
    Posted().pop_front();
    if (!Posted().empty()) {
      WakeForMessages();
    }
    if (CWnd* window = next.window.Get()) {
      TranslateAndSend(*window, next.message, next.wParam, next.lParam);
    }
  }
  return any;
}

bool TranslateAndSend(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
  const WindowRef target(&window);
  if (IsQueued(message)) {
    MSG queued{window.GetSafeHwnd(), message, wParam, lParam};
    for (WindowRef asked = target; CWnd* at = asked.Get();) {
      const WindowRef next(at->GetParent());
      if (at->PreTranslateMessage(&queued) != FALSE) {
        return false;
      }
      asked = next;
    }
  }
  if (CWnd* alive = target.Get()) {
    const LRESULT answer = alive->SendMessage(message, wParam, lParam);
    if (result != nullptr) {
      *result = answer;
    }
  }
  return true;
}

void QueuePaint(CWnd& window) {
  WindowState& state = window.State();
  if (state.native == nullptr || state.update.queued) {
    return;
  }
  state.update.queued = true;
  Dirty().emplace_back(&window);
  WakeForPaint();
}

void QueuePaintTree(CWnd& window) {
  if (!window.State().update.region.IsEmpty()) {
    QueuePaint(window);
  }
  for (CWnd* child : window.State().family.children) {
    QueuePaintTree(*child);
  }
}

bool PaintPending() {
  bool any = false;
  // A paint handler may run a nested loop, which paints the windows that are still in the queue.
  for (std::size_t count = Dirty().size(); count > 0 && !Dirty().empty(); --count) {
    const WindowRef window = Dirty().front();
    Dirty().pop_front();
    if (!Dirty().empty()) {
      WakeForPaint();
    }
    CWnd* alive = window.Get();
    if (alive == nullptr) {
      continue;
    }
    alive->State().update.queued = false;
    if (!CanPaint(*alive)) {
      continue;
    }
    any = true;
    alive->SendMessage(WM_PAINT);
    if (window && CanPaint(*alive)) {
      QueuePaint(*alive);
    }
  }
  return any;
}

void PaintNow(CWnd& window) {
  if (CanPaint(window)) {
    window.SendMessage(WM_PAINT);
  }
}

}  // namespace coregui
