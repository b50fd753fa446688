#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/CToolTipCtrl.h"
#include "platform/CWnd.h"
#include "platform/System.h"
#include "platform/WindowRef.h"
#include "views/CPanGesture.h"
#include "views/CPlotSheet.h"
#include "views/CPositionOverlay.h"
#include "views/CViewHistory.h"
#include "views/CViewMapping.h"
#include "views/CZoomBox.h"
#include "views/ViewEvents.h"

/// A window that shows a drawing in world units, with zoom, pan, rulers, a linked slave and printing.
///
/// Derive from it and override OnDraw, which draws with the Plot... operations; or add layers. Nothing is
/// mapped or drawn before InitView. A fit to the extents happens at every Redraw of a view that is no slave,
/// never on its own: who sizes the window calls Redraw.
///
/// Everything that reaches the application (the hook, the parent's WM_VIEW_CHANGED) may destroy the view,
/// change its mapping or open a modal box.
class COREGUI_API CGUIBaseView : public CWnd, public coregui::CPlotSheet, private coregui::CZoomBoxHost {
 public:
  enum VERT_MODE { VERT_KEEP_RATIO = 0, VERT_FILL = 1, VERT_POINTS = 2 };
  enum ZOOM_EVENT { ZOOM_MOVE = 0, ZOOM_CLICK = 1, ZOOM_KEY = 2, ZOOM_CANCEL = 3 };

  /// Behaviour beyond the required one; all off.
  struct Options {
    bool zoomUnderPointer = false;  ///< the wheel keeps the world under the pointer where it is
    bool history = false;           ///< every gesture can be undone: see GoBack
    bool touchpad = false;          ///< pinch zooms, two fingers pan
    bool crossHair = false;         ///< lines through the current position, with its coordinates
    PlotNumberFormat readOut = PlotNumberFormat::decimal;  ///< of the cross-hair's x
    int snapPixels = 0;  ///< tracking jumps to drawn points (SetSnapSeries) this near
  };

  /// `parent` is borrowed and may be null; it hears of every change of the mapping.
  CGUIBaseView(double vertRatio, CWnd* parent);
  ~CGUIBaseView() override;

  // --- Set-up
  /// Shows the extents with a vertical exaggeration. The window should exist: its dots per inch are read
  /// here.
  void InitView(FRect const& extents, double vertRatio);
  void SetFuncHook(VIEW_FUNC_HOOK hook) { m_hook = hook; }
  void SetVertRatio(double ratio);
  double GetVertRatio() const { return m_mapping.now.vertRatio; }
  /// No refit until the next Redraw; the same for the margins (in points) and the limits.
  void SetVertMode(VERT_MODE mode) { m_mapping.vertMode = static_cast<coregui::VertMode>(mode); }
  void SetMargins(CRect const& points) { m_mapping.margins = points; }
  void SetRedrawLimits(FRect const& extents) { m_mapping.extents = extents; }
  void GetRedrawLimits(FRect& extents) const { extents = m_mapping.extents; }
  /// On: the extents' left edge never moves right of the left margin.
  void SetZeroXEnforcing(bool on) { m_mapping.zeroX = on; }
  void SetBackgroundColour(COLORREF colour) { m_background = colour; }
  /// Shown while the pointer rests on the view; empty: nothing.
  void SetTooltip(const CString& text);
  void SetOptions(Options const& options);
  const Options& GetOptions() const { return m_options; }
  /// The points that tracking snaps to; borrowed, null: none.
  void SetSnapSeries(const CPlotSeries* series) { m_snapSeries = series; }

  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  // --- Mapping
  CPoint UserToWindow(PNT_2D_record const& p) const { return m_mapping.UserToWindow(p); }
  PNT_2D_record WindowToUser(CPoint pt) const { return m_mapping.WindowToUser(pt); }
  PNT_2D_record WindowToUser(int x, int y) const { return m_mapping.WindowToUser({x, y}); }
  double WindowToUserWidth(int n) const { return m_mapping.WindowToUserWidth(n); }
  double WindowToUserHeight(int n) const { return m_mapping.WindowToUserHeight(n); }
  /// The world size of one point.
  PNT_2D_record GetPointSize() const { return m_mapping.GetPointSize(); }
  /// The pixel's position; the exact current position when that is as near as the tolerance says.
  PNT_2D_record AccurateCoordFromScreen(CPoint const& pt) const;
  void FitToRect(CRect const& client) { m_mapping.FitToRect(client); }
  double GetScale() const { return m_mapping.now.scale; }
  const coregui::CViewMapping& GetMapping() const { return m_mapping; }

  // --- Changing what is shown
  /// Fits the extents (not in a slave), repaints and notifies.
  void Redraw();
  void DoZoom(PNT_2D_record const& centre, double newScale, bool moveCursor);
  void ZoomRect(FRect const& r);
  void ZoomPtWidth(PNT_2D_record const& centre, double width, bool moveCursor);
  /// The world rectangle that is visible now.
  void GetZoomRect(FRect& r) const;
  /// Zooms by a factor (above 1: closer) and keeps the world under a client pixel where it is.
  void ZoomAt(CPoint at, double factor);
  /// With the history option: the places before and after the last gestures; false when there is none.
  bool GoBack();
  bool GoForward();
  /// Runs the zoom box that all views share; always 1.
  int ZoomBox(ZOOM_EVENT event);
  bool IsZoomBoxMode() const { return m_zoomBoxMode; }
  bool IsPanning() const { return m_pan.IsActive(); }
  void CheckPanOffset(CSize& d) const { m_mapping.CheckPanOffset(d); }

  // --- Position
  PNT_2D_record GetCurrentPos() const { return m_currentPos; }
  PNT_2D_record GetBasePoint() const { return m_basePoint; }
  /// Moves the position, and the pointer with it (in a slave only with `force`), and tells the hook.
  void SetCurrentPos(PNT_2D_record const& p, bool force = false);

  // --- Measuring and picking
  /// Draws a line from here to the current position, with distance, differences and gradient, until
  /// StopMeasure.
  void StartMeasure(PNT_2D_record const& from);
  void StopMeasure();
  /// "5.000  dx 3.000  dy 4.000  133.33 %"; empty when nothing is measured.
  CString GetMeasureText() const;
  /// The point of a series nearest to a client pixel; false when none is within so many pixels. For the hook.
  bool Pick(const CPlotSeries& series, CPoint at, int pixels, std::size_t* index) const;

  // --- Slave
  /// Borrowed; null: none. A slave shows the same x range, pixel for pixel, and keeps its own vertical
  /// mapping.
  void SetSlaveView(CGUIBaseView* slave);
  bool SyncToView(const CGUIBaseView* master);
  bool IsSlave() const { return m_isSlave; }

  // --- Keys
  /// What OnChar does with a character.
  void ProcessKeys(UINT character);
  void EscapePressed();

  // --- Drawing
  /// The view's own drawing, in world units, on a window or a page. The default draws the layers.
  virtual void OnDraw(CDC* dc);
  /// Layers are drawn from the lowest order to the highest, those of one order as they were added.
  void AddLayer(int order, std::function<void(CGUIBaseView&)> draw);
  void ClearLayers() { m_layers.clear(); }
  /// Draws the view on any context, a bitmap's say, with the mapping in force.
  void DrawTo(CDC& dc, CRect const& area);
  /// An outline in client pixels in the raster mode in force.
  void DrawRect(CPoint a, CPoint b, COLORREF colour);
  void SetDrawMode(int rasterMode) { m_drawMode = rasterMode; }
  int GetDrawMode() const { return m_drawMode; }
  /// Shows a ruler; zooming out and panning stop at the fit from here on.
  void PlotRuler(PlotSide side, PlotRulerStyle const& style = {}) override;
  void KeepInPlace(CRect const& part) override;

  // --- Printing
  /// Fits the extents into a page of so many dots and draws them on it.
  void Print(CDC* dc, CSize page);
  bool IsPrinting() const { return m_isPrinting; }
  CRect GetPrintRect() const { return m_printRect; }
  /// Which of how many pages is printed.
  struct PrintPageNumber {
    int number = 1;
    int count = 1;
  };
  /// While a page is drawn.
  PrintPageNumber GetPrintPage() const { return m_printPage; }
  /// Draws a page with a mapping of the caller's; the view's own is put back.
  void PrintMapped(CDC& dc, CSize page, const coregui::CViewMapping& mapping,
                   PrintPageNumber number = {1, 1});

 protected:
  const coregui::MessageTable& GetMessageTable() const override;
  const coregui::CPlotMapping& GetPlotMapping() const override { return m_mapping; }
  CRect GetDrawingArea() const override;

  virtual void OnMouseMove(UINT flags, CPoint point);
  virtual void OnLButtonDown(UINT flags, CPoint point);
  virtual void OnLButtonUp(UINT flags, CPoint point);
  virtual void OnRButtonDown(UINT flags, CPoint point);
  virtual void OnRButtonUp(UINT flags, CPoint point);
  virtual void OnMButtonDown(UINT flags, CPoint point);
  virtual void OnMButtonUp(UINT flags, CPoint point);
  virtual BOOL OnMouseWheel(UINT flags, short delta, CPoint screen);
  virtual void OnChar(UINT character, UINT repeat, UINT flags);
  virtual void OnPaint();
  virtual BOOL OnEraseBkgnd(CDC* dc);
  virtual BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
  virtual void OnMouseLeave();
  virtual void OnDestroy();

 private:
  /// Tells whether the view outlived a call of foreign code.
  using Life = std::weak_ptr<int>;
  /// The overlay is away while one of these lives: its view's pixels are those of the picture, for whoever
  /// draws on them. Afterwards it shows the position then.
  class OverlayPause {
   public:
    explicit OverlayPause(CGUIBaseView& view);
    ~OverlayPause();
    OverlayPause(const OverlayPause&) = delete;
    OverlayPause& operator=(const OverlayPause&) = delete;

   private:
    CGUIBaseView& m_view;
    Life m_life;
  };
  struct KeyAction {
    char key;
    void (CGUIBaseView::*act)();
  };
  static const KeyAction kKeyActions[];

  void ReadDotsPerInch();
  CSize ClientSize() const { return GetClientRectangle().Size(); }
  /// Null: none, or it was destroyed.
  CGUIBaseView* GetSlave() const { return m_slaveLife.expired() ? nullptr : m_slave; }
  /// After a change of the mapping: the slave hears of it, otherwise the parent.
  void Notify();
  bool NotifySlave();
  void NotifyParent();
  bool Tell(EVENT_TYPE event);
  bool TellButton(EVENT_TYPE event, UINT flags, char button);
  void NoteForHistory(coregui::CViewHistory::Gesture gesture = coregui::CViewHistory::Gesture::single);
  void ZoomTo(PNT_2D_record const& centre, double newScale, bool moveCursor);
  void ZoomAround(CPoint at, double factor);
  void Track(UINT flags, CPoint point);
  bool PanStep(CPoint point);
  void ScrollFor(CSize moved);
  void RedrawInPlace(CSize moved);
  PNT_2D_record Snapped(CPoint pointer) const;
  void ActivateTooltip();
  CString GetReadOut() const;
  void ShowOverlay();
  void HideOverlay();
  void ShowPlace();
  LRESULT OnCaptureChanged(WPARAM wParam, LPARAM lParam);
  LRESULT OnPinch(WPARAM wParam, LPARAM lParam);
  LRESULT OnTouchPan(WPARAM wParam, LPARAM lParam);
  LRESULT OnWantPan(WPARAM wParam, LPARAM lParam);
  UINT OnGetDlgCode() { return DLGC_WANTCHARS | DLGC_WANTARROWS; }

  void KeyZoomIn() { DoZoom(m_currentPos, m_mapping.now.scale * 0.5, true); }
  void KeyZoomOut() { DoZoom(m_currentPos, m_mapping.now.scale * 2.0, true); }
  void KeyFit();
  void KeyRepaint() { Invalidate(TRUE); }
  void KeyRecentre() { DoZoom(m_currentPos, m_mapping.now.scale, false); }
  void KeyZoomBox();

  void DrawBoxOutline(CPoint anchor, CPoint corner) override;
  void CaptureForBox() override { SetCapture(); }
  void ReleaseFromBox() override;
  void LeaveZoomBoxMode() override { m_zoomBoxMode = false; }
  bool ZoomToBox(CPoint anchor, CPoint corner) override;
  void TellBoxStarted() override { Tell(EVENT_ZOOM_START); }
  void TellBoxFinished() override { Tell(EVENT_ZOOM_END); }
  void TellBoxCancelled() override { Tell(EVENT_ESCAPE); }

  coregui::CViewMapping m_mapping;
  coregui::WindowRef m_parent;      ///< weak: who hears of changes
  CGUIBaseView* m_slave = nullptr;  ///< borrowed, while m_slaveLife lasts: see GetSlave
  Life m_slaveLife;
  bool m_isSlave = false;
  VIEW_FUNC_HOOK m_hook = nullptr;
  const CPlotSeries* m_snapSeries = nullptr;  ///< borrowed from the caller
  Options m_options;
  coregui::CViewHistory m_history;
  std::multimap<int, std::function<void(CGUIBaseView&)>> m_layers;

  PNT_2D_record m_currentPos;
  PNT_2D_record m_basePoint;
  PNT_2D_record m_measureStart;
  bool m_measuring = false;
  coregui::CPositionOverlay m_overlay;
  int m_overlayPauses = 0;
  coregui::CPanGesture m_pan;
  bool m_isPainting = false;     ///< on the window
  std::vector<CRect> m_inPlace;  ///< of the window, as it was painted last: what stands still in a pan
  bool m_initialised = false;
  bool m_zoomBoxMode = false;
  bool m_destroyed = false;
  bool m_hasPosition = false;  ///< the pointer is inside, or the program set a position: the cross-hair shows
  CPoint m_pointer;            ///< where it moved last
  bool m_tracking = false;     ///< the pointer is inside and a leave notification is asked for
  bool m_inMouseMove = false;
  bool m_inKey = false;  ///< what the hook hears of comes from a key
  bool m_isPrinting = false;
  CRect m_printRect;
  PrintPageNumber m_printPage;
  CString m_tooltip;
  std::unique_ptr<CToolTipCtrl> m_tips;  ///< made when the pointer first enters
  COLORREF m_background = 0xFFFFFF;
  int m_drawMode = R2_COPYPEN;
  char m_keyFlags = 0;
  EVENT_TYPE m_lastEvent = EVENT_KEY;
  char m_lastKey = 0;
  HCURSOR m_cursor = nullptr;
  std::shared_ptr<int> m_life = std::make_shared<int>(0);
};
