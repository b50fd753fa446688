#pragma once

#include <functional>

#include "coregui/coregui.h"

namespace desk {

/// A bar between two panes that is dragged to share the room between them.
class Splitter : public CWnd {
 public:
  /// `upright`: the bar stands and moves sideways. `moved` gets the pixels that it was dragged since the last
  /// call.
  Splitter(bool upright, std::function<void(int)> moved) : m_upright(upright), m_moved(std::move(moved)) {}
  static int Thickness() { return ScaleByDpi(5); }
  BOOL CreateBar(CWnd* parent, UINT id);

 protected:
  const coregui::MessageTable& GetMessageTable() const override;

 private:
  void HandlePaint();
  void HandleButtonDown(UINT flags, CPoint point);
  void HandleButtonUp(UINT flags, CPoint point);
  void HandleMouseMove(UINT flags, CPoint point);
  BOOL HandleSetCursor(CWnd* window, UINT hitTest, UINT message);
  int Along(CPoint point) const;

  bool m_upright;
  std::function<void(int)> m_moved;
  bool m_dragging = false;
  int m_last = 0;  ///< screen position of the pointer at the last step of a drag
};

}  // namespace desk
