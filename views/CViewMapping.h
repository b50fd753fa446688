#pragma once

#include <cmath>

#include "views/CPlotMapping.h"
#include "views/DeviceNumbers.h"
#include "views/FRect.h"

namespace coregui {

/// What the vertical axis of a view does when the extents are fitted.
enum class VertMode {
  keepRatio = 0,  ///< fit the tighter axis, keep the exaggeration, centre the other axis
  fill = 1,       ///< fit both axes; the exaggeration follows
  points = 2,     ///< y is in points, measured downwards from the extents' top
};

/// The mapping of a plot view: which world point lies on which pixel. Arithmetic only, no window.
///
/// Nothing is guarded: extents or client areas without width or height give infinite or undefined scales,
/// which are used as they come and end in saturated pixels.
class COREGUI_API CViewMapping final : public CPlotMapping {
 public:
  /// What can be taken down and put back around printing.
  struct Scale {
    double scale = 0.0;      ///< world units per pixel, horizontally
    double fitScale = 0.0;   ///< the scale of the last fit: the zoom-out limit
    double vertRatio = 0.0;  ///< vertical exaggeration; in mode `points`, pixels per unit of y
    LONG offsetX = 0;        ///< pan offset in pixels; after a fit the negated left margin
    LONG offsetY = 0;
    LONG dpiX = 0;  ///< pixels per inch
    LONG dpiY = 0;
  };

  /// What became of a zoom.
  enum class ZoomResult {
    refused,  ///< the view shows the whole extents already; nothing changed
    refit,    ///< the zoom leads beyond the fit: nothing changed, the caller refits
    zoomed,
  };

  CPoint UserToWindow(PNT_2D_record const& p) const override {
    const double right = PixelsRight(p.x) + 0.5;
    const double down = PixelsDown(p.y) + 0.5;
    // Nearly every point: no step can leave 32 bits, and nothing needs to be clipped. False for NaN.
    if (std::fabs(right) < kPlain && std::fabs(down) < kPlain && IsPlain(now.offsetX) &&
        IsPlain(now.offsetY)) {
      return {static_cast<LONG>(right) - now.offsetX, static_cast<LONG>(down) - now.offsetY};
    }
    return {SaturateToDevice(std::int64_t{TruncateToDevice(right)} - now.offsetX),
            SaturateToDevice(std::int64_t{TruncateToDevice(down)} - now.offsetY)};
  }
  PNT_2D_record WindowToUser(CPoint pt) const override;
  PNT_2D_record UserToDevice(PNT_2D_record const& p) const override {
    return {PixelsRight(p.x) - now.offsetX, PixelsDown(p.y) - now.offsetY};
  }
  double WindowToUserWidth(int pixels) const;
  double WindowToUserHeight(int pixels) const;
  /// The world size of one point (1/72 inch).
  PNT_2D_record GetPointSize() const;
  /// The margins in pixels: left, top, right, bottom.
  CRect GetMarginPixels() const;

  /// Shows the extents inside the margins of a client or page rectangle.
  void FitToRect(CRect const& client);
  /// Puts `centre` in the middle of a client area at a new scale.
  ZoomResult Zoom(PNT_2D_record const& centre, double newScale, CSize client);
  /// The scale at which a world rectangle fills a client area; margins are not subtracted.
  double ScaleOf(FRect const& r, CSize client) const;
  /// Limits a drag so that, with a ruler shown, the extents' left edge stays left of the left margin's end.
  /// Drags to the left and vertical ones are never limited.
  void CheckPanOffset(CSize& d) const;
  void Pan(CSize d);
  /// Takes the horizontal mapping of `master`; false when it was the same already.
  bool SyncTo(const CViewMapping& master);

  FRect extents;  ///< the world rectangle that a fit shows
  CRect margins;  ///< in points
  VertMode vertMode = VertMode::keepRatio;
  bool rulerLimits = false;  ///< a ruler is shown: zoom and pan stop at the fit
  bool zeroX = false;        ///< the extents' left edge never moves right of the left margin
  Scale now;

 private:
  static constexpr double kPlain = 1 << 30;
  static constexpr bool IsPlain(LONG offset) { return offset > -(1 << 30) && offset < (1 << 30); }

  double PixelsRight(double x) const { return (x - extents.GetLeft()) / now.scale; }
  double PixelsDown(double y) const {
    // A quotient by one is the number itself: no branch is needed, and both axes are divided at once.
    const double unit = vertMode == VertMode::points ? 1.0 : now.scale;
    return (extents.GetTop() - y) / unit * now.vertRatio;
  }
  void CentreHorizontally(CRect const& client);
  void CentreVertically(CRect const& client);
};

}  // namespace coregui
