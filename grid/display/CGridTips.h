#pragma once

#include <memory>

#include "core/Export.h"
#include "platform/CString.h"
#include "platform/Geometry.h"

class CGridCtrl;
class CToolTipCtrl;
class CWnd;

namespace coregui {

/// The tips of the cells of one window: a tip is asked for once the pointer has rested on one cell, and goes
/// when the pointer comes to another. Only while the sheet's hints are switched on.
class COREGUI_API CGridTips {
 public:
  /// Both are borrowed; `section` numbers the window for OnHint.
  CGridTips(CGridCtrl& control, CWnd& window, int section);
  ~CGridTips();

  static constexpr UINT kTimer = 0x7109;      ///< of the window
  static constexpr UINT kInitialDelay = 200;  ///< milliseconds that the pointer rests; also between tips
  static constexpr UINT kShownFor = 32767;    ///< milliseconds
  static constexpr int kWidest = 32767;       ///< pixels

  /// The pointer moves over the window, at a client position.
  void PointerAt(CPoint point);
  /// The pointer left, or something else happens: no tip.
  void Cancel();
  /// The window's timer went off.
  void TimeElapsed();
  /// Whether there is a tip, and its text.
  bool IsShown() const { return m_shown; }
  const CString& Text() const { return m_text; }

  /// Whether the cell is the one of the hit test before; a different one is remembered and cancels the tip.
  bool HitTest(int col, long row);
  /// The cell's text from the control; false when it has none to show.
  bool AskText(int col, long row);

 private:
  bool CellAt(CPoint point, int* col, long* row) const;
  void Show();

  CGridCtrl& m_control;
  CWnd& m_window;
  int m_section;
  int m_col;  ///< of the last hit test
  long m_row;
  CPoint m_point;
  bool m_shown = false;
  CString m_text;
  std::unique_ptr<CToolTipCtrl> m_tip;  ///< made when the first tip is shown
};

}  // namespace coregui
