#include <array>

#include "views/CGUIBaseView.h"

// What a view puts on its window.

namespace {

constexpr COLORREF kBoxColour = 0xFEFEFE;

void DrawOutline(CDC& dc, int mode, COLORREF colour, CPoint a, CPoint b) {
  CPen pen(PS_SOLID, 1, colour);
  const int saved = dc.SaveDC();
  dc.SelectObject(&pen);
  dc.SetROP2(mode);
  const std::array<POINT, 5> outline = {a, CPoint(b.x, a.y), b, CPoint(a.x, b.y), a};
  dc.Polyline(outline.data(), static_cast<int>(outline.size()));
  dc.RestoreDC(saved);
}

}  // namespace

BOOL CGUIBaseView::OnEraseBkgnd(CDC* dc) {
  dc->FillSolidRect(GetClientRectangle(), m_background);
  return TRUE;
}

void CGUIBaseView::OnPaint() {
  const OverlayPause pause(*this);
  CPaintDC dc(this);
  m_inPlace.clear();
  m_isPainting = true;
  DrawTo(dc, GetClientRectangle());
  m_isPainting = false;
  CPoint anchor;
  CPoint corner;
  if (coregui::CZoomBox::Shared().GetBox(*this, &anchor, &corner)) {
    // What was painted lies over the outline; it must be there to be removed later.
    DrawOutline(dc, R2_XORPEN, kBoxColour, anchor, corner);
  }
}

void CGUIBaseView::KeepInPlace(CRect const& part) {
  if (m_isPainting) {
    m_inPlace.push_back(part);
  }
}

void CGUIBaseView::DrawRect(CPoint a, CPoint b, COLORREF colour) {
  const OverlayPause pause(*this);
  CClientDC dc(this);
  if (dc.IsValid()) {
    DrawOutline(dc, m_drawMode, colour, a, b);
  }
}
