#include "views/CGUIBaseView.h"
#include "views/FindPoint.h"

// What reaches a view from outside: messages, keys, the pointer.

namespace {

constexpr COLORREF kBoxColour = 0xFEFEFE;
constexpr UINT kEscape = 27;
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

// --- Keys

const CGUIBaseView::KeyAction CGUIBaseView::kKeyActions[] = {
    {'m', &CGUIBaseView::KeyZoomIn},  {'d', &CGUIBaseView::KeyZoomOut},  {'r', &CGUIBaseView::Redraw},
    {'s', &CGUIBaseView::KeyRepaint}, {'w', &CGUIBaseView::KeyRecentre}, {'z', &CGUIBaseView::KeyZoomBox},
};

void CGUIBaseView::OnChar(UINT character, UINT /*repeat*/, UINT /*flags*/) {
  ProcessKeys(character);
}

void CGUIBaseView::ProcessKeys(UINT character) {
  const bool control = GetKeyState(VK_CONTROL) < 0;
  const int kept = m_keyFlags & ~(KEYFLAG_SHIFT | KEYFLAG_CTRL);
  m_keyFlags = static_cast<char>(kept | (GetKeyState(VK_SHIFT) < 0 ? KEYFLAG_SHIFT : 0) |
                                 (control ? KEYFLAG_CTRL : 0));
  const UINT key = control ? character + 64 : character;
  m_lastKey = static_cast<char>(key);
  m_lastEvent = EVENT_KEY;
  if (!m_initialised) {
    return;
  }
  const Life life = m_life;
  m_inKey = true;
  const UINT lower = key >= 'A' && key <= 'Z' ? key + ('a' - 'A') : key;
  const KeyAction* action = nullptr;
  for (const KeyAction& row : kKeyActions) {
    if (static_cast<UINT>(row.key) == lower) action = &row;
  }
  if (m_zoomBoxMode) {
    if (key == kEscape) {
      ZoomBox(ZOOM_CANCEL);
    } else if (key == VK_SPACE) {
      ZoomBox(ZOOM_KEY);
    }
  } else if (action == nullptr) {
    Tell(key == kEscape ? EVENT_ESCAPE : EVENT_KEY);
  } else if (!m_isSlave) {
    (this->*action->act)();
  }
  if (!life.expired()) {
    m_inKey = false;
  }
}

void CGUIBaseView::KeyZoomBox() {
  m_zoomBoxMode = true;
  if (m_pan.IsActive()) {
    m_pan.Stop();  // its release would go to the box
    ReleaseCapture();
  }
  Tell(EVENT_ZOOM_MODE);
}

void CGUIBaseView::EscapePressed() {
  const Life life = m_life;
  m_drawMode = R2_COPYPEN;
  if (m_zoomBoxMode) {
    ZoomBox(ZOOM_CANCEL);
  }
  if (!life.expired()) {
    Invalidate(TRUE);
  }
}

// --- Zoom box

int CGUIBaseView::ZoomBox(ZOOM_EVENT event) {
  coregui::CZoomBox& box = coregui::CZoomBox::Shared();
  const CPoint at = m_mapping.UserToWindow(m_currentPos);
  switch (event) {
    case ZOOM_MOVE:
      box.Move(*this, at);
      break;
    case ZOOM_CLICK:
      box.Click(*this, at);
      break;
    case ZOOM_KEY:
      box.Key(*this, m_lastKey);
      break;
    case ZOOM_CANCEL:
      box.Cancel(*this);
      break;
  }
  return 1;
}

void CGUIBaseView::DrawBoxOutline(CPoint anchor, CPoint corner) {
  // What is still to be painted must come before the outline, or it would cover half of an exclusive-or.
  UpdateWindow();
  m_drawMode = R2_XORPEN;
  DrawRect(anchor, corner, kBoxColour);
  m_drawMode = R2_COPYPEN;
}

void CGUIBaseView::ReleaseFromBox() {
  if (GetCapture() == this) {
    ReleaseCapture();
  }
}

bool CGUIBaseView::ZoomToBox(CPoint anchor, CPoint corner) {
  const Life life = m_life;
  ZoomRect(FRect(m_mapping.WindowToUser(anchor), m_mapping.WindowToUser(corner)));
  return !life.expired();
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
  m_currentPos = m_mapping.WindowToUser(point);
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

void CGUIBaseView::OnMButtonDown(UINT flags, CPoint point) {
  if (!m_initialised || m_zoomBoxMode) {
    return;
  }
  const Life life = m_life;
  SetFocus();
  if (!m_isSlave) {
    NoteForHistory();
    m_pan.Start(point);
    SetCapture();
    NotifyParent();
  }
  if (!life.expired()) {
    TellButton(EVENT_OTHER_DOWN, flags, KEYFLAG_MIDDLE);
  }
}

void CGUIBaseView::OnMButtonUp(UINT flags, CPoint /*point*/) {
  if (!m_initialised || m_zoomBoxMode) {
    return;
  }
  const Life life = m_life;
  if (!m_isSlave) {
    m_pan.Stop();
    if (GetCapture() == this) {
      ReleaseCapture();
    }
    Invalidate(TRUE);
    NotifyParent();
  }
  if (!life.expired()) {
    TellButton(EVENT_BUTTON_UP, flags, KEYFLAG_MIDDLE);
  }
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
  return CWnd::WindowProc(message, wParam, lParam);
}

void CGUIBaseView::OnMouseLeave() {
  m_tracking = false;
  m_hasPosition = false;
  if (m_options.crossHair) {
    Invalidate(TRUE);
  }
}

void CGUIBaseView::Track(UINT flags, CPoint point) {
  // Only another pixel replaces the position: one that the program set exactly survives the pointer that
  // follows it.
  if (m_mapping.UserToWindow(m_currentPos) == point) {
    return;
  }
  if (m_options.crossHair || m_measuring) {
    Invalidate(TRUE);
  }
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

bool CGUIBaseView::PanStep(CPoint point) {
  CSize moved;
  if (!m_pan.Step(point, m_mapping, &moved)) {
    return true;
  }
  const Life life = m_life;
  ScrollFor(moved);
  if (m_slave == nullptr) {
    NotifyParent();
  }
  return !life.expired() && Tell(EVENT_PAN);
}

void CGUIBaseView::ScrollFor(CSize moved) {
  const CRect client = GetClientRectangle();
  const coregui::CPanGesture::Scroll scroll = coregui::CPanGesture::ScrollFor(moved, m_mapping, client);
  ScrollWindow(scroll.by.cx, scroll.by.cy, &scroll.area, &scroll.area, TRUE);
  if (!scroll.strip.IsRectEmpty()) {
    ScrollWindow(0, scroll.by.cy, &scroll.strip, &scroll.strip, TRUE);
  }
  if (scroll.whole) {
    Invalidate(TRUE);
  }
  if (m_slave == nullptr) {
    return;
  }
  m_slave->m_mapping.now.offsetX = m_mapping.now.offsetX;
  const CRect theirs = m_slave->GetClientRectangle();
  const CRect area = scroll.whole ? theirs : coregui::CPanGesture::DrawingArea(m_mapping, theirs);
  m_slave->ScrollWindow(moved.cx, 0, &area, &area, TRUE);
}

// --- Touchpad

LRESULT CGUIBaseView::OnPinch(WPARAM wParam, LPARAM lParam) {
  if (!m_options.touchpad || m_zoomBoxMode) {
    return Default();
  }
  ZoomAt(CPoint::FromLParam(lParam), static_cast<double>(wParam) / 65536.0);
  return 1;
}

LRESULT CGUIBaseView::OnWantPan(WPARAM /*wParam*/, LPARAM /*lParam*/) {
  return m_options.touchpad && m_initialised && !m_isSlave && !m_zoomBoxMode ? 1 : 0;
}

LRESULT CGUIBaseView::OnTouchPan(WPARAM /*wParam*/, LPARAM lParam) {
  if (OnWantPan(0, 0) == 0) {
    return 0;
  }
  const bool wasPanning = m_pan.IsActive();
  NoteForHistory();
  m_pan.Start({0, 0});
  const Life life = m_life;
  PanStep(CPoint::FromLParam(lParam));
  if (!life.expired() && !wasPanning) {
    m_pan.Stop();
  }
  return 1;
}
