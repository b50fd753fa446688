#pragma once

#include <algorithm>

#include "core/Export.h"
#include "platform/Types.h"

/// A width and a height in pixels.
class CSize : public SIZE {
 public:
  constexpr CSize() = default;
  constexpr CSize(LONG width, LONG height) : SIZE{width, height} {}
  constexpr CSize(const SIZE& other)  // NOLINT(google-explicit-constructor): a plain SIZE serves
      : SIZE(other) {}
  constexpr bool operator==(const CSize& other) const { return cx == other.cx && cy == other.cy; }
};

/// A position in pixels.
class CPoint : public POINT {
 public:
  constexpr CPoint() = default;
  constexpr CPoint(LONG left, LONG top) : POINT{left, top} {}
  constexpr CPoint(const POINT& other)  // NOLINT(google-explicit-constructor): a plain POINT serves
      : POINT(other) {}
  /// Unpacks the position in a mouse message's second parameter.
  static constexpr CPoint FromLParam(LPARAM value) { return {GET_X_LPARAM(value), GET_Y_LPARAM(value)}; }
  constexpr bool operator==(const CPoint& other) const { return x == other.x && y == other.y; }
  constexpr CPoint operator+(const CSize& by) const { return {x + by.cx, y + by.cy}; }
  constexpr CPoint operator-(const CSize& by) const { return {x - by.cx, y - by.cy}; }
  constexpr CSize operator-(const CPoint& from) const { return {x - from.x, y - from.y}; }
  constexpr void Offset(LONG dx, LONG dy) {
    x += dx;
    y += dy;
  }
};

/// A rectangle in pixels; `right` and `bottom` lie just outside.
class CRect : public RECT {
 public:
  constexpr CRect() = default;
  constexpr CRect(LONG l, LONG t, LONG r, LONG b) : RECT{l, t, r, b} {}
  constexpr CRect(const RECT& other)  // NOLINT(google-explicit-constructor): a plain RECT serves
      : RECT(other) {}
  constexpr CRect(CPoint topLeft, CSize size)
      : RECT{topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy} {}
  constexpr LONG Width() const { return right - left; }
  constexpr LONG Height() const { return bottom - top; }
  constexpr CSize Size() const { return {Width(), Height()}; }
  constexpr CPoint TopLeft() const { return {left, top}; }
  constexpr CPoint BottomRight() const { return {right, bottom}; }
  constexpr bool IsRectEmpty() const { return right <= left || bottom <= top; }
  constexpr bool IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
  constexpr bool PtInRect(POINT p) const { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; }
  constexpr void SetRect(LONG l, LONG t, LONG r, LONG b) { *this = CRect(l, t, r, b); }
  constexpr void SetRectEmpty() { *this = CRect(); }
  constexpr void OffsetRect(LONG dx, LONG dy) { *this = CRect(left + dx, top + dy, right + dx, bottom + dy); }
  constexpr void InflateRect(LONG dx, LONG dy) {
    *this = CRect(left - dx, top - dy, right + dx, bottom + dy);
  }
  constexpr void DeflateRect(LONG dx, LONG dy) { InflateRect(-dx, -dy); }
  /// Becomes the common part of both; empty (all zero) and false when there is none.
  constexpr bool IntersectRect(const RECT& a, const RECT& b) {
    *this = CRect(std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                  std::min(a.bottom, b.bottom));
    if (!IsRectEmpty()) {
      return true;
    }
    SetRectEmpty();
    return false;
  }
  /// Becomes the smallest rectangle around both; an empty one counts for nothing.
  constexpr bool UnionRect(const RECT& a, const RECT& b) {
    const CRect first(a);
    const CRect second(b);
    if (first.IsRectEmpty()) {
      *this = second.IsRectEmpty() ? CRect() : second;
    } else if (second.IsRectEmpty()) {
      *this = first;
    } else {
      *this = CRect(std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
                    std::max(a.bottom, b.bottom));
    }
    return !IsRectEmpty();
  }
  /// Swaps edges that stand the wrong way round.
  constexpr void NormalizeRect() {
    if (left > right) std::swap(left, right);
    if (top > bottom) std::swap(top, bottom);
  }
  constexpr bool operator==(const CRect& other) const {
    return left == other.left && top == other.top && right == other.right && bottom == other.bottom;
  }
};
