#pragma once

#include <cstdint>

#include "core/Export.h"
#include "platform/CString.h"
#include "platform/Geometry.h"
#include "platform/Types.h"

// --- System colours. They follow the theme, light or dark, and are read each time.

inline constexpr int COLOR_SCROLLBAR = 0;
inline constexpr int COLOR_WINDOW = 5;
inline constexpr int COLOR_WINDOWTEXT = 8;
inline constexpr int COLOR_HIGHLIGHT = 13;
inline constexpr int COLOR_HIGHLIGHTTEXT = 14;
inline constexpr int COLOR_BTNFACE = 15;
inline constexpr int COLOR_BTNSHADOW = 16;
inline constexpr int COLOR_GRAYTEXT = 17;
inline constexpr int COLOR_BTNTEXT = 18;
inline constexpr int COLOR_BTNHIGHLIGHT = 20;
inline constexpr int COLOR_3DDKSHADOW = 21;
inline constexpr int COLOR_3DLIGHT = 22;
inline constexpr int COLOR_INFOTEXT = 23;
inline constexpr int COLOR_INFOBK = 24;
inline constexpr int COLOR_HOTLIGHT = 26;

/// The colour of an index above; black for an unknown one. Cheap: a table that theme changes refresh.
/// Works before there is an application (the light defaults).
COREGUI_API COLORREF GetSysColor(int index);
/// Fixes a system colour for a run (tests, a high-contrast choice); repaints nothing by itself.
COREGUI_API void SetSysColor(int index, COLORREF colour);
/// Back to the theme's colours.
COREGUI_API void ResetSysColors();
/// Chooses the application's look: dark or light palette; windows get WM_SYSCOLORCHANGE and repaint.
COREGUI_API void SetDarkTheme(bool dark);
COREGUI_API bool IsDarkTheme();

// --- Metrics, in logical pixels.

inline constexpr int SM_CXSCREEN = 0;
inline constexpr int SM_CYSCREEN = 1;
inline constexpr int SM_CXVSCROLL = 2;
inline constexpr int SM_CYHSCROLL = 3;
inline constexpr int SM_CXBORDER = 5;
inline constexpr int SM_CXDRAG = 68;
inline constexpr int SM_CYDRAG = 69;
inline constexpr int SM_CXDOUBLECLK = 36;
COREGUI_API int GetSystemMetrics(int index);
/// A length given for 96 dots per inch in pixels of the scale in force: rounded, 1 at least for a positive
/// one.
COREGUI_API int ScaleByDpi(int pixelsAt96);
/// Fixes the layout scale for a run (1.0: 96 dots per inch; 0: the screen's again).
COREGUI_API void SetDpiScale(double scale);
COREGUI_API double GetDpiScale();

// --- Keys. The state at the message being handled; the high bit (negative) is down, the low bit toggled.

COREGUI_API short GetKeyState(UINT key);
/// Sets the state for scripted runs until the next real key or mouse event changes it.
COREGUI_API void SetKeyState(UINT key, bool down);

// --- Cursors.

enum class SystemCursor { arrow, iBeam, wait, cross, sizeWE, sizeNS, sizeNWSE, sizeNESW, sizeAll, hand, no };
COREGUI_API HCURSOR LoadSystemCursor(SystemCursor cursor);
/// Shows the cursor over the window that has the pointer; returns the one shown before.
COREGUI_API HCURSOR SetCursor(HCURSOR cursor);
COREGUI_API CPoint GetCursorPos();  ///< in screen coordinates
COREGUI_API void SetCursorPos(int x, int y);
/// Nests: counts up while the wait cursor is shown.
COREGUI_API void ShowWaitCursor(bool on);

// --- Sounds.

inline constexpr UINT MB_ICONHAND_SOUND = 0x10;
inline constexpr UINT MB_ICONEXCLAMATION_SOUND = 0x30;
inline constexpr UINT MB_ICONASTERISK_SOUND = 0x40;
COREGUI_API void MessageBeep(UINT sound);
/// How often each sound was asked for since the start; tests read it.
COREGUI_API int GetBeepCount(UINT sound);

/// Blocks the thread. `SetSleepHook` replaces the waiting for a run (null: real waiting).
COREGUI_API void Sleep(UINT milliseconds);
COREGUI_API void SetSleepHook(void (*hook)(UINT milliseconds));
/// Milliseconds of a clock that never runs backwards.
COREGUI_API std::uint64_t GetTickCount64();

// --- Last error: errno of the calling thread.

COREGUI_API DWORD GetLastError();
COREGUI_API void SetLastError(DWORD error);
/// The system's text for an error number, in the user's language.
COREGUI_API CString GetErrorText(DWORD error);

/// Identity of the machine, 32 bits, stable across restarts; never 0.
COREGUI_API DWORD GetMachineSerial();
