#include "views/CGUIBaseViewWnd.h"

BOOL CGUIBaseViewWnd::Create(const RECT& rect, CWnd* parentWindow, UINT id) {
  return Create(L"CGUIBaseViewWnd", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, rect, parentWindow, id);
}

void CGUIBaseViewWnd::OnDraw(CDC* dc) {
  SetPlotAntiAliasing(m_smooth);
  CGUIBaseView::OnDraw(dc);
}
