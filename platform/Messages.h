#pragma once

#include "platform/Types.h"

// Message numbers with their well-known values. A message's parameters are those that desktop
// programmers know; MessageTable.h gives the typed form of each handler.

inline constexpr UINT WM_NULL = 0x0000;
inline constexpr UINT WM_CREATE = 0x0001;
inline constexpr UINT WM_DESTROY = 0x0002;
inline constexpr UINT WM_MOVE = 0x0003;
inline constexpr UINT WM_SIZE = 0x0005;
inline constexpr UINT WM_ACTIVATE = 0x0006;
inline constexpr UINT WM_SETFOCUS = 0x0007;   ///< wParam: HWND that had the focus, or null
inline constexpr UINT WM_KILLFOCUS = 0x0008;  ///< wParam: HWND that gets the focus, or null
inline constexpr UINT WM_ENABLE = 0x000A;
inline constexpr UINT WM_SETTEXT = 0x000C;
inline constexpr UINT WM_PAINT = 0x000F;
inline constexpr UINT WM_CLOSE = 0x0010;
inline constexpr UINT WM_QUIT = 0x0012;
inline constexpr UINT WM_ERASEBKGND = 0x0014;
inline constexpr UINT WM_SYSCOLORCHANGE = 0x0015;
inline constexpr UINT WM_SHOWWINDOW = 0x0018;
inline constexpr UINT WM_SETCURSOR = 0x0020;
/// Before a press in a window whose top level is not active: wParam is that one's HWND, lParam the hit place
/// in the low word, the press's message in the high one. The default asks the parent. A desktop that
/// activates windows by itself may have done so before the press arrives; then nobody is asked.
inline constexpr UINT WM_MOUSEACTIVATE = 0x0021;
inline constexpr UINT WM_SETFONT = 0x0030;
inline constexpr UINT WM_HELP = 0x0053;  ///< help is asked for; lParam: HELPINFO*. Non-zero: it was given
inline constexpr UINT WM_CONTEXTMENU = 0x007B;
inline constexpr UINT WM_NCDESTROY = 0x0082;
inline constexpr UINT WM_GETDLGCODE = 0x0087;
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_KEYUP = 0x0101;
inline constexpr UINT WM_CHAR = 0x0102;
inline constexpr UINT WM_SYSKEYDOWN = 0x0104;
inline constexpr UINT WM_INITDIALOG = 0x0110;
inline constexpr UINT WM_COMMAND = 0x0111;  ///< wParam: id in the low word, code in the high; lParam: HWND
inline constexpr UINT WM_TIMER = 0x0113;    ///< wParam: timer id
inline constexpr UINT WM_HSCROLL =
    0x0114;  ///< wParam: SB_ code in the low word; lParam: HWND of the scroll bar
inline constexpr UINT WM_VSCROLL = 0x0115;
inline constexpr UINT WM_MOUSEMOVE = 0x0200;
inline constexpr UINT WM_LBUTTONDOWN = 0x0201;
inline constexpr UINT WM_LBUTTONUP = 0x0202;
inline constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
inline constexpr UINT WM_RBUTTONDOWN = 0x0204;
inline constexpr UINT WM_RBUTTONUP = 0x0205;
inline constexpr UINT WM_RBUTTONDBLCLK = 0x0206;
inline constexpr UINT WM_MBUTTONDOWN = 0x0207;
inline constexpr UINT WM_MBUTTONUP = 0x0208;
inline constexpr UINT WM_MBUTTONDBLCLK = 0x0209;
/// wParam: MK_ flags in the low word, delta in the high; lParam: screen position. The platform gathers the
/// small deltas of touchpads into whole notches of 120; what code sends arrives as sent.
inline constexpr UINT WM_MOUSEWHEEL = 0x020A;
inline constexpr UINT WM_MOUSEHWHEEL = 0x020E;
inline constexpr UINT WM_CAPTURECHANGED = 0x0215;
inline constexpr UINT WM_MOUSELEAVE = 0x02A3;  ///< sent once after TrackMouseLeave
inline constexpr UINT WM_DPICHANGED = 0x02E0;  ///< wParam: the new dots per inch in both words
inline constexpr UINT WM_CUT = 0x0300;
inline constexpr UINT WM_COPY = 0x0301;
inline constexpr UINT WM_PASTE = 0x0302;
inline constexpr UINT WM_CLEAR = 0x0303;
inline constexpr UINT WM_UNDO = 0x0304;
inline constexpr UINT WM_PRINTCLIENT = 0x0318;  ///< wParam: CDC* to draw on
inline constexpr UINT WM_THEMECHANGED = 0x031A;
/// lParam: a client point. Answer: the help number of what is there, 0 for none.
inline constexpr UINT WM_HELPHITTEST = 0x0366;
inline constexpr UINT WM_USER = 0x0400;
inline constexpr UINT WM_APP = 0x8000;
/// Touchpad pinch over a window: wParam is the zoom factor times 65536, lParam the client position.
inline constexpr UINT WM_COREGUI_PINCH = WM_APP + 0x3F00;
/// Touchpad two-finger pan: wParam is the modifier flags (MK_), lParam the movement (dx, dy) in pixels.
/// Sent only to a window that answers 1 to WM_COREGUI_WANTPAN; others get wheel notches.
inline constexpr UINT WM_COREGUI_PAN = WM_APP + 0x3F01;
inline constexpr UINT WM_COREGUI_WANTPAN = WM_APP + 0x3F02;

// Key-state flags of mouse messages.
inline constexpr UINT MK_LBUTTON = 0x0001;
inline constexpr UINT MK_RBUTTON = 0x0002;
inline constexpr UINT MK_SHIFT = 0x0004;
inline constexpr UINT MK_CONTROL = 0x0008;
inline constexpr UINT MK_MBUTTON = 0x0010;

inline constexpr int WHEEL_DELTA = 120;

// Answers to WM_MOUSEACTIVATE.
inline constexpr int MA_ACTIVATE = 1;
inline constexpr int MA_ACTIVATEANDEAT = 2;  ///< the press itself is not delivered
inline constexpr int MA_NOACTIVATE = 3;
inline constexpr int MA_NOACTIVATEANDEAT = 4;

// Answers to WM_GETDLGCODE: the keys that a window wants for itself.
inline constexpr UINT DLGC_WANTARROWS = 0x0001;
inline constexpr UINT DLGC_WANTTAB = 0x0002;
inline constexpr UINT DLGC_WANTALLKEYS = 0x0004;
inline constexpr UINT DLGC_WANTCHARS = 0x0080;
inline constexpr UINT DLGC_BUTTON = 0x2000;  ///< a push button: Enter presses it

// Scroll-bar codes.
inline constexpr int SB_LINEUP = 0;
inline constexpr int SB_LINELEFT = 0;
inline constexpr int SB_LINEDOWN = 1;
inline constexpr int SB_LINERIGHT = 1;
inline constexpr int SB_PAGEUP = 2;
inline constexpr int SB_PAGELEFT = 2;
inline constexpr int SB_PAGEDOWN = 3;
inline constexpr int SB_PAGERIGHT = 3;
inline constexpr int SB_THUMBPOSITION = 4;
inline constexpr int SB_THUMBTRACK = 5;
inline constexpr int SB_TOP = 6;
inline constexpr int SB_LEFT = 6;
inline constexpr int SB_BOTTOM = 7;
inline constexpr int SB_RIGHT = 7;
inline constexpr int SB_ENDSCROLL = 8;
inline constexpr int SB_HORZ = 0;
inline constexpr int SB_VERT = 1;

// Notification codes that controls send their parent in WM_COMMAND.
inline constexpr int BN_CLICKED = 0;
inline constexpr int STN_CLICKED = 0;
inline constexpr int EN_SETFOCUS = 0x0100;
inline constexpr int EN_KILLFOCUS = 0x0200;
inline constexpr int EN_CHANGE = 0x0300;
inline constexpr int LBN_SELCHANGE = 1;
inline constexpr int LBN_DBLCLK = 2;
inline constexpr int CBN_SELCHANGE = 1;
inline constexpr int CBN_EDITCHANGE = 5;
inline constexpr int CBN_DROPDOWN = 7;
inline constexpr int CBN_CLOSEUP = 8;

// Codes of WM_SIZE.
inline constexpr WPARAM SIZE_RESTORED = 0;
inline constexpr WPARAM SIZE_MINIMIZED = 1;
inline constexpr WPARAM SIZE_MAXIMIZED = 2;
// Codes of WM_ACTIVATE.
inline constexpr WPARAM WA_INACTIVE = 0;
inline constexpr WPARAM WA_ACTIVE = 1;
inline constexpr WPARAM WA_CLICKACTIVE = 2;

/// What help is asked for, in WM_HELP.
struct HELPINFO {
  UINT cbSize = sizeof(HELPINFO);
  int iContextType = 1;        ///< of a window
  int iCtrlId = 0;             ///< the window's id
  HWND hItemHandle = nullptr;  ///< the window
  DWORD dwContextId = 0;       ///< the help number
  POINT MousePos;              ///< in screen coordinates
};

/// A queued message, as PreTranslateMessage sees it before the window does.
struct MSG {
  HWND hwnd = nullptr;
  UINT message = 0;
  WPARAM wParam = 0;
  LPARAM lParam = 0;
};
