#include "platform/qt/RasterTarget.h"

#include <algorithm>
#include <cstring>

#include "platform/qt/GlyphRow.h"
#include "platform/qt/HardLine.h"

namespace coregui {

RasterTarget::RasterTarget(std::shared_ptr<Surface> surface)
    : PainterTarget(surface->Grid()), m_surface(std::move(surface)) {
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
  const int dotX = Grid().x.Dot(std::int64_t{x} + with.origin.x);
  const int dotY = Grid().y.Dot(std::int64_t{y} + with.origin.y);
  const CSize size = Dots();
  if (dotX < 0 || dotY < 0 || dotX >= size.cx || dotY >= size.cy) {
    return 0xFFFFFFFF;
  }
  const std::uint32_t dot = m_surface->Row(dotY)[dotX];
  return RGB(static_cast<int>((dot >> 16U) & 0xFFU), static_cast<int>((dot >> 8U) & 0xFFU),
             static_cast<int>(dot & 0xFFU));
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
  const int shiftX = source.Grid().x.Dot(from.x) - whole.left;
  const int shiftY = source.Grid().y.Dot(from.y) - whole.top;
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
