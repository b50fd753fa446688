#pragma once

#include <functional>
#include <memory>

#include "platform/CWnd.h"
#include "views/CPlotSheet.h"
#include "views/CWindowMapping.h"
#include "views/ViewEvents.h"

/// A plot window in a dialog that keeps a true aspect: a world unit is as long across as down, times an
/// exaggeration of whole numbers. It zooms in nine steps around the current position.
///
/// The hook may destroy the window.
class COREGUI_API CGUIBaseWnd : public CWnd, public coregui::CPlotSheet {
 public:
  CGUIBaseWnd() = default;

  void SetFuncHook(VIEW_FUNC_HOOK hook) { m_hook = hook; }
  /// Shows a rectangle, which becomes the limits and the base of zooming. `resetPos` puts the current
  /// position at the window's upper left corner.
  void InitView(FRect const& r, bool resetPos);
  void UserInit(int x1, int x2, int y1, int y2);
  void SetViewLimits(FRect const& r);
  /// The world rectangle that is shown now.
  FRect GetViewLimits() const { return m_mapping.window; }
  void SetRedrawLimits(FRect const& r) { m_mapping.redrawLimits = r; }
  FRect GetRedrawLimits() const { return m_mapping.redrawLimits; }
  /// Vertical exaggeration, clipped to 1..10; redraws.
  void SetScale(int scale);
  int GetScale() const { return m_mapping.GetScale(); }
  /// Flips both axes.
  void SetMirrored(bool mirrored);
  /// The height of the pane at the bottom that the drawing keeps free of its centre, in pixels; 0 hides it.
  void SetDetailPane(int pixels);

  CPoint UserToWindow(PNT_2D_record const& p) const { return m_mapping.UserToWindow(p); }
  PNT_2D_record WindowToUser(CPoint pt) const { return m_mapping.WindowToUser(pt); }
  double WindowToUserHeight(int n) const { return m_mapping.WindowToUserHeight(n); }
  double GetUserWndHBase() const { return m_mapping.GetUserWndHBase(); }
  double GetUserWndVBase() const { return m_mapping.GetUserWndVBase(); }
  double GetUserWndHRange() const { return m_mapping.GetUserWndHRange(); }
  double GetUserWndVRange() const { return m_mapping.GetUserWndVRange(); }
  void WindowScale(FRect const& r, double sx, double sy) { m_mapping.WindowScale(r, sx, sy); }
  char GetZoomStep() const { return m_mapping.GetZoomStep(); }
  double GetZoomFactor() const { return m_mapping.GetZoomFactor(); }

  /// Shows the redraw limits again.
  void Redraw();
  /// The client size changed: shows the view limits again.
  void Resize();
  void ZoomWindow(FRect const& r);
  /// One step in ("m" was the last key) or out.
  void PlotZoom();
  /// Brings the current position to the middle.
  void Pan();
  PNT_2D_record GetCurrentPos() const { return m_mapping.currentPos; }
  void SetCurrentPos(PNT_2D_record const& p) { m_mapping.currentPos = p; }
  void SetLastKey(char key) { m_lastKey = key; }
  void SetBackgroundColour(COLORREF colour) { m_background = colour; }

  /// The window's own drawing, with the Plot... operations. The default draws what SetDraw was given.
  virtual void OnDraw(CDC* dc);
  void SetDraw(std::function<void(CGUIBaseWnd&)> draw) { m_draw = std::move(draw); }
  void DrawTo(CDC& dc, CRect const& area);

 protected:
  const coregui::MessageTable& GetMessageTable() const override;
  const coregui::CPlotMapping& GetPlotMapping() const override { return m_mapping; }

  virtual void OnPaint();
  virtual BOOL OnEraseBkgnd(CDC* dc);
  virtual void OnSize(UINT type, int width, int height);
  virtual void OnMouseMove(UINT flags, CPoint point);
  virtual void OnLButtonDown(UINT flags, CPoint point);
  virtual void OnButtonDown(UINT flags, CPoint point);
  virtual void OnButtonUp(UINT flags, CPoint point);
  virtual BOOL OnMouseWheel(UINT flags, short delta, CPoint screen);
  virtual void OnChar(UINT character, UINT repeat, UINT flags);

 private:
  void ReadDevice();
  bool Tell(EVENT_TYPE event, char key = 0);
  UINT OnGetDlgCode() { return DLGC_WANTCHARS; }

  coregui::CWindowMapping m_mapping;
  VIEW_FUNC_HOOK m_hook = nullptr;
  std::function<void(CGUIBaseWnd&)> m_draw;
  char m_lastKey = 0;
  char m_keyFlags = 0;
  COLORREF m_background = 0xFFFFFF;
  std::shared_ptr<int> m_life = std::make_shared<int>(0);
};
