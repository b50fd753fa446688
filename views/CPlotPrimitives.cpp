#include "views/CPlotPrimitives.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

#include "views/CLineStraightener.h"
#include "views/CPolylineSink.h"
#include "views/ClipPolygon.h"
#include "views/DeviceNumbers.h"
#include "views/HatchPolygon.h"
#include "views/ReduceDashes.h"
#include "views/ReduceSeries.h"

namespace coregui {

namespace {

/// Filled shapes are clipped this far outside the area: their edges keep their slopes and stay out of sight.
constexpr double kFillRoom = 4096.0;
/// Smooth shapes that reach further out are drawn hard: their parts outside are dropped then.
constexpr double kSmoothLimit = 1e6;
constexpr double kStraightPlaces = 0.5;  // by which points of a smooth line may be off a straight part
/// Pixels of smooth slanted lines that are drawn in a quarter of a second.
constexpr double kMostSlanted = 4e6;
// Points that dashed lines are drawn with one by one: thin ones between two places where the dashes begin
// anew, wide ones likewise, which take the toolkit far longer, and all points of smooth ones.
constexpr std::size_t kMostThin = 32768;
constexpr std::size_t kMostWide = 4096;
constexpr std::size_t kMostSmooth = 4000;
constexpr double kHatchPixels = 8.0;  // from line to line along a row, as on the screen

constexpr PNT_2D_record kGap = {std::numeric_limits<double>::quiet_NaN(),
                                std::numeric_limits<double>::quiet_NaN()};

bool AreDrawable(std::initializer_list<PNT_2D_record> points) {
  return std::all_of(points.begin(), points.end(), CPlotSeries::IsDrawable);
}

/// The length of the parts of a line that are not upright, inside an area or nearly; points of NaN part it.
double SlantedLength(const std::vector<PNT_2D_record>& points, CRect const& area) {
  constexpr double kUpright = 64.0;  // pixels up or down that an upright part takes for one aside
  const auto size = [](double a, double b, LONG low, LONG high) {
    return std::fabs(std::clamp<double>(a, low, high) - std::clamp<double>(b, low, high));
  };
  double length = 0.0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    const double right = size(points[i].x, points[i - 1].x, area.left, area.right);
    const double down = size(points[i].y, points[i - 1].y, area.top, area.bottom);
    length += right >= 0.0 ? right + std::min(down, right * kUpright) : 0.0;
  }
  return length;
}

CPoint Rounded(PNT_2D_record const& p) {
  return {TruncateToDevice(std::floor(p.x + 0.5)), TruncateToDevice(std::floor(p.y + 0.5))};
}

}  // namespace

CPlotPrimitives::CPlotPrimitives() = default;

CPlotPrimitives::~CPlotPrimitives() = default;

void CPlotPrimitives::BeginPlot(CDC& dc, CRect const& area, CSize dotsPerInch) {
  m_dc = &dc;
  m_area = area;
  m_dpi = dotsPerInch;
  m_saved = dc.SaveDC();
  dc.SetBkMode(TRANSPARENT);
  m_pen = {};
  m_fill = {};
  m_text = {};
  m_smooth = false;
}

void CPlotPrimitives::EndPlot() {
  if (m_dc != nullptr) {
    m_dc->RestoreDC(m_saved);
  }
  m_dc = nullptr;
}

double CPlotPrimitives::ScreenPixel() const {
  return IsPaper() ? m_dpi.cy / 96.0 : 1.0;
}

int CPlotPrimitives::PenPixels() const {
  const double pixels =
      m_pen.unit == PlotUnit::points ? PixelsOfPoints(m_pen.width) : m_pen.width * ScreenPixel();
  return std::max<int>(1, TruncateToDevice(pixels + 0.5));
}

CRect CPlotPrimitives::VisibleForPen() const {
  const int room = 4 * std::min(PenPixels(), 10000) + 2;
  CRect visible = m_area;
  visible.InflateRect(room, room);
  return visible;
}

void CPlotPrimitives::SelectPen() {
  auto pen = std::make_unique<CPen>(m_pen.style, PenPixels(), m_pen.colour);
  if (PenPixels() < 1.5 * ScreenPixel()) pen->SetDashUnit(ScreenPixel());  // thin on the screen
  m_dc->SelectObject(pen.get());
  m_selected = std::move(pen);
}

void CPlotPrimitives::StrokeSink(const CPolylineSink& sink) {
  if (sink.GetCounts().empty()) {
    return;
  }
  SelectPen();
  const POINT* points = sink.GetPoints().data();
  if (PenPixels() == 1 || IsPaper()) {
    m_dc->PolyPolyline(points, sink.GetCounts().data(), static_cast<int>(sink.GetCounts().size()));
    return;
  }
  for (const DWORD count : sink.GetCounts()) {
    // Between two points a wide line along a row or column has flat ends; between three it is like any other.
    if (count == 2 && (points[0].x == points[1].x || points[0].y == points[1].y)) {
      const POINT three[] = {points[0], points[1], points[1]};
      m_dc->Polyline(three, 3);
    } else {
      m_dc->Polyline(points, static_cast<int>(count));
    }
    points += count;
  }
}

PNT_2D_record CPlotPrimitives::PlaceOf(PNT_2D_record const& p) const {
  const PNT_2D_record at = GetPlotMapping().UserToDevice(p);
  if (m_smooth || !CPlotSeries::IsDrawable(at)) {
    return at;
  }
  const CPoint pixel = GetPlotMapping().UserToWindow(p);
  return {static_cast<double>(pixel.x), static_cast<double>(pixel.y)};
}

std::vector<PNT_2D_record> CPlotPrimitives::ToDevice(const std::vector<PNT_2D_record>& points) const {
  std::vector<PNT_2D_record> device;
  device.reserve(points.size());
  for (const PNT_2D_record& p : points) {
    const PNT_2D_record at = PlaceOf(p);
    if (CPlotSeries::IsDrawable(at)) {
      device.push_back(at);
    }
  }
  return device;
}

void CPlotPrimitives::StrokeFractional(const std::vector<PNT_2D_record>& devicePoints) {
  SelectPen();
  const bool before = m_dc->SetAntiAliasing(true);
  m_dc->PolylineF(&devicePoints[0].x, static_cast<int>(devicePoints.size()));
  m_dc->SetAntiAliasing(before);
}

void CPlotPrimitives::StrokeDevice(const std::vector<PNT_2D_record>& devicePoints) {
  const bool near = std::all_of(devicePoints.begin(), devicePoints.end(), [](PNT_2D_record const& p) {
    return std::fabs(p.x) < kSmoothLimit && std::fabs(p.y) < kSmoothLimit;
  });
  if (m_smooth && near && devicePoints.size() > 1) {
    StrokeFractional(devicePoints);
    return;
  }
  const auto putIn = [&](CPolylineSink sink) {
    for (const PNT_2D_record& p : devicePoints) {
      sink.Add(Rounded(p));
    }
    sink.Break();
    return sink;
  };
  const CPolylineSink seen = putIn(CPolylineSink(VisibleForPen()));
  const bool needsAll = m_pen.style != PS_SOLID && !seen.GetCounts().empty();
  StrokeSink(needsAll ? putIn(CPolylineSink(CPolylineSink::Everywhere())) : seen);  // dashes follow all of it
}

bool CPlotPrimitives::StrokeDashedSmoothly(const CPlotSeries& series) {
  if (!m_smooth || series.GetCount() > kMostSmooth) {
    return false;
  }
  std::vector<PNT_2D_record> device;
  for (const PNT_2D_record& p : series.GetPoints()) {
    device.push_back(CPlotSeries::IsDrawable(p) ? GetPlotMapping().UserToDevice(p) : kGap);
  }
  const auto isFar = [](PNT_2D_record const& p) {
    return std::fabs(p.x) > kSmoothLimit || std::fabs(p.y) > kSmoothLimit;
  };
  if (std::any_of(device.begin(), device.end(), isFar)) {
    return false;
  }
  StrokeFractional(device);
  return true;
}

void CPlotPrimitives::StrokeDashed(const CPlotSeries& series) {
  if (series.GetCount() < 2 || StrokeDashedSmoothly(series)) {
    return;
  }
  const DashedLine line =
      ReduceDashes(series, GetPlotMapping(), VisibleForPen(), PenPixels() > 1 ? kMostWide : kMostThin);
  StrokeSink(line.dashes);
  const int style = std::exchange(m_pen.style, PS_SOLID);
  StrokeSink(line.solid);
  m_pen.style = style;
}

int CPlotPrimitives::PlacesFor(const CPlotSeries& series) const {
  constexpr double kPlaces = 8.0;                     // in a dot, or on paper in a pixel of the screen
  constexpr double kMost = (1 << 30) >> kPlaceShift;  // that whole numbers hold with room to spare
  FRect bounds;
  if (!series.GetBounds(&bounds)) {
    return 0;
  }
  double reach = 1.0;
  for (const PNT_2D_record& corner : {bounds.TopLeft(), bounds.BottomRight()}) {
    const PNT_2D_record at = GetPlotMapping().UserToDevice(corner);
    reach = std::max({reach, std::fabs(at.x), std::fabs(at.y)});
  }
  const double places = std::round(kPlaces * (IsPaper() ? 1.0 / ScreenPixel() : m_dc->GetScaleFactor()));
  return TruncateToDevice(std::min(std::max(1.0, places), kMost / reach));
}

bool CPlotPrimitives::StrokeSmoothly(const CPlotSeries& series) {
  const int places = PlacesFor(series);
  if (places == 0) {
    return false;
  }
  const int units = places << kPlaceShift;
  const CRect visible = VisibleForPen();
  CPolylineSink sink(
      CRect(visible.left * units, visible.top * units, visible.right * units, visible.bottom * units));
  ReduceSeriesToPlaces(series, GetPlotMapping(), places, sink);
  // All parts at once, gaps between them: where they overlap the line is drawn once.
  CLineStraightener line(kStraightPlaces / places);
  const POINT* point = sink.GetPoints().data();
  for (const DWORD count : sink.GetCounts()) {
    for (const POINT* const end = point + count; point != end; ++point) {
      line.Add({point->x / static_cast<double>(units), point->y / static_cast<double>(units)});
    }
    line.Break();
  }
  if (SlantedLength(line.GetPoints(), m_area) > kMostSlanted) {
    return false;
  }
  if (!line.GetPoints().empty()) {
    StrokeFractional(line.GetPoints());
  }
  return true;
}

void CPlotPrimitives::Hatch(const std::vector<PNT_2D_record>& outline) {
  // Line by line: a device's own hatches are of its dots, which are too fine on paper and on fine screens.
  CPolylineSink sink(VisibleForPen());
  const std::vector<PNT_2D_record> parts = HatchPolygon(outline, m_fill.hatch, kHatchPixels * ScreenPixel());
  for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
    sink.Add(Rounded(parts[i]));
    sink.Add(Rounded(parts[i + 1]));
    sink.Break();
  }
  const PlotPen outlinePen = m_pen;
  m_pen = {m_fill.colour};
  StrokeSink(sink);
  m_pen = outlinePen;
}

void CPlotPrimitives::FillDevice(const std::vector<PNT_2D_record>& devicePoints) {
  if (m_fill.kind == PlotFill::Kind::none) {
    return;
  }
  const FRect box(m_area.left - kFillRoom, m_area.top - kFillRoom, m_area.right + kFillRoom,
                  m_area.bottom + kFillRoom);
  const std::vector<PNT_2D_record> outline = ClipPolygon(devicePoints, box);
  if (m_fill.kind == PlotFill::Kind::hatched) {
    Hatch(outline);
    return;
  }
  std::vector<POINT> pixels;
  pixels.reserve(outline.size());
  for (const PNT_2D_record& p : outline) {
    pixels.push_back(Rounded(p));
  }
  if (pixels.size() < 3) {
    return;
  }
  CPen none(PS_NULL, 1, 0);
  CBrush solid(m_fill.colour);
  const int saved = m_dc->SaveDC();
  m_dc->SelectObject(&none);
  m_dc->SelectObject(&solid);
  m_dc->SetAntiAliasing(m_smooth);
  m_dc->Polygon(pixels.data(), static_cast<int>(pixels.size()));
  m_dc->RestoreDC(saved);
}

void CPlotPrimitives::PlotLine(PNT_2D_record const& from, PNT_2D_record const& to) {
  if (IsPlotting() && AreDrawable({from, to})) {
    PlotPolyline(std::vector<PNT_2D_record>{from, to});
  }
}

void CPlotPrimitives::PlotPolyline(const std::vector<PNT_2D_record>& points) {
  if (IsPlotting()) {
    PlotPolyline(CPlotSeries(points));
  }
}

void CPlotPrimitives::PlotPolyline(const CPlotSeries& series) {
  if (!IsPlotting()) {
    return;
  }
  if (m_dc->GetROP2() != R2_COPYPEN) {
    // Overlapping pixels cancel out here, so every segment counts.
    CPolylineSink sink(VisibleForPen());
    for (const PNT_2D_record& p : series.GetPoints()) {
      if (CPlotSeries::IsDrawable(p)) {
        sink.Add(GetPlotMapping().UserToWindow(p));
      } else {
        sink.Break();
      }
    }
    sink.Break();
    StrokeSink(sink);
    return;
  }
  if (m_pen.style != PS_SOLID) {
    StrokeDashed(series);
    return;
  }
  if (m_smooth && StrokeSmoothly(series)) {
    return;
  }
  CPolylineSink sink(VisibleForPen());
  ReduceSeries(series, GetPlotMapping(), sink);
  StrokeSink(sink);
}

void CPlotPrimitives::PlotPolygon(const std::vector<PNT_2D_record>& points) {
  if (!IsPlotting()) {
    return;
  }
  std::vector<PNT_2D_record> device = ToDevice(points);
  if (device.size() < 2) {
    return;
  }
  FillDevice(device);
  device.push_back(device.front());
  StrokeDevice(device);
}

void CPlotPrimitives::PlotRectangle(FRect const& rect) {
  if (AreDrawable({rect.TopLeft(), rect.BottomRight()})) {
    PlotPolygon({rect.TopLeft(),
                 {rect.GetRight(), rect.GetTop()},
                 rect.BottomRight(),
                 {rect.GetLeft(), rect.GetBottom()}});
  }
}

std::vector<PNT_2D_record> CPlotPrimitives::CurvePoints(PNT_2D_record const& centre,
                                                        PNT_2D_record const& radii, double start,
                                                        double sweep) const {
  // As many chords as keep them within a quarter of a pixel of the curve.
  const PNT_2D_record at = GetPlotMapping().UserToDevice(centre);
  const PNT_2D_record edge = GetPlotMapping().UserToDevice({centre.x + radii.x, centre.y + radii.y});
  const double pixels = std::max({1.0, std::fabs(edge.x - at.x), std::fabs(edge.y - at.y)});
  const double chords =
      std::ceil(std::fabs(sweep) / 360.0 * std::numbers::pi * std::sqrt(2.0 * pixels)) + 4.0;
  const int count = static_cast<int>(std::min(20000.0, chords));  // NaN too, of an endless arc without sweep
  std::vector<PNT_2D_record> points;
  points.reserve(static_cast<std::size_t>(count) + 1);
  for (int i = 0; i <= count; ++i) {
    const double angle = (start + sweep * i / count) * std::numbers::pi / 180.0;
    points.push_back({centre.x + radii.x * std::cos(angle), centre.y + radii.y * std::sin(angle)});
  }
  return points;
}

void CPlotPrimitives::PlotCircle(PNT_2D_record const& centre, double radius) {
  PlotEllipse(centre, radius, radius);
}

void CPlotPrimitives::PlotEllipse(PNT_2D_record const& centre, double radiusX, double radiusY) {
  if (IsPlotting() && AreDrawable({centre, {radiusX, radiusY}})) {
    std::vector<PNT_2D_record> points = CurvePoints(centre, {radiusX, radiusY}, 0.0, 360.0);
    points.pop_back();
    PlotPolygon(points);
  }
}

void CPlotPrimitives::PlotArc(PNT_2D_record const& centre, double radius, double startDegrees,
                              double sweepDegrees) {
  if (IsPlotting() && AreDrawable({centre, {radius, radius}, {startDegrees, sweepDegrees}})) {
    StrokeDevice(ToDevice(
        CurvePoints(centre, {radius, radius}, startDegrees, std::clamp(sweepDegrees, -360.0, 360.0))));
  }
}

void CPlotPrimitives::PlotBitmap(const CBitmap& bitmap, FRect const& to) {
  if (!IsPlotting() || !bitmap.IsCreated() || !AreDrawable({to.TopLeft(), to.BottomRight()})) {
    return;
  }
  const CPoint a = GetPlotMapping().UserToWindow(to.TopLeft());
  const CPoint b = GetPlotMapping().UserToWindow(to.BottomRight());
  CRect rect(std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y));
  CRect seen;
  if (seen.IntersectRect(rect, m_area)) {
    m_dc->StretchBitmap(bitmap, rect);
  }
}

void CPlotPrimitives::DrawDeviceLine(CPoint from, CPoint to) {
  CPolylineSink sink(VisibleForPen());
  sink.Add(from);
  sink.Add(to);
  sink.Break();
  StrokeSink(sink);
}

}  // namespace coregui
