#include "views/CWindowMapping.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "views/DeviceNumbers.h"

namespace coregui {

namespace {

constexpr double kTolerance = 1e-12;
constexpr std::array<double, 9> kZoomFactors  // of the steps '1' to '9'
    = {0.25, 0.375, 0.5, 0.75, 1.0, 1.5, 2.0, 3.0, 4.0};

}  // namespace

PNT_2D_record CWindowMapping::UserToDevice(PNT_2D_record const& p) const {
  const double fromLeft = mirrored ? (p.x - window.GetRight()) / (window.GetLeft() - window.GetRight())
                                   : (p.x - window.GetLeft()) / (window.GetRight() - window.GetLeft());
  const double fromTop = mirrored ? (p.y - window.GetBottom()) / (window.GetTop() - window.GetBottom())
                                  : (p.y - window.GetTop()) / (window.GetBottom() - window.GetTop());
  return {fromLeft * device.width, fromTop * device.height};
}

CPoint CWindowMapping::UserToWindow(PNT_2D_record const& p) const {
  // Kept: no 0.5 is added before truncating, unlike in a view. Positions read off these windows are pixel
  // origins.
  const PNT_2D_record at = UserToDevice(p);
  return {TruncateToDevice(at.x), TruncateToDevice(at.y)};
}

PNT_2D_record CWindowMapping::WindowToUser(CPoint pt) const {
  const double across = static_cast<double>(pt.x) / device.width * window.Width();
  const double down = static_cast<double>(pt.y) / device.height * GetUserWndVRange();
  return {mirrored ? window.GetRight() - across : across + window.GetLeft(), down + GetUserWndVBase()};
}

double CWindowMapping::WindowToUserHeight(int pixels) const {
  return std::fabs(WindowToUser({0, pixels}).y - WindowToUser({0, 0}).y);
}

double CWindowMapping::GetUserWndHRange() const {
  return mirrored ? -window.Width() : window.Width();
}

double CWindowMapping::GetUserWndVRange() const {
  return mirrored ? window.GetTop() - window.GetBottom() : window.GetBottom() - window.GetTop();
}

void CWindowMapping::WindowScale(FRect const& r, double sx, double sy) {
  const double dx = r.GetRight() - r.GetLeft();
  const double dy = r.GetBottom() - r.GetTop();
  if (std::fabs(dx) <= kTolerance || std::fabs(dy) <= kTolerance) {
    return;
  }
  if (std::fabs(sx) <= kTolerance) {
    window = r;
    return;
  }
  if (device.dpiX == 0 || device.dpiY == 0) {
    return;
  }
  const double inchesDown = static_cast<double>(device.height) / device.dpiY;
  const double inchesAcross = static_cast<double>(device.width) / device.dpiX;
  const double shape = inchesDown / inchesAcross;
  const double height = device.detailPane == 0 ? 0.0 : WindowToUserHeight(device.detailPane);
  // A window that had no size when it was shown last has no height to measure the pane by.
  const double pane = std::isfinite(height) ? height : 0.0;
  const double centreX = (r.GetLeft() + r.GetRight()) / 2;
  const double centreY = (r.GetTop() + r.GetBottom() - pane) / 2;
  const bool taller = std::fabs(dy / dx) + kTolerance >= shape;
  const double halfWidth =
      std::copysign(taller ? std::fabs(dy * sx / shape / 2) : std::fabs(dx * sx / 2), dx);
  const double halfHeight =
      std::copysign(taller ? std::fabs(dy * sy / 2) : std::fabs(dx * sy * shape / 2), dy);
  window.Set(centreX - halfWidth, centreY - halfHeight, centreX + halfWidth, centreY + halfHeight);
}

void CWindowMapping::Init(FRect const& r, bool resetPos) {
  redrawLimits = r;
  SetViewLimits(r);
  if (resetPos) {
    currentPos = WindowToUser({0, 0});
  }
  zoomBase = r;
  initialised = true;
  m_zoomStep = '5';
  m_zoomFactor = 1.0;
}

void CWindowMapping::SetViewLimits(FRect const& r) {
  viewLimits = r;
  Show(r);
}

void CWindowMapping::Resize(Device const& changed) {
  device = changed;
  Show(viewLimits);
}

void CWindowMapping::ZoomWindow(FRect const& r) {
  m_zoomStep = '5';
  m_zoomFactor = 1.0;
  zoomBase = r;
  // Kept: the y of the new centre is the top edge, not the middle. Callers that step the zoom after a window
  // zoom count on the top of the chosen window staying in sight.
  currentPos = {(r.GetRight() + r.GetLeft()) / 2, r.GetTop()};
  Show(r);
}

void CWindowMapping::Rebase() {
  // Whole world units, as the integer form of initialisation takes them.
  Init(FRect(TruncateToDevice(window.GetLeft()), TruncateToDevice(window.GetTop()),
             TruncateToDevice(window.GetRight()), TruncateToDevice(window.GetBottom())),
       false);
}

void CWindowMapping::StepZoom(bool in) {
  if (m_zoomStep == (in ? '1' : '9')) {
    Rebase();
  }
  m_zoomStep = static_cast<char>(m_zoomStep + (in ? -1 : 1));
  m_zoomFactor = kZoomFactors[static_cast<std::size_t>(m_zoomStep - '1')];
  const double halfWidth = zoomBase.Width() / 2 * m_zoomFactor;
  const double halfHeight = zoomBase.Height() / 2 * m_zoomFactor;
  const FRect next(currentPos.x - halfWidth, currentPos.y - halfHeight, currentPos.x + halfWidth,
                   currentPos.y + halfHeight);
  currentPos = next.Centre();
  Show(next);
}

void CWindowMapping::Pan() {
  if (!initialised) {
    return;
  }
  const PNT_2D_record centre = window.Centre();
  const double dx = currentPos.x - centre.x;
  const double dy = currentPos.y - centre.y;
  FRect moved = window;
  moved.Translate(dx, dy);
  Show(moved);
  currentPos.x += dx;
  currentPos.y += dy;
}

void CWindowMapping::SetScale(int scale) {
  m_vertScale = std::clamp(scale, 1, 10);
}

}  // namespace coregui
