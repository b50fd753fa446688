#pragma once

#include <cstddef>
#include <cstdint>

// The basic types of the windowing vocabulary, with the same width on every system.

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = unsigned int;
using LONG = std::int32_t;
using BOOL = int;
using COLORREF = std::uint32_t;  ///< 0x00BBGGRR
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;

inline constexpr BOOL TRUE = 1;
inline constexpr BOOL FALSE = 0;

/// A native window, opaque. Null is no window.
struct coregui_native_window;
using HWND = coregui_native_window*;

/// A cursor, opaque and never released by the caller. Null is no cursor.
struct coregui_cursor;
using HCURSOR = const coregui_cursor*;

struct POINT {
  LONG x = 0;
  LONG y = 0;
};

struct SIZE {
  LONG cx = 0;
  LONG cy = 0;
};

/// A rectangle of device pixels; `right` and `bottom` lie just outside.
struct RECT {
  LONG left = 0;
  LONG top = 0;
  LONG right = 0;
  LONG bottom = 0;
};

constexpr WORD LOWORD(std::uintptr_t value) {
  return static_cast<WORD>(value & 0xFFFFU);
}
constexpr WORD HIWORD(std::uintptr_t value) {
  return static_cast<WORD>((value >> 16U) & 0xFFFFU);
}
constexpr BYTE LOBYTE(std::uintptr_t value) {
  return static_cast<BYTE>(value & 0xFFU);
}
constexpr BYTE HIBYTE(std::uintptr_t value) {
  return static_cast<BYTE>((value >> 8U) & 0xFFU);
}
/// Packs two 16-bit values; the first is the low word.
constexpr LPARAM MAKELPARAM(int low, int high) {
  return static_cast<LPARAM>((static_cast<std::uint32_t>(static_cast<std::uint16_t>(high)) << 16U) |
                             static_cast<std::uint16_t>(low));
}
constexpr WPARAM MAKEWPARAM(int low, int high) {
  return static_cast<WPARAM>(MAKELPARAM(low, high));
}
/// The signed coordinates packed in a mouse message's second parameter.
constexpr int GET_X_LPARAM(LPARAM value) {
  return static_cast<std::int16_t>(LOWORD(static_cast<std::uintptr_t>(value)));
}
constexpr int GET_Y_LPARAM(LPARAM value) {
  return static_cast<std::int16_t>(HIWORD(static_cast<std::uintptr_t>(value)));
}

constexpr COLORREF RGB(int red, int green, int blue) {
  return static_cast<COLORREF>((red & 0xFF) | ((green & 0xFF) << 8) | ((blue & 0xFF) << 16));
}
constexpr BYTE GetRValue(COLORREF colour) {
  return static_cast<BYTE>(colour & 0xFFU);
}
constexpr BYTE GetGValue(COLORREF colour) {
  return static_cast<BYTE>((colour >> 8U) & 0xFFU);
}
constexpr BYTE GetBValue(COLORREF colour) {
  return static_cast<BYTE>((colour >> 16U) & 0xFFU);
}
