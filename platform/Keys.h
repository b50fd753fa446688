#pragma once

#include "platform/Types.h"

// Virtual-key codes with their well-known values. Letters and digits are their upper-case ASCII codes.

inline constexpr UINT VK_LBUTTON = 0x01;
inline constexpr UINT VK_RBUTTON = 0x02;
inline constexpr UINT VK_MBUTTON = 0x04;
inline constexpr UINT VK_BACK = 0x08;
inline constexpr UINT VK_TAB = 0x09;
inline constexpr UINT VK_RETURN = 0x0D;
inline constexpr UINT VK_SHIFT = 0x10;
inline constexpr UINT VK_CONTROL = 0x11;
inline constexpr UINT VK_MENU = 0x12;  ///< Alt
inline constexpr UINT VK_CAPITAL = 0x14;
inline constexpr UINT VK_ESCAPE = 0x1B;
inline constexpr UINT VK_SPACE = 0x20;
inline constexpr UINT VK_PRIOR = 0x21;  ///< Page Up
inline constexpr UINT VK_NEXT = 0x22;   ///< Page Down
inline constexpr UINT VK_END = 0x23;
inline constexpr UINT VK_HOME = 0x24;
inline constexpr UINT VK_LEFT = 0x25;
inline constexpr UINT VK_UP = 0x26;
inline constexpr UINT VK_RIGHT = 0x27;
inline constexpr UINT VK_DOWN = 0x28;
inline constexpr UINT VK_INSERT = 0x2D;
inline constexpr UINT VK_DELETE = 0x2E;
inline constexpr UINT VK_APPS = 0x5D;  ///< the context-menu key
inline constexpr UINT VK_NUMPAD0 = 0x60;
inline constexpr UINT VK_MULTIPLY = 0x6A;
inline constexpr UINT VK_ADD = 0x6B;
inline constexpr UINT VK_SUBTRACT = 0x6D;
inline constexpr UINT VK_DECIMAL = 0x6E;
inline constexpr UINT VK_DIVIDE = 0x6F;
inline constexpr UINT VK_F1 = 0x70;
inline constexpr UINT VK_F2 = 0x71;
inline constexpr UINT VK_F3 = 0x72;
inline constexpr UINT VK_F4 = 0x73;
inline constexpr UINT VK_F5 = 0x74;
inline constexpr UINT VK_F6 = 0x75;
inline constexpr UINT VK_F7 = 0x76;
inline constexpr UINT VK_F8 = 0x77;
inline constexpr UINT VK_F9 = 0x78;
inline constexpr UINT VK_F10 = 0x79;
inline constexpr UINT VK_F11 = 0x7A;
inline constexpr UINT VK_F12 = 0x7B;
