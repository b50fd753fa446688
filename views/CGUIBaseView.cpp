#include "views/CGUIBaseView.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace {

constexpr LONG kFarthestCursor = 1 << 20;  // pixels from the view: beyond every screen

}  // namespace

CGUIBaseView::CGUIBaseView(double vertRatio, CWnd* parent) : m_parent(parent) {
  m_mapping.now.vertRatio = vertRatio;
}

CGUIBaseView::~CGUIBaseView() {
  coregui::CZoomBox::Shared().Forget(*this);
}

void CGUIBaseView::ReadDotsPerInch() {
  CClientDC dc(this);
  m_mapping.now.dpiX = dc.IsValid() ? dc.GetDeviceCaps(LOGPIXELSX) : GetDpi();
  m_mapping.now.dpiY = dc.IsValid() ? dc.GetDeviceCaps(LOGPIXELSY) : GetDpi();
}

void CGUIBaseView::InitView(FRect const& extents, double vertRatio) {
  m_cursor = LoadSystemCursor(SystemCursor::cross);
  ReadDotsPerInch();
  m_mapping.extents = extents;
  m_initialised = true;
  m_mapping.now.vertRatio = vertRatio;
  Redraw();
}

void CGUIBaseView::SetVertRatio(double ratio) {
  InitView(FRect(m_mapping.extents), ratio);
}

void CGUIBaseView::Redraw() {
  if (!m_initialised) {
    return;
  }
  if (!m_isSlave) {
    m_mapping.FitToRect(GetClientRectangle());
  }
  Invalidate(TRUE);
  Notify();
}

void CGUIBaseView::Notify() {
  if (!NotifySlave()) {
    NotifyParent();
  }
}

bool CGUIBaseView::NotifySlave() {
  CGUIBaseView* const slave = GetSlave();
  if (slave != nullptr) {
    slave->SyncToView(this);
    slave->Invalidate(TRUE);
  }
  return slave != nullptr;
}

void CGUIBaseView::NotifyParent() {
  if (CWnd* parent = m_parent.Get()) {
    parent->SendMessage(WM_VIEW_CHANGED, reinterpret_cast<WPARAM>(this), 0);
  }
}

bool CGUIBaseView::Tell(EVENT_TYPE event) {
  m_lastEvent = event;
  if (m_hook == nullptr) {
    return true;
  }
  const OverlayPause pause(*this);
  const Life life = m_life;
  const PNT_2D_record position = m_currentPos;  // the hook may move it, or destroy it with the view
  m_hook(position, event, m_keyFlags, m_inKey ? m_lastKey : '\0', m_parent.Get());
  return !life.expired();
}

void CGUIBaseView::DoZoom(PNT_2D_record const& centre, double newScale, bool moveCursor) {
  NoteForHistory();
  ZoomTo(centre, newScale, moveCursor);
}

void CGUIBaseView::ZoomTo(PNT_2D_record const& centre, double newScale, bool moveCursor) {
  using Result = coregui::CViewMapping::ZoomResult;
  const PNT_2D_record middle = centre;  // `centre` may be the current position, which changes below
  const Life life = m_life;
  const OverlayPause pause(*this);
  const Result result = m_mapping.Zoom(middle, newScale, ClientSize());
  if (result == Result::refit) {
    Redraw();
  }
  if (life.expired()) {
    return;
  }
  if (moveCursor) {
    SetCurrentPos(middle, false);
  }
  if (life.expired() || result != Result::zoomed) {
    return;
  }
  Invalidate(TRUE);
  Notify();
}

void CGUIBaseView::ZoomRect(FRect const& r) {
  const PNT_2D_record centre = r.Centre();
  DoZoom(centre, m_mapping.ScaleOf(r, ClientSize()), false);
}

void CGUIBaseView::ZoomPtWidth(PNT_2D_record const& centre, double width, bool moveCursor) {
  DoZoom(centre, width / ClientSize().cx, moveCursor);
}

void CGUIBaseView::GetZoomRect(FRect& r) const {
  const CRect client = GetClientRectangle();
  r.Set(m_mapping.WindowToUser(client.TopLeft()), m_mapping.WindowToUser(client.BottomRight()));
}

void CGUIBaseView::ZoomAt(CPoint at, double factor) {
  if (m_initialised && !m_isSlave && factor > 0.0) {
    NoteForHistory();
    ZoomAround(at, factor);
  }
}

void CGUIBaseView::ZoomAround(CPoint at, double factor) {
  // The middle of the client area is where a zoom puts its centre.
  const CSize client = ClientSize();
  const PNT_2D_record held = m_mapping.WindowToUser(at);
  const PNT_2D_record middle = m_mapping.WindowToUser({client.cx / 2, client.cy / 2});
  ZoomTo({held.x + (middle.x - held.x) / factor, held.y + (middle.y - held.y) / factor},
         m_mapping.now.scale / factor, false);
}

void CGUIBaseView::NoteForHistory(coregui::CViewHistory::Gesture gesture) {
  if (m_options.history) {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    m_history.Note(m_mapping.now, gesture, std::chrono::duration<double>(now).count());
  }
}

void CGUIBaseView::ShowPlace() {
  const OverlayPause pause(*this);
  if (m_tracking) {
    m_currentPos = m_mapping.WindowToUser(m_pointer);  // the cross-hair stays under it
  }
  Invalidate(TRUE);
  Notify();
}

bool CGUIBaseView::GoBack() {
  const bool went = m_history.GoBack(m_mapping.now);
  if (went) {
    ShowPlace();
  }
  return went;
}

bool CGUIBaseView::GoForward() {
  const bool went = m_history.GoForward(m_mapping.now);
  if (went) {
    ShowPlace();
  }
  return went;
}

void CGUIBaseView::SetCurrentPos(PNT_2D_record const& p, bool force) {
  const OverlayPause pause(*this);
  m_currentPos = p;
  m_basePoint = p;
  m_hasPosition = true;
  if ((!m_isSlave || force) && HasWindow()) {
    // As far as the screen's edge; beyond it a pixel may be more than a screen's coordinate holds.
    const CPoint pixel = m_mapping.UserToWindow(m_currentPos);
    POINT at{std::clamp(pixel.x, -kFarthestCursor, kFarthestCursor),
             std::clamp(pixel.y, -kFarthestCursor, kFarthestCursor)};
    ClientToScreen(&at);
    SetCursorPos(at.x, at.y);
  }
  m_lastEvent = EVENT_MOVE;
  if (m_hook != nullptr) {
    const PNT_2D_record position = m_currentPos;
    m_hook(position, EVENT_MOVE, 0, 0, m_parent.Get());
  }
}

PNT_2D_record CGUIBaseView::AccurateCoordFromScreen(CPoint const& pt) const {
  const PNT_2D_record world = m_mapping.WindowToUser(pt);
  // Kept: the tolerance is the world position of client pixel (1, 1), not the size of a pixel. Callers that
  // work near the world's origin have tuned their picking to it.
  const PNT_2D_record tolerance = m_mapping.WindowToUser({1, 1});
  const bool near = std::fabs(world.x - m_currentPos.x) <= tolerance.x + 1e-12 &&
                    std::fabs(world.y - m_currentPos.y) <= tolerance.y + 1e-12;
  return near ? m_currentPos : world;
}

void CGUIBaseView::SetSlaveView(CGUIBaseView* slave) {
  m_slave = slave;
  m_slaveLife = slave == nullptr ? Life() : Life(slave->m_life);
  if (slave == nullptr) {
    return;
  }
  slave->m_isSlave = true;
  slave->m_mapping.extents.SetLeft(m_mapping.extents.GetLeft());
  slave->m_mapping.extents.SetRight(m_mapping.extents.GetRight());
}

bool CGUIBaseView::SyncToView(const CGUIBaseView* master) {
  return master != nullptr && m_mapping.SyncTo(master->m_mapping);
}

CRect CGUIBaseView::GetDrawingArea() const {
  CRect area = GetPlotArea();
  const CRect margins = m_mapping.GetMarginPixels();
  area.left += margins.left;
  area.top += margins.top;
  area.right -= margins.right;
  area.bottom -= margins.bottom;
  return area;
}

void CGUIBaseView::PlotRuler(PlotSide side, PlotRulerStyle const& style) {
  m_mapping.rulerLimits = true;
  CPlotSheet::PlotRuler(side, style);
}

void CGUIBaseView::AddLayer(int order, std::function<void(CGUIBaseView&)> draw) {
  m_layers.emplace(order, std::move(draw));
}

void CGUIBaseView::OnDraw(CDC* /*dc*/) {
  for (const auto& [order, draw] : m_layers) {
    draw(*this);
  }
}

void CGUIBaseView::DrawTo(CDC& dc, CRect const& area) {
  if (!m_initialised || IsPlotting()) {
    return;
  }
  BeginPlot(dc, area, {m_mapping.now.dpiX, m_mapping.now.dpiY});
  OnDraw(&dc);
  EndPlot();
}

void CGUIBaseView::Print(CDC* dc, CSize page) {
  coregui::CViewMapping mapping = m_mapping;
  mapping.now.dpiX = dc->GetDeviceCaps(LOGPIXELSX);
  mapping.now.dpiY = dc->GetDeviceCaps(LOGPIXELSY);
  mapping.FitToRect(CRect(0, 0, page.cx, page.cy));
  PrintMapped(*dc, page, mapping);
}

void CGUIBaseView::PrintMapped(CDC& dc, CSize page, const coregui::CViewMapping& mapping,
                               PrintPageNumber number) {
  if (IsPlotting()) {
    return;
  }
  // The limit of zooming out belongs to the window and is put back with the rest.
  const coregui::CViewMapping::Scale saved = m_mapping.now;
  const coregui::VertMode savedMode = m_mapping.vertMode;
  m_isPrinting = true;
  m_printPage = number;
  m_printRect = CRect(0, 0, page.cx, page.cy);
  m_mapping.now = mapping.now;
  m_mapping.vertMode = mapping.vertMode;
  BeginPlot(dc, m_printRect, {m_mapping.now.dpiX, m_mapping.now.dpiY});
  OnDraw(&dc);
  EndPlot();
  m_mapping.now = saved;
  m_mapping.vertMode = savedMode;
  m_isPrinting = false;
}
