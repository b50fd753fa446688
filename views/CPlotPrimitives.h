#pragma once

#include <map>
#include <memory>
#include <tuple>
#include <vector>

#include "platform/CBitmap.h"
#include "views/CPlotMapping.h"
#include "views/CPlotSeries.h"
#include "views/FRect.h"
#include "views/PlotStyles.h"

namespace coregui {

class CPolylineSink;

/// Draws in world units on whatever context is at hand: a window, a bitmap, a page, a recording.
///
/// Drawing happens between BeginPlot and EndPlot; outside them every call draws nothing. Points with NaN or
/// infinite coordinates draw nothing. What lies outside the context's area costs little and is dropped.
class COREGUI_API CPlotPrimitives {
 public:
  virtual ~CPlotPrimitives();
  CPlotPrimitives(const CPlotPrimitives&) = delete;
  CPlotPrimitives& operator=(const CPlotPrimitives&) = delete;

  /// Starts drawing on a context (borrowed until EndPlot) whose client or page area in pixels is `area`.
  void BeginPlot(CDC& dc, CRect const& area, CSize dotsPerInch);
  void EndPlot();
  bool IsPlotting() const { return m_dc != nullptr; }
  CDC* GetPlotDC() const { return m_dc; }
  CRect GetPlotArea() const { return m_area; }

  // --- Styles, in force until changed; BeginPlot goes back to the default ones.
  /// Dashes are measured along the line from its first point (of a large series: from places of the data at
  /// least 2,000 pixels apart), so that they stay on it when the view moves.
  void SetPlotPen(PlotPen const& pen) { m_pen = pen; }
  void SetPlotFill(PlotFill const& fill) { m_fill = fill; }
  void SetPlotText(PlotTextStyle const& style) { m_text = style; }
  /// Smooth edges, and places between pixels. However many points a line of PlotPolyline has, no part of it
  /// is drawn further than an eighth of a dot (on paper of a pixel of the screen) from where every point
  /// would put it, and where it passes a dot several times the dot gets no darker.
  ///
  /// A line of more than four million pixels in view, most of them on others, is drawn hard, and so is one
  /// that reaches out thirty million pixels.
  void SetPlotAntiAliasing(bool smooth) { m_smooth = smooth; }

  // --- Primitives
  /// A marker of a size in points, in the pen's colour.
  void PlotPoint(PNT_2D_record const& at, PlotMarker marker = PlotMarker::plus, double sizePoints = 6.0);
  void PlotLine(PNT_2D_record const& from, PNT_2D_record const& to);
  /// Gaps (see CPlotSeries) interrupt the line.
  void PlotPolyline(const std::vector<PNT_2D_record>& points);
  /// The same for large data: see ReduceSeries.
  void PlotPolyline(const CPlotSeries& series);
  /// Closed and filled; a point that is not finite is left out.
  void PlotPolygon(const std::vector<PNT_2D_record>& points);
  void PlotRectangle(FRect const& rect);
  /// Round in the world: an ellipse where the drawing is exaggerated.
  void PlotCircle(PNT_2D_record const& centre, double radius);
  void PlotEllipse(PNT_2D_record const& centre, double radiusX, double radiusY);
  /// Anticlockwise in the world from `startDegrees` through `sweepDegrees`.
  void PlotArc(PNT_2D_record const& centre, double radius, double startDegrees, double sweepDegrees);
  void PlotText(PNT_2D_record const& at, const CString& text);
  /// A line with a filled head of a length in points at its end.
  void PlotArrow(PNT_2D_record const& from, PNT_2D_record const& to, double headPoints = 8.0);
  /// A dimension line `offsetPoints` to the left of the way from a to b, with its text; empty: the distance.
  void PlotDimension(PNT_2D_record const& a, PNT_2D_record const& b, double offsetPoints,
                     const CString& text = CString());
  /// Lines at the multiples of the steps inside the drawing's area; a step of 0 leaves out its direction.
  void PlotGrid(double stepX, double stepY);
  void PlotBitmap(const CBitmap& bitmap, FRect const& to);

  /// Device pixels of a length in points, along y; not rounded.
  double PixelsOfPoints(double points) const { return points * m_dpi.cy / 72.0; }

 protected:
  CPlotPrimitives();
  /// The mapping that is in force while drawing.
  virtual const CPlotMapping& GetPlotMapping() const = 0;

  /// The part of the area between the margins, in which grid lines are drawn. The default is all of it.
  virtual CRect GetDrawingArea() const { return m_area; }

  /// The same on pixels, for what stands in the margins.
  void DrawDeviceLine(CPoint from, CPoint to);
  void DrawDeviceText(CPoint at, const CString& text, PlotTextStyle const& style);
  CSize MeasureDeviceText(const CString& text, PlotTextStyle const& style);
  const PlotPen& GetPlotPen() const { return m_pen; }
  const PlotTextStyle& GetPlotText() const { return m_text; }

 private:
  using FontKey = std::tuple<long, long, bool, std::wstring>;

  CRect VisibleForPen() const;
  int PenPixels() const;
  void SelectPen();
  void StrokeSink(const CPolylineSink& sink);
  void StrokeFractional(const std::vector<PNT_2D_record>& devicePoints);
  void StrokeDevice(const std::vector<PNT_2D_record>& devicePoints);
  /// Dots too fine to be seen one by one.
  bool IsPaper() const { return m_dpi.cy >= 200; }
  /// What a pixel of the screen is on the device: one of a fine printer would hardly be seen, so there it is
  /// 1/96 inch.
  double ScreenPixel() const;
  void StrokeDashed(const CPlotSeries& series);
  /// False when the line is one that is drawn hard; likewise the next.
  bool StrokeDashedSmoothly(const CPlotSeries& series);
  bool StrokeSmoothly(const CPlotSeries& series);
  /// Into how many places the sides of a pixel are divided for a smooth line; 0 where it reaches too far.
  int PlacesFor(const CPlotSeries& series) const;
  /// The filled head of an arrow from `from` to `tip`, in device pixels.
  void DrawHead(PNT_2D_record const& from, PNT_2D_record const& tip, double pixels);
  void Hatch(const std::vector<PNT_2D_record>& outline);
  void FillDevice(const std::vector<PNT_2D_record>& devicePoints);
  /// Where a point is drawn: on hard lines the pixel of the mapping, whichever way it rounds, so that shapes,
  /// markers and lines through one point meet.
  PNT_2D_record PlaceOf(PNT_2D_record const& p) const;
  std::vector<PNT_2D_record> ToDevice(const std::vector<PNT_2D_record>& points) const;
  std::vector<PNT_2D_record> CurvePoints(PNT_2D_record const& centre, PNT_2D_record const& radii,
                                         double start, double sweep) const;
  long FontPixels(PlotTextStyle const& style) const;
  CFont& FontOf(PlotTextStyle const& style, double rotation);

  CDC* m_dc = nullptr;  ///< borrowed between BeginPlot and EndPlot
  int m_saved = 0;
  CRect m_area;
  CSize m_dpi;
  PlotPen m_pen;
  PlotFill m_fill;
  PlotTextStyle m_text;
  bool m_smooth = false;
  std::unique_ptr<CPen> m_selected;  ///< the pen that the context has selected
  std::map<FontKey, std::unique_ptr<CFont>> m_fonts;
};

}  // namespace coregui
