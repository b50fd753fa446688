#include "platform/qt/PainterTarget.h"

#include <QPainterPath>
#include <QRegion>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>

#include "platform/qt/BitmapData.h"
#include "platform/qt/HardLine.h"
#include "platform/qt/RasterTarget.h"

namespace coregui {

namespace {

QRect ToQt(const CRect& rect) {
  return {rect.left, rect.top, rect.Width(), rect.Height()};
}

// Far coordinates are cut off where the painter is still exact.
double Sane(double value) {
  constexpr double limit = 1e7;
  return std::isfinite(value) ? std::clamp(value, -limit, limit) : 0.0;
}

QPainter::CompositionMode ModeOf(int rop) {
  switch (rop) {
    case R2_XORPEN:
      return QPainter::RasterOp_SourceXorDestination;
    case R2_NOT:
      return QPainter::RasterOp_NotDestination;
    default:
      return QPainter::CompositionMode_SourceOver;
  }
}

Qt::PenStyle StyleOf(int style) {
  switch (style) {
    case PS_DASH:
      return Qt::DashLine;
    case PS_DOT:
      return Qt::DotLine;
    case PS_DASHDOT:
      return Qt::DashDotLine;
    case PS_DASHDOTDOT:
      return Qt::DashDotDotLine;
    case PS_NULL:
      return Qt::NoPen;
    default:
      return Qt::SolidLine;
  }
}

// The angle of a ray from the centre of an ellipse's box, on the ellipse made round, in degrees
// anticlockwise.
double AngleOf(const CRect& rect, POINT point) {
  const double x = (point.x - (rect.left + rect.right) / 2.0) / std::max<LONG>(1, rect.Width());
  const double y = ((rect.top + rect.bottom) / 2.0 - point.y) / std::max<LONG>(1, rect.Height());
  return std::atan2(y, x) * 180.0 / std::numbers::pi;
}

}  // namespace

QRegion RegionOf(const Clip& clip) {
  QRegion region;
  clip.ForEach(clip.box, [&region](const CRect& piece) { region += ToQt(piece); });
  return region;
}

QPainter* PainterTarget::Begin(const DrawAttributes& with) {
  if (with.clip.box.IsRectEmpty()) {
    return nullptr;
  }
  QPainter* painter = OpenPainter(with.clip);
  if (painter == nullptr) {
    return nullptr;
  }
  if (with.clip.region == nullptr) {
    painter->setClipRect(ToQt(with.clip.box));
  } else {
    painter->setClipRegion(RegionOf(with.clip));
  }
  painter->setCompositionMode(ModeOf(with.rop));
  painter->setRenderHint(QPainter::Antialiasing, with.smooth && with.rop == R2_COPYPEN);
  return painter;
}

QPointF PainterTarget::DotPoint(const DrawAttributes& with, double x, double y) const {
  const double dotX = Grid().x.Exact(x + with.origin.x);
  const double dotY = Grid().y.Exact(y + with.origin.y);
  if (with.smooth) {
    // A whole coordinate names the middle of its pixel, so that smooth and hard lines lie on each other.
    return {Sane(dotX + Scale() / 2.0), Sane(dotY + Scale() / 2.0)};
  }
  const bool isOdd = with.pen->GetStyle() != PS_NULL && DotWidth(with.pen->GetWidth()) % 2 != 0;
  const double middle = HasWholeDots() || !isOdd ? 0.0 : 0.5;
  return {Sane(std::floor(dotX + 0.5) + middle), Sane(std::floor(dotY + 0.5) + middle)};
}

QPolygonF PainterTarget::DotPoints(const DrawAttributes& with, const POINT* points, int count) const {
  QPolygonF dots;
  dots.reserve(count);
  for (int i = 0; i < count; ++i) dots << DotPoint(with, points[i].x, points[i].y);
  return dots;
}

QPen PainterTarget::PenOf(const DrawAttributes& with) const {
  // A hair more than a dot: the toolkit's own way for lines of one dot loses the place of dashes at the edge.
  constexpr double kLeastSmooth = 1.0 + 1.0 / 256.0;
  const double width =
      with.smooth ? std::max(kLeastSmooth, with.pen->GetWidth() * Scale()) : DotWidth(with.pen->GetWidth());
  QPen pen(QColor::fromRgb(Opaque(with.pen->GetColor())), width, StyleOf(with.pen->GetStyle()));
  pen.setCapStyle(Qt::RoundCap);
  pen.setJoinStyle(Qt::RoundJoin);
  if (width <= kLeastSmooth || with.pen->GetStyle() != PS_SOLID) {
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
  }
  if (with.pen->GetDashUnit() > 0.0) {
    QList<qreal> lengths;  // the toolkit's are in widths of the pen
    for (const double units : DashUnits(with.pen->GetStyle())) {
      lengths << units * with.pen->GetDashUnit() * Scale() / pen.widthF();
    }
    if (!lengths.empty()) pen.setDashPattern(lengths);
  }
  return pen;
}

QBrush PainterTarget::BrushOf(const CBrush& brush) const {
  static constexpr Qt::BrushStyle hatches[] = {Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                               Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
  switch (brush.GetKind()) {
    case CBrush::Kind::none:
      return Qt::NoBrush;
    case CBrush::Kind::solid:
      return QColor::fromRgb(Opaque(brush.GetColor()));
    case CBrush::Kind::hatched:
      break;
  }
  QBrush result(QColor::fromRgb(Opaque(brush.GetColor())), hatches[std::clamp(brush.GetHatch(), 0, 5)]);
  result.setTransform(QTransform::fromScale(Scale(), Scale()));
  return result;
}

void PainterTarget::Polyline(const DrawAttributes& with, const POINT* points, int count) {
  QPainter* painter = with.pen->GetStyle() != PS_NULL ? Begin(with) : nullptr;
  if (painter == nullptr) {
    return;
  }
  painter->setPen(PenOf(with));
  painter->setBrush(Qt::NoBrush);
  painter->drawPolyline(DotPoints(with, points, count));
  Drawn(with.clip.box);
}

void PainterTarget::PolylineF(const DrawAttributes& with, const double* xy, int count) {
  QPainter* painter = with.pen->GetStyle() != PS_NULL ? Begin(with) : nullptr;
  if (painter == nullptr) {
    return;
  }
  painter->setPen(PenOf(with));
  painter->setBrush(Qt::NoBrush);
  QPolygonF line;
  line.reserve(count);
  // A point that is no number ends a piece of the line.
  for (int i = 0; i <= count; ++i) {
    const double* const point = xy + std::ptrdiff_t{2} * i;
    if (i < count && std::isfinite(point[0]) && std::isfinite(point[1])) {
      line << DotPoint(with, point[0], point[1]);
    } else if (!line.isEmpty()) {
      painter->drawPolyline(line);
      line.clear();
    }
  }
  Drawn(with.clip.box);
}

void PainterTarget::Polygon(const DrawAttributes& with, const POINT* points, int count) {
  QPainter* painter = Begin(with);
  if (painter == nullptr) {
    return;
  }
  painter->setPen(PenOf(with));
  painter->setBrush(BrushOf(*with.brush));
  painter->drawPolygon(DotPoints(with, points, count), Qt::OddEvenFill);
  Drawn(with.clip.box);
}

void PainterTarget::DrawShape(const DrawAttributes& with, Shape shape, const CRect& rect,
                              const ShapeDetail& detail) {
  CRect normal = rect;
  normal.NormalizeRect();
  QPainter* painter = normal.IsRectEmpty() ? nullptr : Begin(with);
  if (painter == nullptr) {
    return;
  }
  const CRect dots = DotRect(with, normal);
  const QPen pen = PenOf(with);
  // The outline's middle lies half its width inside the rectangle. Hard one-dot lines cover the dot right and
  // below of their coordinates, so the far edges come one dot in.
  const double inset = with.pen->GetStyle() == PS_NULL ? 0.0 : pen.widthF() / 2.0;
  const bool hard = !with.smooth && inset > 0.0 && HasWholeDots();
  const QRectF box = hard ? QRectF(dots.left + std::floor(inset), dots.top + std::floor(inset),
                                   dots.Width() - pen.widthF(), dots.Height() - pen.widthF())
                          : QRectF(ToQt(dots)).adjusted(inset, inset, -inset, -inset);
  painter->setPen(pen);
  painter->setBrush(shape == Shape::arc ? QBrush(Qt::NoBrush) : BrushOf(*with.brush));
  const double start = AngleOf(normal, detail.start);
  double sweep = AngleOf(normal, detail.end) - start;
  sweep += sweep <= 0.0 ? 360.0 : 0.0;
  constexpr double sixteenths = 16.0;
  const int first = static_cast<int>(std::lround(start * sixteenths));
  const int length = static_cast<int>(std::lround(sweep * sixteenths));
  switch (shape) {
    case Shape::rectangle:
      painter->drawRect(box);
      break;
    case Shape::roundRectangle:
      painter->drawRoundedRect(box, detail.corner.cx * Scale() / 2.0, detail.corner.cy * Scale() / 2.0);
      break;
    case Shape::ellipse:
      painter->drawEllipse(box);
      break;
    case Shape::arc:
      painter->drawArc(box, first, length);
      break;
    case Shape::pie:
      painter->drawPie(box, first, length);
      break;
  }
  Drawn(with.clip.box);
}

void PainterTarget::Fill(const DrawAttributes& with, const CRect& rect, COLORREF colour) {
  if (QPainter* painter = Begin(with)) {
    painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter->fillRect(ToQt(DotRect(with, rect)), QColor::fromRgb(Opaque(colour)));
    Drawn(with.clip.box);
  }
}

void PainterTarget::FillHatched(const DrawAttributes& with, const CRect& rect, const CBrush& brush) {
  if (QPainter* painter = Begin(with)) {
    const QRect dots = ToQt(DotRect(with, rect));
    painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (with.backMode == OPAQUE) {
      painter->fillRect(dots, QColor::fromRgb(Opaque(with.backColour)));
    }
    painter->fillRect(dots, BrushOf(brush));
    Drawn(with.clip.box);
  }
}

void PainterTarget::Invert(const DrawAttributes& with, const CRect& rect) {
  if (QPainter* painter = Begin(with)) {
    painter->setCompositionMode(QPainter::RasterOp_NotDestination);
    painter->fillRect(ToQt(DotRect(with, rect)), Qt::black);
    Drawn(with.clip.box);
  }
}

void PainterTarget::FocusRect(const DrawAttributes& with, const CRect& rect) {
  if (QPainter* painter = Begin(with)) {
    painter->setPen(QPen(Qt::black, 0, Qt::DotLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(ToQt(DotRect(with, rect)).adjusted(0, 0, -1, -1));
    Drawn(with.clip.box);
  }
}

COLORREF PainterTarget::ReadPixel(const DrawAttributes&, int, int) const {
  return 0xFFFFFFFF;
}

// --- Bitmaps

void PainterTarget::Bitmap(const DrawAttributes& with, const BitmapData& bitmap, const CRect& to) {
  if (QPainter* painter = Begin(with)) {
    painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter->drawImage(ToQt(DotRect(with, to)), bitmap.surface->Image());
    Drawn(with.clip.box);
  }
}

bool PainterTarget::Copy(const DrawAttributes& with, const CRect& to, DrawTarget& source, CPoint from,
                         bool exclusiveOr) {
  const auto* raster = dynamic_cast<RasterTarget*>(&source);
  if (raster == nullptr) {
    return false;
  }
  QPainter* painter = Begin(with);
  if (painter == nullptr) {
    return true;
  }
  const CRect dots = source.Grid().Dots(CRect(from, to.Size()));
  painter->setCompositionMode(exclusiveOr ? QPainter::RasterOp_SourceXorDestination
                                          : QPainter::CompositionMode_SourceOver);
  painter->drawImage(ToQt(DotRect(with, to)), raster->Pixels()->Snapshot(), ToQt(dots));
  Drawn(with.clip.box);
  return true;
}

}  // namespace coregui
