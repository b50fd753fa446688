#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/CString.h"
#include "platform/NativeWindow.h"
#include "platform/Region.h"
#include "platform/Types.h"
#include "platform/WindowRef.h"

class CFont;

namespace coregui {

/// What a window is, with or without its native side. CWnd acts on it; device contexts, the native side and
/// the window's classes read it.
class WindowState {
 public:
  explicit WindowState(CWnd* window) : life(std::make_shared<CWnd*>(window)) {}

  std::shared_ptr<CWnd*> life;  ///< what WindowRef watches
  HWND handle = nullptr;        ///< null without a native window; never used twice
  std::unique_ptr<NativeWindow>
      native;  ///< null before creation, after destruction and while there is no toolkit

  struct Family {
    CWnd* parent = nullptr;       ///< borrowed: a parent takes its children out before it goes
    WindowRef owner;              ///< of a top-level window
    std::vector<CWnd*> children;  ///< borrowed, bottom first
    UINT id = 0;
    unsigned sequence = 0;  ///< order of creation: the order of the Tab key
  } family;

  struct Look {
    CString text;
    CString accessibleName;
    DWORD style = 0;
    DWORD exStyle = 0;
    CRect rect;           ///< in the parent's client coordinates; top level: on the screen, without the frame
    LONG border = 0;      ///< how far inside its rectangle the client area of a painted window lies
    WPARAM sizeCode = 0;  ///< SIZE_RESTORED ...: what WM_SIZE says
    CFont* font = nullptr;     ///< borrowed
    HCURSOR cursor = nullptr;  ///< of the class: shown unless WM_SETCURSOR is answered
  } look;

  struct Update {
    Region region;  ///< client coordinates, inside the client area
    bool erase = false;
    bool hold = false;    ///< SetRedraw(FALSE)
    bool queued = false;  ///< waits in the paint queue
  } update;

  std::map<UINT, UINT> timers;  ///< id -> milliseconds
  bool tracksLeave = false;
  bool destroying = false;
  bool placing = false;  ///< the native side is being moved: its own reports are part of that
};

/// For CPaintDC: takes the update region out (the window is valid after) and whether it is to be erased
/// first.
Region TakeUpdateRegion(CWnd& window, bool& erase);

}  // namespace coregui
