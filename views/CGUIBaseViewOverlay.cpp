#include <cmath>

#include "views/CGUIBaseView.h"

// What follows the position above the picture: the cross-hair and the line that measures.

CGUIBaseView::OverlayPause::OverlayPause(CGUIBaseView& view) : m_view(view), m_life(view.m_life) {
  if (m_view.m_overlayPauses++ == 0) {
    m_view.HideOverlay();
  }
}

CGUIBaseView::OverlayPause::~OverlayPause() {
  if (!m_life.expired() && --m_view.m_overlayPauses == 0) {
    m_view.ShowOverlay();
  }
}

void CGUIBaseView::ShowOverlay() {
  const CPoint at = m_mapping.UserToWindow(m_currentPos);
  // A position that a pan or a linked view has left outside has no hair and no read-out.
  const bool crossHair = m_options.crossHair && m_hasPosition && CRect(CPoint(), ClientSize()).PtInRect(at);
  if (!m_initialised || m_destroyed || (!crossHair && !m_measuring)) {
    return;
  }
  CClientDC dc(this);
  if (dc.IsValid()) {
    m_overlay.Show(dc, ClientSize(),
                   {at, crossHair, GetReadOut(), m_measuring, m_mapping.UserToWindow(m_measureStart),
                    GetMeasureText(), m_background});
  }
}

void CGUIBaseView::HideOverlay() {
  CClientDC dc(this);
  if (dc.IsValid()) {
    m_overlay.Hide(dc);
  }
}

void CGUIBaseView::SetOptions(Options const& options) {
  const OverlayPause pause(*this);
  m_options = options;
}

CString CGUIBaseView::GetReadOut() const {
  // As many decimals as a pixel tells apart.
  return coregui::FormatPlotNumber(m_currentPos.x, m_mapping.WindowToUserWidth(1), m_options.readOut) +
         L"  " +
         coregui::FormatPlotNumber(m_currentPos.y, m_mapping.WindowToUserHeight(1),
                                   PlotNumberFormat::decimal);
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
  const OverlayPause pause(*this);
  m_measuring = true;
  m_measureStart = from;
}

void CGUIBaseView::StopMeasure() {
  const OverlayPause pause(*this);
  m_measuring = false;
}
