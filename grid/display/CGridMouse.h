#pragma once

#include "core/Export.h"
#include "platform/Geometry.h"

class CGridCtrl;
class CGridInfo;
class CWnd;

namespace coregui {

class WindowRef;

/// The mouse over the body: clicks, drag selection with accelerated scrolling, the wheel. Each event is
/// offered to the type of the cell first and then told to the control.
///
/// A handler may destroy the grid; what follows in the event is then left out.
class COREGUI_API CGridMouse {
 public:
  /// Both are borrowed; `window` is the body.
  CGridMouse(CGridCtrl& control, CWnd& window) : m_control(control), m_window(window) {}

  /// `hasFocus`: the body has the focus already.
  void LeftDown(UINT flags, CPoint point, bool hasFocus);
  void LeftUp(UINT flags, CPoint point);
  void RightDown(UINT flags, CPoint point);
  void RightUp(UINT flags, CPoint point);
  void DoubleClick(UINT flags, CPoint point);
  void Move(UINT flags, CPoint point);
  void Wheel(UINT flags, short delta);
  /// A wheel that is tilted, or two fingers across a touchpad: a column per notch, positive to the right.
  void WheelAcross(UINT flags, short delta);
  static constexpr UINT kDragTimer = 0x710B;  ///< of the body
  static constexpr UINT kDragEvery = 100;     ///< milliseconds between steps while the pointer rests outside
  /// That timer went off.
  void TimeElapsed();
  /// The body gained the focus: no cell type has the button any more.
  void ReleaseType() { m_typeTook = false; }

 private:
  struct Hit;
  struct Button;
  static const Button kLeft;
  static const Button kRight;
  Hit HitTest(CPoint point) const;
  Hit CurrentCell(CPoint point) const;
  int Offer(const Button& button, Hit& hit, int updn, CPoint& point);
  bool Press(const Button& button, UINT flags, CPoint point, Hit& hit);
  bool Release(const Button& button, Hit offered, CPoint point);
  bool IsOutside(CPoint point) const;
  void Extend(const Hit& hit, CPoint point);
  void Drag(const Hit& hit, CPoint point);
  void DragColumn(const Hit& hit, int x);
  void DragRow(const Hit& hit, int y);
  /// Steps of a drag outside the grid, or over its partly visible last column or row; false where it is
  /// inside.
  bool DragColumnOutside(const Hit& hit, int x);
  bool DragRowOutside(const Hit& hit, int y);
  bool StepColumn(int direction, double factor);
  bool StepRow(int direction, double factor);
  void WaitAfter(long step) const;
  const CGridInfo& Info() const;

  CGridCtrl& m_control;
  CWnd& m_window;
  bool m_leftDown = false;  ///< the left button went down in this window
  bool m_rightDown = false;
  bool m_typeTook = false;  ///< the cell type took the left button
  CPoint m_dragPoint;       ///< where the pointer was during the drag last
};

}  // namespace coregui
