#pragma once

#include "views/CGUIBaseView.h"

/// A plot view as a control of a dialog: a child window that draws its lines with smooth edges.
class COREGUI_API CGUIBaseViewWnd : public CGUIBaseView {
 public:
  using CGUIBaseView::CGUIBaseView;
  using CWnd::Create;

  /// Creates the child window at a place of its parent, in client pixels. Show it with InitView.
  BOOL Create(const RECT& rect, CWnd* parentWindow, UINT id);
  /// Smooth edges for what OnDraw and the layers draw; on from the start.
  void SetSmoothLines(bool smooth) { m_smooth = smooth; }
  void OnDraw(CDC* dc) override;

 private:
  bool m_smooth = true;
};
