#pragma once

#include "core/PNT_2D_record.h"
#include "platform/Messages.h"

class CWnd;

/// Sent to the parent of a plot view after every change of its mapping: wParam is the view, lParam 0.
inline constexpr UINT WM_VIEW_CHANGED = WM_USER + 1000;

/// What a plot view tells its hook function. The values are part of the interface; those missing are not
/// sent.
enum EVENT_TYPE : int {
  EVENT_LBUTTON_DOWN = 0,  ///< left button pressed, outside zoom-box mode
  EVENT_BUTTON_UP = 1,     ///< a button released, outside zoom-box mode
  EVENT_MOVE = 2,          ///< pointer on another pixel, or the position set by the program
  EVENT_OTHER_DOWN = 4,    ///< right or middle button pressed, outside zoom-box mode
  EVENT_ESCAPE = 5,        ///< Esc outside zoom-box mode, or a zoom box cancelled
  EVENT_KEY = 6,           ///< any other key
  EVENT_ENTER = 12,        ///< pointer entered the window
  EVENT_ZOOM_MODE = 13,    ///< zoom-box mode entered
  EVENT_ZOOM_START = 14,   ///< zoom box started
  EVENT_ZOOM_END = 15,     ///< zoom box finished
  EVENT_PAN = 16,          ///< one pan step done
};

// Bits of the key-flags byte. Bit 5 is cleared by every mouse event.
inline constexpr char KEYFLAG_SHIFT = 0x01;
inline constexpr char KEYFLAG_CTRL = 0x02;
inline constexpr char KEYFLAG_LEFT = 0x04;
inline constexpr char KEYFLAG_RIGHT = 0x08;
inline constexpr char KEYFLAG_MIDDLE = 0x10;

/// The key-flags byte for the MK_ flags of a mouse message.
constexpr char KeyFlagsOf(UINT mouseFlags) {
  const int flags = ((mouseFlags & MK_SHIFT) != 0 ? KEYFLAG_SHIFT : 0) |
                    ((mouseFlags & MK_CONTROL) != 0 ? KEYFLAG_CTRL : 0) |
                    ((mouseFlags & MK_LBUTTON) != 0 ? KEYFLAG_LEFT : 0) |
                    ((mouseFlags & MK_RBUTTON) != 0 ? KEYFLAG_RIGHT : 0) |
                    ((mouseFlags & MK_MBUTTON) != 0 ? KEYFLAG_MIDDLE : 0);
  return static_cast<char>(flags);
}

/// The application's end of all input: position in world units, event, key flags, key code (0 for mouse
/// events) and the view's parent. It may destroy the view.
using VIEW_FUNC_HOOK = void (*)(PNT_2D_record const& position, EVENT_TYPE event, char keyFlags, char key,
                                CWnd* parent);
