#include <array>
#include <cmath>

#include "views/CGUIBaseView.h"

// What a view puts on its window.

namespace {

constexpr COLORREF kBoxColour = 0xFEFEFE;
constexpr COLORREF kCrossHairColour = 0x808080;
constexpr COLORREF kMeasureColour = RGB(0, 90, 200);

}  // namespace

BOOL CGUIBaseView::OnEraseBkgnd(CDC* dc) {
  dc->FillSolidRect(GetClientRectangle(), m_background);
  return TRUE;
}

void CGUIBaseView::OnPaint() {
  CPaintDC dc(this);
  DrawTo(dc, GetClientRectangle());
  if (m_initialised && m_options.crossHair && m_hasPosition) {
    DrawCrossHair(dc);
  }
  if (m_initialised && m_measuring) {
    DrawMeasure(dc);
  }
  CPoint anchor;
  CPoint corner;
  if (coregui::CZoomBox::Shared().GetBox(*this, &anchor, &corner)) {
    // What was painted lies over the outline; it must be there to be removed later.
    CPen pen(PS_SOLID, 1, kBoxColour);
    CPen* before = dc.SelectObject(&pen);
    const int mode = dc.SetROP2(R2_XORPEN);
    const std::array<POINT, 5> outline = {anchor, CPoint(corner.x, anchor.y), corner,
                                          CPoint(anchor.x, corner.y), anchor};
    dc.Polyline(outline.data(), static_cast<int>(outline.size()));
    dc.SetROP2(mode);
    dc.SelectObject(before);
  }
}

void CGUIBaseView::DrawRect(CPoint a, CPoint b, COLORREF colour) {
  CClientDC dc(this);
  if (!dc.IsValid()) {
    return;
  }
  CPen pen(PS_SOLID, 1, colour);
  CPen* before = dc.SelectObject(&pen);
  dc.SetROP2(m_drawMode);
  const std::array<POINT, 5> outline = {a, CPoint(b.x, a.y), b, CPoint(a.x, b.y), a};
  dc.Polyline(outline.data(), static_cast<int>(outline.size()));
  dc.SelectObject(before);
}

void CGUIBaseView::DrawCrossHair(CDC& dc) {
  const CRect client = GetClientRectangle();
  const CPoint at = m_mapping.UserToWindow(m_currentPos);
  const int saved = dc.SaveDC();
  CPen pen(PS_DOT, 1, kCrossHairColour);
  dc.SelectObject(&pen);
  dc.SetBkMode(TRANSPARENT);
  dc.MoveTo(client.left, at.y);
  dc.LineTo(client.right, at.y);
  dc.MoveTo(at.x, client.top);
  dc.LineTo(at.x, client.bottom);
  // As many decimals as a pixel tells apart.
  const CString text =
      coregui::FormatPlotNumber(m_currentPos.x, m_mapping.WindowToUserWidth(1), m_options.readOut) + L"  " +
      coregui::FormatPlotNumber(m_currentPos.y, m_mapping.WindowToUserHeight(1), PlotNumberFormat::decimal);
  DrawLabel(dc, at + CSize(8, -8), text);
  dc.RestoreDC(saved);
}

void CGUIBaseView::DrawMeasure(CDC& dc) {
  const CPoint from = m_mapping.UserToWindow(m_measureStart);
  const CPoint to = m_mapping.UserToWindow(m_currentPos);
  const int saved = dc.SaveDC();
  CPen pen(PS_SOLID, 1, kMeasureColour);
  dc.SelectObject(&pen);
  dc.SetTextColor(kMeasureColour);
  dc.MoveTo(from.x, from.y);
  dc.LineTo(to.x, to.y);
  DrawLabel(dc, to + CSize(8, 20), GetMeasureText());
  dc.RestoreDC(saved);
}

void CGUIBaseView::DrawLabel(CDC& dc, CPoint at, const CString& text) {
  // Inside the window, on its own ground.
  const CRect client = GetClientRectangle();
  const CSize size = dc.GetTextExtent(text.GetString(), text.GetLength());
  const LONG x = std::max(client.left, std::min(at.x, client.right - size.cx - 2));
  const LONG y = std::max(client.top, std::min(at.y - size.cy, client.bottom - size.cy));
  dc.FillSolidRect(CRect(x, y, x + size.cx + 2, y + size.cy), m_background);
  dc.SetBkMode(TRANSPARENT);
  dc.TextOut(x + 1, y, text.GetString(), text.GetLength());
}

CString CGUIBaseView::GetMeasureText() const {
  if (!m_measuring) {
    return {};
  }
  const double dx = m_currentPos.x - m_measureStart.x;
  const double dy = m_currentPos.y - m_measureStart.y;
  const auto number = [](double value) {
    return coregui::FormatPlotNumber(value, 0.001, PlotNumberFormat::decimal);
  };
  CString text = number(std::hypot(dx, dy)) + L"  dx " + number(dx) + L"  dy " + number(dy);
  if (dx != 0.0) {
    text += L"  " + coregui::FormatPlotNumber(100.0 * dy / dx, 0.01, PlotNumberFormat::decimal) + L" %";
  }
  return text;
}

void CGUIBaseView::StartMeasure(PNT_2D_record const& from) {
  m_measuring = true;
  m_measureStart = from;
  Invalidate(TRUE);
}

void CGUIBaseView::StopMeasure() {
  m_measuring = false;
  Invalidate(TRUE);
}
