#pragma once

#include "views/CPlotMapping.h"
#include "views/FRect.h"

namespace coregui {

/// The mapping of a dialog-hosted plot window, built on the world rectangle that it shows. Arithmetic only.
///
/// A world unit is as long across as down on the device, times the vertical exaggeration; the window shows
/// all of what it is asked to show and, along one axis, more.
class COREGUI_API CWindowMapping final : public CPlotMapping {
 public:
  /// The device that is drawn on, in pixels and pixels per inch.
  struct Device {
    LONG width = 0;
    LONG height = 0;
    LONG dpiX = 0;
    LONG dpiY = 0;
    LONG detailPane = 0;  ///< height of the detail pane; 0 when it is hidden
  };

  CPoint UserToWindow(PNT_2D_record const& p) const override;
  PNT_2D_record WindowToUser(CPoint pt) const override;
  PNT_2D_record UserToDevice(PNT_2D_record const& p) const override;
  double WindowToUserHeight(int pixels) const;
  double GetUserWndHBase() const { return mirrored ? window.GetRight() : window.GetLeft(); }
  double GetUserWndVBase() const { return mirrored ? window.GetBottom() : window.GetTop(); }
  /// The signed world distance from one edge to the other.
  double GetUserWndHRange() const;
  double GetUserWndVRange() const;

  /// Shows all of `r` with an aspect of sx : sy; nothing changes for a rectangle without width or height. An
  /// sx of zero shows exactly `r`, whatever its aspect.
  void WindowScale(FRect const& r, double sx, double sy);
  /// Makes `r` the limits and the base of zooming, and shows it.
  void Init(FRect const& r, bool resetPos);
  /// Makes `r` the limits and shows it; the base of zooming stays.
  void SetViewLimits(FRect const& r);
  /// The device changed: shows the limits again.
  void Resize(Device const& changed);
  void ZoomWindow(FRect const& r);
  /// One of the nine zoom steps in or out, around the current position.
  void StepZoom(bool in);
  /// Brings the current position to the middle.
  void Pan();
  /// The vertical exaggeration, 1 to 10; what lies outside is clipped.
  void SetScale(int scale);
  int GetScale() const { return m_vertScale; }
  char GetZoomStep() const { return m_zoomStep; }
  double GetZoomFactor() const { return m_zoomFactor; }

  FRect window;    ///< what is shown now
  FRect zoomBase;  ///< what resizes and zoom steps start from
  FRect viewLimits;
  FRect redrawLimits;
  PNT_2D_record currentPos;
  Device device;
  bool mirrored = false;  ///< flips both axes
  bool initialised = false;

 private:
  void Show(FRect const& r) { WindowScale(r, 1.0, 1.0 / m_vertScale); }
  void Rebase();

  int m_vertScale = 1;
  char m_zoomStep = '5';
  double m_zoomFactor = 1.0;
};

}  // namespace coregui
