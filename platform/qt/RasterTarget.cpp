#include "platform/qt/RasterTarget.h"

#include <cmath>
#include <cstring>
#include <limits>

#include "platform/qt/BitmapData.h"
#include "platform/qt/FontFace.h"
#include "platform/qt/GlyphRow.h"
#include "platform/qt/HardLine.h"

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
  const std::uint8_t* coverage = glyph.coverage + (top - y) * stride;
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

RasterTarget::RasterTarget(std::shared_ptr<Surface> surface)
    : PainterTarget(surface->Scale()), m_surface(std::move(surface)) {
  m_surface->Enter();
}

RasterTarget::~RasterTarget() {
  m_surface->Leave();
}

int RasterTarget::Capability(int index) const {
  switch (index) {
    case HORZRES:
      return m_surface->Size().cx;
    case VERTRES:
      return m_surface->Size().cy;
    case LOGPIXELSX:
    case LOGPIXELSY:
      return DotsPerInch();
    default:
      return 0;
  }
}

bool RasterTarget::DrawsHard(const DrawAttributes& with) const {
  // Wide slanted pens need round joints, unless the mode is one that must not touch a dot twice.
  return !with.smooth && (with.pen->GetWidth() <= 1 || with.rop != R2_COPYPEN);
}

void RasterTarget::PutRect(const CRect& dots, std::uint32_t colour, int rop) {
  const int width = dots.Width();
  const std::ptrdiff_t stride = m_surface->Stride();
  std::uint32_t* row = m_surface->Row(dots.top) + dots.left;
  if (width == 1 && rop == R2_COPYPEN) {  // a plot is drawn with hundreds of thousands of these
    for (int y = dots.top; y < dots.bottom; ++y, row += stride) {
      *row = colour;
    }
    return;
  }
  for (int y = dots.top; y < dots.bottom; ++y, row += stride) {
    if (rop == R2_COPYPEN) {
      std::fill_n(row, width, colour);
    } else {
      PutDots(row, width, colour, rop);
    }
  }
}

void RasterTarget::FillDots(const CRect& dots, std::uint32_t colour, int rop) {
  if (rop != R2_COPYPEN || !m_surface->Recolour(dots, colour)) {
    PutRect(dots, colour, rop);
  }
  m_surface->Damage(dots);
}

// --- Fills

void RasterTarget::Fill(const DrawAttributes& with, const CRect& rect, COLORREF colour) {
  const std::uint32_t dot = Opaque(colour);
  with.clip.ForEach(DotRect(with, rect), [this, dot](const CRect& part) { FillDots(part, dot, R2_COPYPEN); });
}

void RasterTarget::Invert(const DrawAttributes& with, const CRect& rect) {
  with.clip.ForEach(DotRect(with, rect), [this](const CRect& part) { FillDots(part, 0, R2_NOT); });
}

void RasterTarget::FocusRect(const DrawAttributes& with, const CRect& rect) {
  const CRect frame = DotRect(with, rect);
  if (frame.IsRectEmpty()) {
    return;
  }
  const int thick = DotWidth(1);
  // Every second dot (of the pen's thickness) by position, so that frames which share an edge match.
  const auto dotted = [this, thick](const CRect& part) {
    for (int y = part.top; y < part.bottom; ++y) {
      std::uint32_t* row = m_surface->Row(y);
      for (int x = part.left; x < part.right; ++x) {
        row[x] ^= ((x / thick + y / thick) & 1) == 0 ? 0x00FFFFFFU : 0U;
      }
    }
    m_surface->Damage(part);
  };
  const LONG innerTop = std::min<LONG>(frame.top + thick, frame.bottom);
  const LONG innerBottom = std::max<LONG>(frame.bottom - thick, innerTop);
  const LONG innerLeft = std::min<LONG>(frame.left + thick, frame.right);
  with.clip.ForEach(CRect(frame.left, frame.top, frame.right, innerTop), dotted);
  with.clip.ForEach(CRect(frame.left, innerBottom, frame.right, frame.bottom), dotted);
  with.clip.ForEach(CRect(frame.left, innerTop, innerLeft, innerBottom), dotted);
  with.clip.ForEach(CRect(std::max<LONG>(frame.right - thick, innerLeft), innerTop, frame.right, innerBottom),
                    dotted);
}

COLORREF RasterTarget::ReadPixel(const DrawAttributes& with, int x, int y) const {
  const int dotX = Dot(std::int64_t{x} + with.origin.x);
  const int dotY = Dot(std::int64_t{y} + with.origin.y);
  const CSize size = Dots();
  if (dotX < 0 || dotY < 0 || dotX >= size.cx || dotY >= size.cy) {
    return 0xFFFFFFFF;
  }
  const std::uint32_t dot = m_surface->Row(dotY)[dotX];
  return RGB(static_cast<int>((dot >> 16U) & 0xFFU), static_cast<int>((dot >> 8U) & 0xFFU),
             static_cast<int>(dot & 0xFFU));
}

// --- Lines

LinePen RasterTarget::HardPen(const DrawAttributes& with) const {
  LinePen pen;
  const int width = std::abs(with.pen->GetWidth());
  pen.colour = Opaque(with.pen->GetColor());
  pen.rop = with.rop;
  pen.thickness = width == 0 ? 1 : DotWidth(width);
  pen.before = width > 1 ? DotWidth(width / 2) : 0;
  pen.style = width > 1 ? PS_SOLID : with.pen->GetStyle();
  pen.dash = std::max(1.0, Scale());
  pen.gap = Opaque(with.backColour);
  pen.fillsGaps = with.backMode == OPAQUE && with.rop == R2_COPYPEN;
  return pen;
}

CRect RasterTarget::PutStraight(const DrawAttributes& with, bool level, std::int64_t at, std::int64_t start,
                                std::int64_t end, const LinePen& pen) {
  const int first = Dot(start);
  const int last = Dot(end);
  // A thin line ends with its pixel at the latest: where a pixel is no whole number of dots, it must not
  // reach into the next one, which may be another's.
  const int across = pen.before > 0 ? Dot(at) - pen.before : std::min(Dot(at), Dot(at + 1) - pen.thickness);
  const CRect dots = level ? CRect(first, across, last, across + pen.thickness)
                           : CRect(across, first, across + pen.thickness, last);
  with.clip.ForEach(dots, [this, &pen](const CRect& part) { PutRect(part, pen.colour, pen.rop); });
  return dots;
}

CRect RasterTarget::StraightLine(const DrawAttributes& with, POINT from, POINT to, const LinePen& pen) {
  const std::int64_t fromX = std::int64_t{from.x} + with.origin.x;
  const std::int64_t fromY = std::int64_t{from.y} + with.origin.y;
  const std::int64_t toX = std::int64_t{to.x} + with.origin.x;
  const std::int64_t toY = std::int64_t{to.y} + with.origin.y;
  const bool level = fromY == toY;
  if ((level || fromX == toX) && pen.style == PS_SOLID) {
    const std::int64_t start = level ? fromX : fromY;
    const std::int64_t end = level ? toX : toY;
    return PutStraight(with, level, level ? fromY : fromX, start <= end ? start : end + 1,
                       start <= end ? end : start + 1, pen);
  }
  with.clip.ForEach(with.clip.box, [&](const CRect& part) {
    DrawHardLine(*m_surface, part, pen, WideDot(fromX), WideDot(fromY), WideDot(toX), WideDot(toY));
  });
  return with.clip.box;
}

void RasterTarget::Polyline(const DrawAttributes& with, const POINT* points, int count) {
  if (with.pen->GetStyle() == PS_NULL || with.clip.box.IsRectEmpty()) {
    return;
  }
  const bool straight = count == 2 && (points[0].x == points[1].x || points[0].y == points[1].y);
  if (!DrawsHard(with) && !(straight && !with.smooth)) {
    PainterTarget::Polyline(with, points, count);
    return;
  }
  LinePen pen = HardPen(with);
  if (count == 2) {
    CRect drawn;
    drawn.IntersectRect(StraightLine(with, points[0], points[1], pen), with.clip.box);
    m_surface->Damage(drawn);
    return;
  }
  m_surface->Damage(with.clip.box);
  const bool merges = pen.rop == R2_COPYPEN && pen.style == PS_SOLID;
  for (int i = 1; i < count;) {
    const int next = merges ? PutUpAndDown(with, points, i, count, pen) : i;
    if (next == i) {
      StraightLine(with, points[i - 1], points[i], pen);
      pen.walked += std::max(std::abs(WideDot(points[i].x) - WideDot(points[i - 1].x)),
                             std::abs(WideDot(points[i].y) - WideDot(points[i - 1].y)));
      ++i;
    } else {
      i = next;
    }
  }
}

int RasterTarget::PutUpAndDown(const DrawAttributes& with, const POINT* points, int i, int count,
                               const LinePen& pen) {
  const LONG x = points[i - 1].x;
  LONG low = std::numeric_limits<LONG>::max();
  LONG high = std::numeric_limits<LONG>::min();
  int next = i;
  for (; next < count && points[next].x == x; ++next) {
    const LONG from = points[next - 1].y;
    const LONG to = points[next].y;
    if (from != to) {
      low = std::min(low, from < to ? from : to + 1);
      high = std::max(high, from < to ? to - 1 : from);
    }
  }
  if (next - i < 2) {
    return i;
  }
  if (low <= high) {
    PutStraight(with, false, std::int64_t{x} + with.origin.x, std::int64_t{low} + with.origin.y,
                std::int64_t{high} + with.origin.y + 1, pen);
  }
  return next;
}

void RasterTarget::PolylineF(const DrawAttributes& with, const double* xy, int count) {
  if (!DrawsHard(with)) {
    PainterTarget::PolylineF(with, xy, count);
    return;
  }
  if (with.pen->GetStyle() == PS_NULL || with.clip.box.IsRectEmpty()) {
    return;
  }
  LinePen pen = HardPen(with);
  const double scale = Scale();
  const auto dot = [scale](double value) {
    constexpr double limit = 4e9;
    return static_cast<std::int64_t>(std::floor(std::clamp(value * scale, -limit, limit) + 0.5));
  };
  bool drawing = false;
  std::int64_t lastX = 0;
  std::int64_t lastY = 0;
  for (int i = 0; i < count; ++i) {
    const double x = xy[2 * i] + with.origin.x;
    const double y = xy[2 * i + 1] + with.origin.y;
    if (!std::isfinite(x) || !std::isfinite(y)) {
      drawing = false;
      continue;
    }
    const std::int64_t dotX = dot(x);
    const std::int64_t dotY = dot(y);
    if (drawing && (dotX != lastX || dotY != lastY)) {
      with.clip.ForEach(with.clip.box, [&](const CRect& part) {
        DrawHardLine(*m_surface, part, pen, lastX, lastY, dotX, dotY);
      });
      pen.walked += std::max(std::abs(dotX - lastX), std::abs(dotY - lastY));
    }
    drawing = true;
    lastX = dotX;
    lastY = dotY;
  }
  m_surface->Damage(with.clip.box);
}

void RasterTarget::DrawShape(const DrawAttributes& with, Shape shape, const CRect& rect,
                             const ShapeDetail& detail) {
  const bool plain = with.brush->GetKind() != CBrush::Kind::hatched;
  const bool dashed = with.pen->GetStyle() != PS_SOLID && with.pen->GetStyle() != PS_NULL;
  if (shape != Shape::rectangle || with.smooth || !plain || dashed) {
    PainterTarget::DrawShape(with, shape, rect, detail);
    return;
  }
  CRect box = rect;
  box.NormalizeRect();
  const CRect outer = DotRect(with, box);
  const int thick = with.pen->GetStyle() == PS_NULL ? 0 : DotWidth(with.pen->GetWidth());
  const std::uint32_t colour = Opaque(with.pen->GetColor());
  const LONG innerLeft = std::min<LONG>(outer.left + thick, outer.right);
  const LONG innerTop = std::min<LONG>(outer.top + thick, outer.bottom);
  const LONG innerRight = std::max<LONG>(outer.right - thick, innerLeft);
  const LONG innerBottom = std::max<LONG>(outer.bottom - thick, innerTop);
  const auto edge = [&](LONG l, LONG t, LONG r, LONG b) {
    with.clip.ForEach(CRect(l, t, r, b), [&](const CRect& part) { FillDots(part, colour, with.rop); });
  };
  edge(outer.left, outer.top, outer.right, innerTop);
  edge(outer.left, innerBottom, outer.right, outer.bottom);
  edge(outer.left, innerTop, innerLeft, innerBottom);
  edge(innerRight, innerTop, outer.right, innerBottom);
  if (with.brush->GetKind() == CBrush::Kind::solid) {
    const std::uint32_t fill = Opaque(with.brush->GetColor());
    with.clip.ForEach(CRect(innerLeft, innerTop, innerRight, innerBottom),
                      [&](const CRect& part) { FillDots(part, fill, with.rop); });
  }
}

// --- Text

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
  const CPoint start(Dot(std::int64_t{x} + with.origin.x), Dot(std::int64_t{y} + with.origin.y));
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

// --- Bitmaps

void RasterTarget::Bitmap(const DrawAttributes& with, const BitmapData& bitmap, const CRect& to) {
  PainterTarget::Bitmap(with, bitmap, to);
}

bool RasterTarget::Copy(const DrawAttributes& with, const CRect& to, DrawTarget& source, CPoint from,
                        bool exclusiveOr) {
  auto* raster = dynamic_cast<RasterTarget*>(&source);
  if (raster == nullptr || raster->Scale() != Scale()) {
    return PainterTarget::Copy(with, to, source, from, exclusiveOr);
  }
  Surface& other = *raster->m_surface;
  const CRect whole = DotRect(with, to);
  const int shiftX = source.Dot(from.x) - whole.left;
  const int shiftY = source.Dot(from.y) - whole.top;
  CRect readable(CPoint(), other.Dots());
  readable.OffsetRect(-shiftX, -shiftY);
  CRect target;
  if (!target.IntersectRect(whole, readable)) {
    return true;
  }
  if (&other == m_surface.get() && with.clip.region == nullptr && !exclusiveOr) {
    if (target.IntersectRect(target, with.clip.box)) m_surface->MoveDots(target, -shiftX, -shiftY);
    return true;
  }
  // Within one surface the rows are taken in the order in which none is overwritten before it was read.
  const bool upwards = shiftY >= 0;
  with.clip.ForEach(target, [&](const CRect& part) {
    const std::size_t bytes = sizeof(std::uint32_t) * static_cast<std::size_t>(part.Width());
    for (int i = 0; i < part.Height(); ++i) {
      const int y = upwards ? part.top + i : part.bottom - 1 - i;
      std::uint32_t* out = m_surface->Row(y) + part.left;
      const std::uint32_t* in = other.Row(y + shiftY) + part.left + shiftX;
      if (!exclusiveOr) {
        std::memmove(out, in, bytes);
      } else {
        for (int x = 0; x < part.Width(); ++x) {
          out[x] ^= in[x] & 0x00FFFFFFU;
        }
      }
    }
    m_surface->Damage(part);
  });
  return true;
}

}  // namespace coregui
