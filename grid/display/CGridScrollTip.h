#pragma once

#include "platform/CWnd.h"

class CFont;

namespace coregui {

/// The little box beside a scroll bar's thumb that names what the view would start with. A child of the grid
/// that stands above its other parts, created when it is first shown.
class COREGUI_API CGridScrollTip : public CWnd {
 public:
  /// Shows the text with the box's right bottom corner at `anchor` (client position of `grid`), kept inside
  /// the grid. `font` is borrowed until the next call; null: the system's.
  void ShowAt(CWnd& grid, const CString& text, CPoint anchor, CFont* font);
  void Hide();
  const CString& GetText() const { return m_text; }
  const MessageTable& GetMessageTable() const override;

 private:
  void HandlePaint();

  CString m_text;
  CFont* m_font = nullptr;
};

}  // namespace coregui
