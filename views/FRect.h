#pragma once

#include "core/Export.h"
#include "core/PNT_2D_record.h"

/// A rectangle in world units. World y grows upwards, so `top` is the larger y.
///
/// Two corners given in any order are normalised. The single-edge setters store what they are given, so a
/// rectangle can be turned inside out; its width and height stay non-negative.
class COREGUI_API FRect {
 public:
  FRect() = default;
  FRect(PNT_2D_record const& a, PNT_2D_record const& b);
  FRect(double x1, double y1, double x2, double y2);
  FRect(const FRect&) = default;
  FRect& operator=(const FRect&) = default;
  virtual ~FRect() = default;

  void Set(PNT_2D_record const& a, PNT_2D_record const& b);
  void Set(double x1, double y1, double x2, double y2);
  void SetLeft(double x) { left = x; }
  void SetTop(double y) { top = y; }
  void SetRight(double x) { right = x; }
  void SetBottom(double y) { bottom = y; }

  double GetLeft() const { return left; }
  double GetTop() const { return top; }
  double GetRight() const { return right; }
  double GetBottom() const { return bottom; }
  double Width() const;
  double Height() const;
  PNT_2D_record TopLeft() const { return {left, top}; }
  PNT_2D_record BottomRight() const { return {right, bottom}; }
  PNT_2D_record Centre() const { return {(right + left) * 0.5, (bottom + top) * 0.5}; }

  /// Grows to include the point; the rectangle must be normalised.
  void Expand(PNT_2D_record const& p);
  void Translate(double dx, double dy);

 private:
  double left = 0.0;
  double top = 0.0;
  double right = 0.0;
  double bottom = 0.0;
};
