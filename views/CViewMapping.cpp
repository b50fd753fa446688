#include "views/CViewMapping.h"

#include <cmath>

namespace coregui {

namespace {

constexpr double kScaleTolerance = 1e-12;
constexpr double kSlaveTolerance = 0.0001;

LONG Negated(LONG value) {
  return SaturateToDevice(-std::int64_t{value});
}

}  // namespace

PNT_2D_record CViewMapping::WindowToUser(CPoint pt) const {
  const double right = static_cast<double>(pt.x) + now.offsetX;
  const double down = static_cast<double>(pt.y) + now.offsetY;
  const double y = vertMode == VertMode::points ? down / now.vertRatio : down * now.scale / now.vertRatio;
  return {extents.GetLeft() + right * now.scale, extents.GetTop() - y};
}

double CViewMapping::WindowToUserWidth(int pixels) const {
  return std::fabs(WindowToUser({pixels, 0}).x - WindowToUser({0, 0}).x);
}

double CViewMapping::WindowToUserHeight(int pixels) const {
  return std::fabs(WindowToUser({0, pixels}).y - WindowToUser({0, 0}).y);
}

PNT_2D_record CViewMapping::GetPointSize() const {
  const double vertical = vertMode == VertMode::points ? 1.0 : now.scale;
  return {now.dpiX * now.scale / 72, vertical / now.vertRatio * now.dpiY / 72};
}

CRect CViewMapping::GetMarginPixels() const {
  return {PointsToPixels(margins.left, now.dpiX), PointsToPixels(margins.top, now.dpiY),
          PointsToPixels(margins.right, now.dpiX), PointsToPixels(margins.bottom, now.dpiY)};
}

void CViewMapping::FitToRect(CRect const& client) {
  // Both margins of an axis are added before they become pixels: two truncations would lose up to a pixel.
  const std::int64_t across = std::int64_t{margins.left} + margins.right;
  const std::int64_t down = std::int64_t{margins.top} + margins.bottom;
  const auto width =
      static_cast<double>(std::int64_t{client.right} - PointsToPixels(across, now.dpiX) - client.left);
  const auto height =
      static_cast<double>(std::int64_t{client.bottom} - PointsToPixels(down, now.dpiY) - client.top);
  const CRect margin = GetMarginPixels();
  now.scale = extents.Width() / width;
  now.offsetX = Negated(margin.left);
  now.offsetY = Negated(margin.top);
  if (vertMode == VertMode::fill) {
    now.vertRatio = now.scale / (extents.Height() / height);
  } else if (vertMode == VertMode::keepRatio) {
    const double heightScale = extents.Height() / height * now.vertRatio;
    if (heightScale > now.scale) {
      now.scale = heightScale;
      CentreHorizontally(client);
    } else {
      CentreVertically(client);
    }
  } else {
    now.vertRatio = now.dpiY / 72.0;
  }
  now.fitScale = now.scale;
}

void CViewMapping::CentreHorizontally(CRect const& client) {
  const std::int64_t points = TruncateToDevice(extents.Width() / (now.dpiX * now.scale / 72) + 0.5);
  const LONG used = PointsToPixels(margins.left + points + margins.right, now.dpiX);
  now.offsetX = SaturateToDevice(now.offsetX - (std::int64_t{client.right} - used - client.left) / 2);
}

void CViewMapping::CentreVertically(CRect const& client) {
  const std::int64_t points =
      TruncateToDevice(extents.Height() / (now.scale / now.vertRatio * now.dpiY / 72) + 0.5);
  const LONG used = PointsToPixels(margins.top + points + margins.bottom, now.dpiY);
  now.offsetY = SaturateToDevice(now.offsetY - (std::int64_t{client.bottom} - used - client.top) / 2);
}

CViewMapping::ZoomResult CViewMapping::Zoom(PNT_2D_record const& centre, double newScale, CSize client) {
  if (rulerLimits && newScale >= now.fitScale - kScaleTolerance) {
    return now.fitScale - kScaleTolerance > now.scale ? ZoomResult::refit : ZoomResult::refused;
  }
  now.scale = newScale;
  now.offsetX = SaturateToDevice(std::int64_t{TruncateToDevice(PixelsRight(centre.x) + 0.5)} - client.cx / 2);
  if (zeroX) {
    now.offsetX = std::max(now.offsetX, Negated(GetMarginPixels().left));
  }
  now.offsetY =
      vertMode == VertMode::points
          ? 0
          : SaturateToDevice(std::int64_t{TruncateToDevice(PixelsDown(centre.y) + 0.5)} - client.cy / 2);
  return ZoomResult::zoomed;
}

double CViewMapping::ScaleOf(FRect const& r, CSize client) const {
  return std::max(r.Width() / client.cx, r.Height() / client.cy * now.vertRatio);
}

void CViewMapping::CheckPanOffset(CSize& d) const {
  if (rulerLimits && d.cx > 0) {
    const LONG room = SaturateToDevice(std::int64_t{GetMarginPixels().left} + now.offsetX);
    d.cx = std::max<LONG>(0, std::min(d.cx, room));
  }
}

void CViewMapping::Pan(CSize d) {
  now.offsetX = SaturateToDevice(std::int64_t{now.offsetX} - d.cx);
  now.offsetY = SaturateToDevice(std::int64_t{now.offsetY} - d.cy);
}

bool CViewMapping::SyncTo(const CViewMapping& master) {
  if (std::fabs(now.scale - master.now.scale) <= kSlaveTolerance && now.offsetX == master.now.offsetX) {
    return false;
  }
  now.scale = master.now.scale;
  now.offsetX = master.now.offsetX;
  return true;
}

}  // namespace coregui
