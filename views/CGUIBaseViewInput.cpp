#include <utility>

#include "views/CGUIBaseView.h"
#include "views/FindPoint.h"

// What reaches a view from outside: messages, buttons, the pointer.

namespace {

constexpr double kWheelStep = 1.25;

}  // namespace

const coregui::MessageTable& CGUIBaseView::GetMessageTable() const {
  using View = CGUIBaseView;
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_PAINT>(&View::OnPaint)
                                                 .On<WM_ERASEBKGND>(&View::OnEraseBkgnd)
                                                 .On<WM_SETCURSOR>(&View::OnSetCursor)
                                                 .On<WM_MOUSEMOVE>(&View::OnMouseMove)
                                                 .On<WM_MOUSELEAVE>(&View::OnMouseLeave)
                                                 .On<WM_LBUTTONDOWN>(&View::OnLButtonDown)
                                                 .On<WM_LBUTTONDBLCLK>(&View::OnLButtonDown)
                                                 .On<WM_LBUTTONUP>(&View::OnLButtonUp)
                                                 .On<WM_RBUTTONDOWN>(&View::OnRButtonDown)
                                                 .On<WM_RBUTTONDBLCLK>(&View::OnRButtonDown)
                                                 .On<WM_RBUTTONUP>(&View::OnRButtonUp)
                                                 .On<WM_MBUTTONDOWN>(&View::OnMButtonDown)
                                                 .On<WM_MBUTTONDBLCLK>(&View::OnMButtonDown)
                                                 .On<WM_MBUTTONUP>(&View::OnMButtonUp)
                                                 .On<WM_MOUSEWHEEL>(&View::OnMouseWheel)
                                                 .On<WM_CHAR>(&View::OnChar)
                                                 .On<WM_GETDLGCODE>(&View::OnGetDlgCode)
                                                 .On<WM_DESTROY>(&View::OnDestroy)
                                                 .OnMessage(WM_CAPTURECHANGED, &View::OnCaptureChanged)
                                                 .OnMessage(WM_COREGUI_PINCH, &View::OnPinch)
                                                 .OnMessage(WM_COREGUI_PAN, &View::OnTouchPan)
                                                 .OnMessage(WM_COREGUI_WANTPAN, &View::OnWantPan);
  return table;
}

void CGUIBaseView::OnDestroy() {
  m_destroyed = true;
  m_pan.Stop();
  m_zoomBoxMode = false;
  m_tips.reset();
  coregui::CZoomBox::Shared().Forget(*this);
  Default();
}

BOOL CGUIBaseView::OnSetCursor(CWnd* /*window*/, UINT /*hitTest*/, UINT /*message*/) {
  if (m_cursor == nullptr) {
    return static_cast<BOOL>(Default());
  }
  SetCursor(m_cursor);
  return TRUE;
}

// --- Buttons

bool CGUIBaseView::TellButton(EVENT_TYPE event, UINT flags, char button) {
  // A release still shows its button's bit, so that the hook can tell which one it was.
  m_keyFlags = static_cast<char>(KeyFlagsOf(flags) | button);
  const Life life = m_life;
  Tell(event);
  if (life.expired()) {
    return false;
  }
  m_keyFlags = KeyFlagsOf(flags);
  return true;
}

void CGUIBaseView::OnLButtonDown(UINT flags, CPoint /*point*/) {
  if (!m_initialised) {
    return;
  }
  SetFocus();
  if (m_zoomBoxMode) {
    ZoomBox(ZOOM_CLICK);
    return;
  }
  TellButton(EVENT_LBUTTON_DOWN, flags, KEYFLAG_LEFT);
}

void CGUIBaseView::OnLButtonUp(UINT flags, CPoint point) {
  if (!m_initialised) {
    return;
  }
  if (m_zoomBoxMode) {
    ZoomBox(ZOOM_CLICK);
    return;
  }
  const OverlayPause pause(*this);
  m_currentPos = Snapped(point);  // where tracking would put it
  TellButton(EVENT_BUTTON_UP, flags, KEYFLAG_LEFT);
}

void CGUIBaseView::OnRButtonDown(UINT flags, CPoint /*point*/) {
  if (!m_initialised) {
    return;
  }
  SetFocus();
  if (m_zoomBoxMode) {
    ZoomBox(ZOOM_CANCEL);
    return;
  }
  TellButton(EVENT_OTHER_DOWN, flags, KEYFLAG_RIGHT);
}

void CGUIBaseView::OnRButtonUp(UINT flags, CPoint /*point*/) {
  if (!m_initialised) {
    return;
  }
  if (m_zoomBoxMode) {
    ZoomBox(ZOOM_CANCEL);
    return;
  }
  TellButton(EVENT_BUTTON_UP, flags, KEYFLAG_RIGHT);
}

BOOL CGUIBaseView::OnMouseWheel(UINT /*flags*/, short delta, CPoint screen) {
  if (!m_initialised || m_isSlave || m_zoomBoxMode) {
    return TRUE;
  }
  const double factor = delta < 0 ? 1.0 / kWheelStep : kWheelStep;
  if (m_options.zoomUnderPointer) {
    POINT at = screen;
    ScreenToClient(&at);
    ZoomAt(at, factor);
  } else {
    const double scale = m_mapping.now.scale;
    DoZoom(m_currentPos, delta < 0 ? scale * kWheelStep : scale / kWheelStep, true);
  }
  return TRUE;
}

// --- Pointer

void CGUIBaseView::OnMouseMove(UINT flags, CPoint point) {
  if (m_destroyed || !m_initialised || m_inMouseMove) {
    return;
  }
  const Life life = m_life;
  m_inMouseMove = true;
  m_pointer = point;
  if (m_pan.IsActive()) {
    m_keyFlags = KeyFlagsOf(flags);
    PanStep(point);
  } else {
    Track(flags, point);
  }
  if (life.expired()) {
    return;
  }
  if (!m_tracking && !m_destroyed) {
    m_tracking = true;
    TrackMouseLeave();
    if (Tell(EVENT_ENTER)) {
      ActivateTooltip();
    }
  }
  if (!life.expired()) {
    m_inMouseMove = false;
  }
}

void CGUIBaseView::SetTooltip(const CString& text) {
  m_tooltip = text;
  m_tips.reset();
  if (m_tracking) {
    ActivateTooltip();
  }
}

void CGUIBaseView::ActivateTooltip() {
  if (m_tooltip.IsEmpty() || !HasWindow()) {
    return;
  }
  if (m_tips == nullptr) {
    m_tips = std::make_unique<CToolTipCtrl>();
    m_tips->CreateTips(this);
    m_tips->AddTool(this, m_tooltip);
  }
  m_tips->Activate(true);
}

LRESULT CGUIBaseView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (m_tips != nullptr) {
    m_tips->RelayEvent({GetSafeHwnd(), message, wParam, lParam});
  }
  // A message that the hook of a key waits for, in a modal box say, is no key.
  const Life life = m_life;
  const bool inKey = std::exchange(m_inKey, false);
  const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
  if (!life.expired()) {
    m_inKey = inKey;
  }
  return result;
}

void CGUIBaseView::OnMouseLeave() {
  const OverlayPause pause(*this);
  m_tracking = false;
  m_hasPosition = false;
}

void CGUIBaseView::Track(UINT flags, CPoint point) {
  // Only another pixel replaces the position: one that the program set exactly survives the pointer that
  // follows it.
  if (m_mapping.UserToWindow(m_currentPos) == point) {
    if (!m_hasPosition) {  // it came back where it left
      const OverlayPause pause(*this);
      m_hasPosition = true;
    }
    return;
  }
  const OverlayPause pause(*this);
  m_currentPos = Snapped(point);
  m_hasPosition = true;
  m_keyFlags = KeyFlagsOf(flags);
  m_lastEvent = EVENT_MOVE;
  if (m_zoomBoxMode) {
    ZoomBox(ZOOM_MOVE);
  } else {
    Tell(EVENT_MOVE);
  }
}

bool CGUIBaseView::Pick(const CPlotSeries& series, CPoint at, int pixels, std::size_t* index) const {
  return coregui::FindPoint(series, m_mapping, at, pixels, index);
}

PNT_2D_record CGUIBaseView::Snapped(CPoint pointer) const {
  PNT_2D_record position = m_mapping.WindowToUser(pointer);
  if (m_options.snapPixels > 0 && m_snapSeries != nullptr && !m_zoomBoxMode) {
    std::size_t index = 0;
    if (Pick(*m_snapSeries, pointer, m_options.snapPixels, &index)) {
      position = m_snapSeries->GetPoints()[index];
    }
  }
  return position;
}
