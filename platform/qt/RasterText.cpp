#include <algorithm>

#include "platform/qt/FontFace.h"
#include "platform/qt/GlyphRow.h"
#include "platform/qt/RasterTarget.h"

// Text of a raster: glyphs straight into the rows where they are simple.

namespace coregui {

namespace {

void BlendGlyph(Surface& surface, const CRect& clip, const Glyph& glyph, int x, int y, std::uint32_t colour) {
  const int left = std::max<int>(x, clip.left);
  const int right = std::min<int>(x + glyph.width, clip.right);
  const int top = std::max<int>(y, clip.top);
  const int bottom = std::min<int>(y + glyph.height, clip.bottom);
  if (left >= right || top >= bottom) {
    return;
  }
  const int stride = glyph.Stride();
  const std::uint8_t* coverage = glyph.coverage + std::ptrdiff_t{top - y} * stride;
  if (left == x && right == x + glyph.width && x + stride <= surface.Dots().cx) {
    BlendBlock(surface.Row(top) + left, surface.Stride(), coverage, stride, bottom - top, colour);
    return;
  }
  for (int row = top; row < bottom; ++row) {
    BlendRow(surface.Row(row) + left, coverage + (left - x), right - left, colour);
    coverage += stride;
  }
}

}  // namespace

int RasterTarget::FitText(const DrawAttributes& with, const wchar_t* text, int length, int width) {
  FontFace& face = Face(with);
  std::int64_t dots = 0;
  for (int i = 0; i < length; ++i) {
    const Glyph& glyph = face.GlyphOf(text[i]);
    if (!glyph.simple) {
      return PainterTarget::FitText(with, text, length, width);
    }
    dots += glyph.advance;
    if (LogicalSize(dots) > width) {
      return i;
    }
  }
  return length;
}

bool RasterTarget::PutGlyphs(const DrawAttributes& with, FontFace& face, CPoint start, const wchar_t* text,
                             int length) {
  for (int i = 0; i < length; ++i) {
    if (!face.GlyphOf(text[i]).simple) {
      return false;
    }
  }
  const std::uint32_t colour = Opaque(with.textColour);
  std::int64_t x = start.x;
  for (int i = 0; i < length && x < with.clip.box.right + face.Height(); ++i) {
    const Glyph& glyph = face.DrawnGlyphOf(text[i]);
    if (glyph.coverage != nullptr) {
      const int left = static_cast<int>(x) + glyph.left;
      const CRect box(left, start.y + glyph.top, left + glyph.width, start.y + glyph.top + glyph.height);
      with.clip.ForEach(
          box, [&](const CRect& part) { BlendGlyph(*m_surface, part, glyph, box.left, box.top, colour); });
    }
    x += glyph.advance;
  }
  // Ink may reach a little out of the advances and the cell.
  const int margin = face.Height();
  const LONG right = static_cast<LONG>(std::min<std::int64_t>(x + margin, 1 << 30));
  CRect changed;
  if (changed.IntersectRect(with.clip.box,
                            CRect(start.x - margin, start.y - margin, right, start.y + 2 * margin))) {
    m_surface->Damage(changed);
  }
  return true;
}

void RasterTarget::Text(const DrawAttributes& with, int x, int y, const wchar_t* text, int length) {
  if (with.clip.box.IsRectEmpty()) {
    return;
  }
  FontFace& face = Face(with);
  const CPoint start(Grid().x.Dot(std::int64_t{x} + with.origin.x),
                     Grid().y.Dot(std::int64_t{y} + with.origin.y));
  if (!PutGlyphs(with, face, start, text, length)) {
    TextByPainter(with, x, y, text, length);
    return;
  }
  if (face.UnderlineTop() != 0 || face.StrikeTop() != 0) {
    const std::int64_t right = std::min<std::int64_t>(start.x + face.Width(text, length), 1 << 29);
    const auto line = [&](int top) {
      const CRect dots(start.x, start.y + top, static_cast<LONG>(right),
                       start.y + top + face.LineThickness());
      with.clip.ForEach(dots,
                        [&](const CRect& part) { FillDots(part, Opaque(with.textColour), R2_COPYPEN); });
    };
    if (face.UnderlineTop() != 0) {
      line(face.UnderlineTop());
    }
    if (face.StrikeTop() != 0) {
      line(face.StrikeTop());
    }
  }
}

}  // namespace coregui
