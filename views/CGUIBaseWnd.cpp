#include "views/CGUIBaseWnd.h"

#include "platform/System.h"
#include "views/DeviceNumbers.h"

const coregui::MessageTable& CGUIBaseWnd::GetMessageTable() const {
  using Window = CGUIBaseWnd;
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_PAINT>(&Window::OnPaint)
                                                 .On<WM_ERASEBKGND>(&Window::OnEraseBkgnd)
                                                 .On<WM_SIZE>(&Window::OnSize)
                                                 .On<WM_MOUSEMOVE>(&Window::OnMouseMove)
                                                 .On<WM_LBUTTONDOWN>(&Window::OnLButtonDown)
                                                 .On<WM_LBUTTONUP>(&Window::OnButtonUp)
                                                 .On<WM_RBUTTONDOWN>(&Window::OnButtonDown)
                                                 .On<WM_RBUTTONUP>(&Window::OnButtonUp)
                                                 .On<WM_MBUTTONDOWN>(&Window::OnButtonDown)
                                                 .On<WM_MBUTTONUP>(&Window::OnButtonUp)
                                                 .On<WM_MOUSEWHEEL>(&Window::OnMouseWheel)
                                                 .On<WM_CHAR>(&Window::OnChar)
                                                 .On<WM_GETDLGCODE>(&Window::OnGetDlgCode);
  return table;
}

void CGUIBaseWnd::ReadDevice() {
  const CRect client = GetClientRectangle();
  CClientDC dc(this);
  m_mapping.device.width = client.right;
  m_mapping.device.height = client.bottom;
  m_mapping.device.dpiX = dc.IsValid() ? dc.GetDeviceCaps(LOGPIXELSX) : GetDpi();
  m_mapping.device.dpiY = dc.IsValid() ? dc.GetDeviceCaps(LOGPIXELSY) : GetDpi();
}

void CGUIBaseWnd::InitView(FRect const& r, bool resetPos) {
  ReadDevice();
  m_mapping.Init(FRect(r), resetPos);
  Invalidate(TRUE);
}

void CGUIBaseWnd::UserInit(int x1, int x2, int y1, int y2) {
  InitView(FRect(x1, y1, x2, y2), false);
}

void CGUIBaseWnd::SetViewLimits(FRect const& r) {
  m_mapping.SetViewLimits(FRect(r));
  Invalidate(TRUE);
}

void CGUIBaseWnd::SetScale(int scale) {
  m_mapping.SetScale(scale);
  Redraw();
}

void CGUIBaseWnd::SetMirrored(bool mirrored) {
  m_mapping.mirrored = mirrored;
  Invalidate(TRUE);
}

void CGUIBaseWnd::SetDetailPane(int pixels) {
  m_mapping.device.detailPane = pixels;
}

void CGUIBaseWnd::Redraw() {
  if (m_mapping.initialised) {
    InitView(m_mapping.redrawLimits, false);
  }
}

void CGUIBaseWnd::Resize() {
  ReadDevice();
  m_mapping.Resize(m_mapping.device);
  Invalidate(TRUE);
}

void CGUIBaseWnd::ZoomWindow(FRect const& r) {
  m_mapping.ZoomWindow(FRect(r));
  ReleaseCapture();
  Invalidate(TRUE);
}

void CGUIBaseWnd::PlotZoom() {
  if (m_mapping.initialised) {
    m_mapping.StepZoom(m_lastKey == 'm' || m_lastKey == 'M');
    Invalidate(TRUE);
  }
}

void CGUIBaseWnd::Pan() {
  m_mapping.Pan();
  Invalidate(TRUE);
}

void CGUIBaseWnd::OnDraw(CDC* /*dc*/) {
  if (m_draw) {
    m_draw(*this);
  }
}

void CGUIBaseWnd::DrawTo(CDC& dc, CRect const& area) {
  if (!m_mapping.initialised || IsPlotting()) {
    return;
  }
  BeginPlot(dc, area, {m_mapping.device.dpiX, m_mapping.device.dpiY});
  OnDraw(&dc);
  EndPlot();
}

void CGUIBaseWnd::OnPaint() {
  CPaintDC dc(this);
  DrawTo(dc, GetClientRectangle());
}

BOOL CGUIBaseWnd::OnEraseBkgnd(CDC* dc) {
  dc->FillSolidRect(GetClientRectangle(), m_background);
  return TRUE;
}

void CGUIBaseWnd::OnSize(UINT /*type*/, int /*width*/, int /*height*/) {
  if (m_mapping.initialised) {
    Resize();
  }
}

bool CGUIBaseWnd::Tell(EVENT_TYPE event, char key) {
  if (m_hook == nullptr || !m_mapping.initialised) {
    return true;
  }
  const std::weak_ptr<int> life = m_life;
  const PNT_2D_record position = m_mapping.currentPos;
  m_hook(position, event, m_keyFlags, key, GetParent());
  return !life.expired();
}

void CGUIBaseWnd::OnMouseMove(UINT flags, CPoint point) {
  if (!m_mapping.initialised || m_mapping.UserToWindow(m_mapping.currentPos) == point) {
    return;
  }
  m_mapping.currentPos = m_mapping.WindowToUser(point);
  m_keyFlags = KeyFlagsOf(flags);
  Tell(EVENT_MOVE);
}

void CGUIBaseWnd::OnLButtonDown(UINT flags, CPoint /*point*/) {
  SetFocus();
  m_keyFlags = KeyFlagsOf(flags);
  Tell(EVENT_LBUTTON_DOWN);
}

void CGUIBaseWnd::OnButtonDown(UINT flags, CPoint /*point*/) {
  SetFocus();
  m_keyFlags = KeyFlagsOf(flags);
  Tell(EVENT_OTHER_DOWN);
}

void CGUIBaseWnd::OnButtonUp(UINT flags, CPoint /*point*/) {
  m_keyFlags = KeyFlagsOf(flags);
  Tell(EVENT_BUTTON_UP);
}

BOOL CGUIBaseWnd::OnMouseWheel(UINT /*flags*/, short delta, CPoint /*screen*/) {
  m_lastKey = delta < 0 ? 'd' : 'm';
  PlotZoom();
  return TRUE;
}

void CGUIBaseWnd::OnChar(UINT character, UINT /*repeat*/, UINT /*flags*/) {
  m_lastKey = static_cast<char>(character);
  switch (m_lastKey) {
    case 'm':
    case 'M':
    case 'd':
    case 'D':
      PlotZoom();
      break;
    case 'r':
    case 'R':
      Redraw();
      break;
    case 'w':
    case 'W':
      Pan();
      break;
    default:
      Tell(character == 27 ? EVENT_ESCAPE : EVENT_KEY, m_lastKey);
      break;
  }
}
