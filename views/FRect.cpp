#include "views/FRect.h"

#include <algorithm>
#include <cmath>

FRect::FRect(PNT_2D_record const& a, PNT_2D_record const& b) {
  Set(a, b);
}

FRect::FRect(double x1, double y1, double x2, double y2) {
  Set(x1, y1, x2, y2);
}

void FRect::Set(PNT_2D_record const& a, PNT_2D_record const& b) {
  // std::min and std::max return their first argument when both are equal (0.0 and -0.0 are).
  left = std::min(a.x, b.x);
  right = std::max(a.x, b.x);
  top = std::max(a.y, b.y);
  bottom = std::min(a.y, b.y);
}

void FRect::Set(double x1, double y1, double x2, double y2) {
  Set(PNT_2D_record{x1, y1}, PNT_2D_record{x2, y2});
}

double FRect::Width() const {
  return std::fabs(right - left);
}

double FRect::Height() const {
  return std::fabs(bottom - top);
}

void FRect::Expand(PNT_2D_record const& p) {
  left = std::min(left, p.x);
  top = std::max(top, p.y);
  right = std::max(right, p.x);
  bottom = std::min(bottom, p.y);
}

void FRect::Translate(double dx, double dy) {
  left += dx;
  right += dx;
  top += dy;
  bottom += dy;
}
