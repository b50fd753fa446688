#include "views/CPlotSheet.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "views/DeviceNumbers.h"

namespace coregui {

namespace {

bool IsAcross(PlotSide side) {
  return side == PlotSide::top || side == PlotSide::bottom;
}

/// Texts stand this far from ticks and frames, in points.
constexpr double kTextGap = 2.0;
constexpr double kMinorGap = 4.0;
constexpr double kMostPixels = 1 << 20;  // of a length: beyond every window and page

/// A length in whole pixels, to be added to places of the area; NaN is none.
LONG Length(double pixels) {
  return TruncateToDevice(std::clamp(pixels, -kMostPixels, kMostPixels));
}

}  // namespace

void CPlotSheet::DrawRulerLine(PlotSide side, double world, double lengthPoints) {
  const CRect area = GetDrawingArea();
  const LONG length = Length(PixelsOfPoints(lengthPoints) + 0.5);
  const CPoint at = GetPlotMapping().UserToWindow({world, world});
  switch (side) {
    case PlotSide::left:
      return DrawDeviceLine({area.left, at.y}, {area.left - length, at.y});
    case PlotSide::right:
      return DrawDeviceLine({area.right, at.y}, {area.right + length, at.y});
    case PlotSide::top:
      return DrawDeviceLine({at.x, area.top}, {at.x, area.top - length});
    case PlotSide::bottom:
      return DrawDeviceLine({at.x, area.bottom}, {at.x, area.bottom + length});
  }
}

void CPlotSheet::PlotRuler(PlotSide side, PlotRulerStyle const& style) {
  if (!IsPlotting()) {
    return;
  }
  KeepMargins();
  const CRect area = GetDrawingArea();
  const bool across = IsAcross(side);
  const PNT_2D_record a = GetPlotMapping().WindowToUser(area.TopLeft());
  const PNT_2D_record b = GetPlotMapping().WindowToUser(area.BottomRight());
  const double gap = PixelsOfPoints(style.labelGap);
  const RulerTicks ticks = across ? ChooseTicks(a.x, b.x, area.Width(), gap, PixelsOfPoints(kMinorGap))
                                  : ChooseTicks(a.y, b.y, area.Height(), gap / 2, PixelsOfPoints(kMinorGap));
  const LONG edge = side == PlotSide::left    ? area.left
                    : side == PlotSide::right ? area.right
                    : side == PlotSide::top   ? area.top
                                              : area.bottom;
  DrawDeviceLine(across ? CPoint(area.left, edge) : CPoint(edge, area.top),
                 across ? CPoint(area.right, edge) : CPoint(edge, area.bottom));
  for (const double value : ticks.minors) {
    DrawRulerLine(side, value, style.tick / 2);
  }
  PlotTextStyle text = GetPlotText();
  text.rotation = 0.0;
  const bool outwards =
      side == PlotSide::right || side == PlotSide::bottom;  // pixels grow away from the drawing
  text.align = across ? (outwards ? TA_CENTER | TA_TOP : TA_CENTER | TA_BOTTOM)
                      : (outwards ? TA_LEFT | TA_TOP : TA_RIGHT | TA_TOP);
  const LONG away = Length(PixelsOfPoints(style.tick + kTextGap));
  const LONG place = outwards ? edge + away : edge - away;
  LONG widest = 0;
  const LONG half = MeasureDeviceText(L"0", text).cy / 2;
  for (const double value : ticks.labels) {
    DrawRulerLine(side, value, style.tick);
    const CPoint at = GetPlotMapping().UserToWindow({value, value});
    const CString number = FormatPlotNumber(value, ticks.step, style.format, style.decimals);
    widest = std::max(widest, MeasureDeviceText(number, text).cx);
    DrawDeviceText(across ? CPoint(at.x, place) : CPoint(place, at.y - half), number, text);
  }
  if (style.title.IsEmpty()) {
    return;
  }
  const LONG beside = (across ? 2 * half : widest) + Length(PixelsOfPoints(kTextGap) + 0.5);
  const LONG titlePlace = outwards ? place + beside : place - beside;
  if (!across) {
    text.rotation = 90.0;
    text.align = outwards ? TA_CENTER | TA_TOP : TA_CENTER | TA_BOTTOM;
  }
  const CPoint middle((area.left + area.right) / 2, (area.top + area.bottom) / 2);
  DrawDeviceText(across ? CPoint(middle.x, titlePlace) : CPoint(titlePlace, middle.y), style.title, text);
}

void CPlotSheet::KeepMargins() {
  // With the lines that stand on the edges.
  const double width = GetPlotPen().width;
  const LONG room = Length(std::max(width, PixelsOfPoints(width)) / 2.0) + 2;
  const CRect all = GetPlotArea();
  const CRect area = GetDrawingArea();
  KeepInPlace({all.left, all.top, area.left + room, all.bottom});
  KeepInPlace({area.right - room, all.top, all.right, all.bottom});
  KeepInPlace({all.left, all.top, all.right, area.top + room});
  KeepInPlace({all.left, area.bottom - room, all.right, all.bottom});
}

void CPlotSheet::ClipToDrawing(bool on) {
  if (!IsPlotting()) {
    return;
  }
  KeepMargins();  // what is moved across an edge is cut there
  const CRect area = GetDrawingArea();
  const CRect edges(area.left, area.top, area.right + 1, area.bottom + 1);
  GetPlotDC()->SelectClipRect(on ? &edges : nullptr);
}

void CPlotSheet::PlotFrame() {
  if (!IsPlotting()) {
    return;
  }
  KeepMargins();
  const CRect r = GetDrawingArea();
  DrawDeviceLine({r.left, r.top}, {r.right, r.top});
  DrawDeviceLine({r.right, r.top}, {r.right, r.bottom});
  DrawDeviceLine({r.right, r.bottom}, {r.left, r.bottom});
  DrawDeviceLine({r.left, r.bottom}, {r.left, r.top});
}

void CPlotSheet::PlotTable(const std::vector<PlotTableRow>& rows, double skipPoints) {
  if (!IsPlotting()) {
    return;
  }
  KeepMargins();
  const CRect area = GetDrawingArea();
  double down = PixelsOfPoints(skipPoints);
  for (const PlotTableRow& row : rows) {
    const double next = down + PixelsOfPoints(row.height);
    DrawTableRow(row, CRect(area.left, area.bottom + Length(down + 0.5), area.right,
                            area.bottom + Length(next + 0.5)));
    down = next;
  }
}

void CPlotSheet::DrawTableRow(const PlotTableRow& row, CRect const& place) {
  const CRect area = GetPlotArea();
  DrawDeviceLine({area.left, place.top}, {place.right, place.top});
  DrawDeviceLine({area.left, place.bottom}, {place.right, place.bottom});
  DrawDeviceLine({place.left, place.top}, {place.left, place.bottom});
  DrawDeviceLine({place.right, place.top}, {place.right, place.bottom});
  PlotTextStyle text = GetPlotText();
  const LONG gap = Length(PixelsOfPoints(kTextGap) + 0.5);
  const LONG height = MeasureDeviceText(L"0", text).cy;
  const LONG middle = (place.top + place.bottom) / 2;
  text.rotation = 0.0;
  text.align = TA_LEFT | TA_TOP;
  DrawDeviceText({area.left + gap, middle - height / 2}, row.title, text);
  text.rotation = row.upright ? 90.0 : 0.0;
  LONG free = std::numeric_limits<LONG>::min();  // right of the last text
  for (const PlotTableEntry& entry : row.entries) {
    if (!std::isfinite(entry.x) || entry.text.IsEmpty()) {
      continue;
    }
    const LONG at = GetPlotMapping().UserToWindow({entry.x, 0.0}).x;
    if (at < place.left || at > place.right) {
      continue;
    }
    const CSize size = MeasureDeviceText(entry.text, text);
    const LONG half = (row.upright ? size.cy : size.cx) / 2;
    // At the ends of the row the texts stand beside the frame.
    const LONG start =
        std::clamp(at - half, place.left + 1, std::max(place.left + 1, place.right - 2 * half));
    if (start < free) {
      continue;
    }
    free = start + 2 * half + gap / 2;
    // Standing texts are read from the right, so their cell's top left corner comes to the lower left.
    const LONG length = row.upright ? size.cx : size.cy;
    DrawDeviceText({start, middle + (row.upright ? length / 2 : -length / 2)}, entry.text, text);
    if (length + 2 * gap < place.Height()) {
      DrawDeviceLine({at, place.top}, {at, place.top + gap});
    }
  }
}

void CPlotSheet::PlotTitleBlock(const std::vector<CString>& lines, double widthPoints) {
  if (!IsPlotting() || lines.empty() || !std::isfinite(widthPoints)) {
    return;
  }
  PlotTextStyle text = GetPlotText();
  text.align = TA_LEFT | TA_TOP;
  text.rotation = 0.0;
  const LONG gap = Length(PixelsOfPoints(3.0) + 0.5);
  const LONG step = MeasureDeviceText(L"0", text).cy + gap;
  const CRect area = GetPlotArea();
  const LONG width = Length(PixelsOfPoints(widthPoints));
  const CRect box(area.right - width - 1, area.bottom - step * static_cast<LONG>(lines.size()) - gap - 1,
                  area.right - 1, area.bottom - 1);
  KeepInPlace({box.left, box.top, box.right + 1, box.bottom + 1});
  GetPlotDC()->FillSolidRect(box, RGB(255, 255, 255));
  DrawDeviceLine({box.left, box.top}, {box.right, box.top});
  DrawDeviceLine({box.right, box.top}, {box.right, box.bottom});
  DrawDeviceLine({box.right, box.bottom}, {box.left, box.bottom});
  DrawDeviceLine({box.left, box.bottom}, {box.left, box.top});
  LONG y = box.top + gap;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    text.bold = i == 0;
    DrawDeviceText({box.left + gap, y}, lines[i], text);
    y += step;
  }
}

PlotTableRow MakeStationRow(const CString& title, const std::vector<PNT_2D_record>& points, int decimals) {
  PlotTableRow row;
  row.title = title;
  for (const PNT_2D_record& p : points) {
    row.entries.push_back({p.x, FormatPlotNumber(p.x, 1.0, PlotNumberFormat::chainage, decimals)});
  }
  return row;
}

PlotTableRow MakeLevelRow(const CString& title, const std::vector<PNT_2D_record>& points, int decimals) {
  PlotTableRow row;
  row.title = title;
  for (const PNT_2D_record& p : points) {
    row.entries.push_back({p.x, FormatPlotNumber(p.y, 1.0, PlotNumberFormat::decimal, decimals)});
  }
  return row;
}

PlotTableRow MakeDifferenceRow(const CString& title, const std::vector<PNT_2D_record>& upper,
                               const std::vector<PNT_2D_record>& lower, int decimals) {
  PlotTableRow row;
  row.title = title;
  std::size_t at = 0;
  for (const PNT_2D_record& p : upper) {
    // Between the two lower points around it, along their line.
    while (at + 1 < lower.size() && lower[at + 1].x <= p.x) {
      ++at;
    }
    if (at >= lower.size() || !(lower[at].x <= p.x)) {
      continue;
    }
    const PNT_2D_record& left = lower[at];
    const bool exact = left.x == p.x;
    if (!exact && at + 1 >= lower.size()) {
      continue;
    }
    const double level =
        exact ? left.y : left.y + (lower[at + 1].y - left.y) * (p.x - left.x) / (lower[at + 1].x - left.x);
    row.entries.push_back({p.x, FormatPlotNumber(p.y - level, 1.0, PlotNumberFormat::decimal, decimals)});
  }
  return row;
}

}  // namespace coregui
