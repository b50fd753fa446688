#include "platform/Region.h"

namespace coregui {

namespace {

// Appends what is left of `whole` around `hole`, which overlaps it: at most four pieces.
void AppendAround(std::vector<CRect>& out, const CRect& whole, const CRect& hole) {
  const auto add = [&out](LONG l, LONG t, LONG r, LONG b) {
    if (l < r && t < b) {
      out.emplace_back(l, t, r, b);
    }
  };
  const LONG top = std::max(whole.top, hole.top);
  const LONG bottom = std::min(whole.bottom, hole.bottom);
  add(whole.left, whole.top, whole.right, top);
  add(whole.left, top, std::max(whole.left, hole.left), bottom);
  add(std::min(whole.right, hole.right), top, whole.right, bottom);
  add(whole.left, bottom, whole.right, whole.bottom);
}

}  // namespace

void Region::Add(const CRect& rect) {
  if (rect.IsRectEmpty()) {
    return;
  }
  Subtract(rect);
  m_rects.push_back(rect);
}

void Region::Subtract(const CRect& rect) {
  if (!Intersects(rect)) {
    return;
  }
  std::vector<CRect> left;
  for (const CRect& piece : m_rects) {
    CRect common;
    if (common.IntersectRect(piece, rect)) {
      AppendAround(left, piece, rect);
    } else {
      left.push_back(piece);
    }
  }
  m_rects = std::move(left);
}

void Region::Intersect(const CRect& rect) {
  std::vector<CRect> inside;
  for (const CRect& piece : m_rects) {
    CRect common;
    if (common.IntersectRect(piece, rect)) {
      inside.push_back(common);
    }
  }
  m_rects = std::move(inside);
}

void Region::Offset(int dx, int dy) {
  for (CRect& piece : m_rects) {
    piece.OffsetRect(dx, dy);
  }
}

bool Region::Intersects(const CRect& rect) const {
  CRect common;
  return std::any_of(m_rects.begin(), m_rects.end(),
                     [&](const CRect& piece) { return common.IntersectRect(piece, rect); });
}

bool Region::Contains(POINT point) const {
  return std::any_of(m_rects.begin(), m_rects.end(),
                     [&](const CRect& piece) { return piece.PtInRect(point); });
}

CRect Region::Bounds() const {
  CRect all;
  for (const CRect& piece : m_rects) {
    all.UnionRect(all, piece);
  }
  return all;
}

}  // namespace coregui
