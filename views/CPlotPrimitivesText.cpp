#include <algorithm>
#include <cmath>
#include <numbers>

#include "views/CPlotPrimitives.h"
#include "views/DeviceNumbers.h"
#include "views/RulerScale.h"

// The primitives that write, and those made of lines and texts.

namespace coregui {

namespace {

constexpr long kTallestFont = 2000;
constexpr std::size_t kMostFonts = 64;

/// Turns a vector anticlockwise on a device whose y grows downwards.
PNT_2D_record Turned(double x, double y, double degrees) {
  const double angle = degrees * std::numbers::pi / 180.0;
  return {x * std::cos(angle) + y * std::sin(angle), -x * std::sin(angle) + y * std::cos(angle)};
}

}  // namespace

long CPlotPrimitives::FontPixels(PlotTextStyle const& style) const {
  double pixels = style.height;
  if (style.unit == PlotUnit::points) {
    pixels = PixelsOfPoints(style.height);
  } else if (style.unit == PlotUnit::world) {
    const CPlotMapping& mapping = GetPlotMapping();
    pixels = std::fabs(mapping.UserToDevice({0, style.height}).y - mapping.UserToDevice({0, 0}).y);
  }
  return TruncateToDevice(std::min(pixels + 0.5, 2.0 * kTallestFont));
}

CFont& CPlotPrimitives::FontOf(PlotTextStyle const& style, double rotation) {
  LOGFONT wanted;
  wanted.lfHeight = -static_cast<LONG>(std::max<long>(1, FontPixels(style)));
  wanted.lfEscapement = TruncateToDevice(std::round(std::remainder(rotation, 360.0) * 10.0));
  wanted.lfWeight = style.bold ? FW_BOLD : FW_NORMAL;
  wanted.lfFaceName = style.face;
  if (m_fonts.size() > kMostFonts) {
    m_fonts.clear();  // zooming through world-sized texts makes one per height
  }
  auto& font = m_fonts[{wanted.lfHeight, wanted.lfEscapement, style.bold, style.face.Str()}];
  if (font == nullptr) {
    font = std::make_unique<CFont>();
    font->CreateFontIndirect(wanted);
  }
  return *font;
}

CSize CPlotPrimitives::MeasureDeviceText(const CString& text, PlotTextStyle const& style) {
  CFont* before = m_dc->SelectObject(&FontOf(style, 0.0));
  const CSize size = m_dc->GetTextExtent(text.GetString(), text.GetLength());
  m_dc->SelectObject(before);
  return size;
}

void CPlotPrimitives::DrawDeviceText(CPoint at, const CString& text, PlotTextStyle const& style) {
  const long height = FontPixels(style);
  if (text.IsEmpty() || height < 1 || height > kTallestFont || !std::isfinite(style.rotation)) {
    return;  // too small to be seen, or one letter fills the window
  }
  const int saved = m_dc->SaveDC();
  m_dc->SelectObject(&FontOf(style, 0.0));
  const CSize size = m_dc->GetTextExtent(text.GetString(), text.GetLength());
  TEXTMETRIC metrics;
  m_dc->GetTextMetrics(&metrics);
  // The platform turns a text about its cell's top left corner; find that corner from the anchor.
  const UINT across = style.align & TA_CENTER;
  const UINT down = style.align & TA_BASELINE;
  const double left = across == TA_CENTER ? size.cx / 2.0 : (across == TA_RIGHT ? size.cx : 0.0);
  const double above = down == TA_BASELINE ? metrics.tmAscent : (down == TA_BOTTOM ? size.cy : 0.0);
  const PNT_2D_record corner = Turned(-left, -above, style.rotation);
  const int x = TruncateToDevice(std::floor(at.x + corner.x + 0.5));
  const int y = TruncateToDevice(std::floor(at.y + corner.y + 0.5));
  const int reach = size.cx + size.cy;
  if (m_dc->RectVisible(
          CRect(SaturateToDevice(std::int64_t{x} - reach), SaturateToDevice(std::int64_t{y} - reach),
                SaturateToDevice(std::int64_t{x} + reach), SaturateToDevice(std::int64_t{y} + reach)))) {
    if (style.rotation != 0.0) {
      m_dc->SelectObject(&FontOf(style, style.rotation));
    }
    m_dc->SetTextColor(style.colour);
    m_dc->SetTextAlign(TA_LEFT | TA_TOP);
    m_dc->TextOut(x, y, text.GetString(), text.GetLength());
  }
  m_dc->RestoreDC(saved);
}

void CPlotPrimitives::PlotText(PNT_2D_record const& at, const CString& text) {
  if (IsPlotting() && CPlotSeries::IsDrawable(at)) {
    DrawDeviceText(GetPlotMapping().UserToWindow(at), text, m_text);
  }
}

void CPlotPrimitives::PlotPoint(PNT_2D_record const& at, PlotMarker marker, double sizePoints) {
  if (!IsPlotting() || !CPlotSeries::IsDrawable(at) || !std::isfinite(sizePoints)) {
    return;
  }
  const PNT_2D_record c = PlaceOf(at);
  const double h = std::max(1.0, PixelsOfPoints(sizePoints) / 2.0);
  if (!CPlotSeries::IsDrawable(c) || c.x + h < m_area.left || c.x - h > m_area.right ||
      c.y + h < m_area.top || c.y - h > m_area.bottom) {
    return;
  }
  std::vector<PNT_2D_record> outline;
  switch (marker) {
    case PlotMarker::plus:
      StrokeDevice({{c.x - h, c.y}, {c.x + h, c.y}});
      StrokeDevice({{c.x, c.y - h}, {c.x, c.y + h}});
      return;
    case PlotMarker::cross:
      StrokeDevice({{c.x - h, c.y - h}, {c.x + h, c.y + h}});
      StrokeDevice({{c.x - h, c.y + h}, {c.x + h, c.y - h}});
      return;
    case PlotMarker::square:
      outline = {{c.x - h, c.y - h}, {c.x + h, c.y - h}, {c.x + h, c.y + h}, {c.x - h, c.y + h}};
      break;
    case PlotMarker::diamond:
      outline = {{c.x, c.y - h}, {c.x + h, c.y}, {c.x, c.y + h}, {c.x - h, c.y}};
      break;
    case PlotMarker::triangle:
      outline = {{c.x, c.y - h}, {c.x + h, c.y + h}, {c.x - h, c.y + h}};
      break;
    case PlotMarker::dot:
    case PlotMarker::circle:
      for (int i = 0; i < 24; ++i) {
        const PNT_2D_record spoke = Turned(h, 0, i * 15.0);
        outline.push_back({c.x + spoke.x, c.y + spoke.y});
      }
      break;
  }
  const PlotFill before = m_fill;
  if (marker == PlotMarker::dot) {
    m_fill = {PlotFill::Kind::solid, m_pen.colour, 0};
  }
  FillDevice(outline);
  m_fill = before;
  outline.push_back(outline.front());
  StrokeDevice(outline);
}

void CPlotPrimitives::DrawHead(PNT_2D_record const& from, PNT_2D_record const& tip, double pixels) {
  const double length = std::hypot(tip.x - from.x, tip.y - from.y);
  if (!(length > 0.0) || !std::isfinite(length)) {
    return;
  }
  const double ux = (tip.x - from.x) / length * pixels;
  const double uy = (tip.y - from.y) / length * pixels;
  const std::vector<PNT_2D_record> head = {
      tip, {tip.x - ux - uy / 3, tip.y - uy + ux / 3}, {tip.x - ux + uy / 3, tip.y - uy - ux / 3}};
  const PlotFill before = m_fill;
  m_fill = {PlotFill::Kind::solid, m_pen.colour, 0};
  FillDevice(head);
  m_fill = before;
  StrokeDevice({head[0], head[1], head[2], head[0]});
}

void CPlotPrimitives::PlotArrow(PNT_2D_record const& from, PNT_2D_record const& to, double headPoints) {
  if (!IsPlotting() || !CPlotSeries::IsDrawable(from) || !CPlotSeries::IsDrawable(to) ||
      !std::isfinite(headPoints)) {
    return;
  }
  PlotLine(from, to);
  DrawHead(PlaceOf(from), PlaceOf(to), PixelsOfPoints(headPoints));
}

void CPlotPrimitives::PlotDimension(PNT_2D_record const& a, PNT_2D_record const& b, double offsetPoints,
                                    const CString& text) {
  if (!IsPlotting() || !CPlotSeries::IsDrawable(a) || !CPlotSeries::IsDrawable(b) ||
      !std::isfinite(offsetPoints)) {
    return;
  }
  const PNT_2D_record from = PlaceOf(a);
  const PNT_2D_record to = PlaceOf(b);
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  if (!(length > 0.0) || !std::isfinite(length)) {
    return;
  }
  // To the left of the way from a to b, on a device whose y grows downwards.
  const double shift = PixelsOfPoints(offsetPoints);
  const PNT_2D_record out{(to.y - from.y) / length * shift, -(to.x - from.x) / length * shift};
  const PNT_2D_record start{from.x + out.x, from.y + out.y};
  const PNT_2D_record end{to.x + out.x, to.y + out.y};
  StrokeDevice({from, start});
  StrokeDevice({to, end});
  StrokeDevice({start, end});
  const double head = std::min(PixelsOfPoints(6.0), length / 3);
  DrawHead(start, end, head);
  DrawHead(end, start, head);
  PlotTextStyle style = m_text;
  style.align = TA_CENTER | TA_BOTTOM;
  style.rotation = std::atan2(from.y - to.y, to.x - from.x) * 180.0 / std::numbers::pi;
  if (style.rotation > 90.0 || style.rotation <= -90.0) {
    style.rotation += 180.0;  // never upside down
  }
  const CString shown =
      text.IsEmpty() ? FormatPlotNumber(std::hypot(b.x - a.x, b.y - a.y), 0.001, PlotNumberFormat::decimal)
                     : text;
  DrawDeviceText({TruncateToDevice((start.x + end.x) / 2), TruncateToDevice((start.y + end.y) / 2)}, shown,
                 style);
}

void CPlotPrimitives::PlotGrid(double stepX, double stepY) {
  if (!IsPlotting()) {
    return;
  }
  const CPlotMapping& mapping = GetPlotMapping();
  const CRect area = GetDrawingArea();
  const PNT_2D_record a = mapping.WindowToUser(area.TopLeft());
  const PNT_2D_record b = mapping.WindowToUser(area.BottomRight());
  for (const double x : MultiplesOf(stepX, a.x, b.x, area.Width())) {
    const LONG at = mapping.UserToWindow({x, a.y}).x;
    DrawDeviceLine({at, area.top}, {at, area.bottom});
  }
  for (const double y : MultiplesOf(stepY, a.y, b.y, area.Height())) {
    const LONG at = mapping.UserToWindow({a.x, y}).y;
    DrawDeviceLine({area.left, at}, {area.right, at});
  }
}

}  // namespace coregui
