#pragma once

#include <memory>

#include "platform/Geometry.h"

class CWnd;

namespace coregui {

// What the windowing classes ask of the toolkit as a whole; implemented in platform/qt.

/// True while the toolkit's application object exists. Windows without a native side need none.
bool HasToolkit();
/// Has the event loop call DeliverPosted as soon as it runs. Nothing without a toolkit.
void WakeForMessages();
/// Has the event loop call PaintPending once no other event is waiting. Nothing without a toolkit.
void WakeForPaint();
/// Handles the events that are waiting; with `wait`, sleeps for the first. False when there was none.
bool HandleEvents(bool wait);

/// One (nested) run of the event loop.
class EventLoop {
 public:
  virtual ~EventLoop() = default;
  EventLoop(const EventLoop&) = delete;
  EventLoop& operator=(const EventLoop&) = delete;
  /// Until Exit; at once when Exit came first.
  virtual void Run() = 0;
  virtual void Exit() = 0;
  virtual bool HasExited() const = 0;

 protected:
  EventLoop() = default;
};
std::unique_ptr<EventLoop> MakeEventLoop();
/// Ends every run of an event loop that is under way.
void ExitEventLoops();
/// Makes the toolkit's application if there is none; false when the program has one without windows.
bool EnsureToolkit();

/// The part of the primary screen that windows may use; a plain 1024 x 768 without a toolkit.
CRect ScreenRect();
/// Our top-level window at a place of the screen; null when there is none or another program's is in front.
CWnd* TopLevelAt(POINT screen);

}  // namespace coregui
