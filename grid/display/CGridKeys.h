#pragma once

#include "core/Export.h"
#include "platform/Types.h"

class CGridCtrl;
class CWnd;

namespace coregui {

/// The keys of the body: each is offered to the current cell's type, told to the control, and then moves the
/// current cell by a table of keys, or asks for help. A held-down key may accelerate.
class COREGUI_API CGridKeys {
 public:
  /// Both are borrowed; `window` is the body.
  CGridKeys(CGridCtrl& control, CWnd& window) : m_control(control), m_window(window) {}

  void KeyDown(UINT key);
  void KeyUp(UINT key);
  void Character(UINT character);
  /// The next key-down is the first one of its key again.
  void ResetRepeat() { m_repeat = 0; }

 private:
  struct Rule;
  void StepColumn(int direction);
  void StepRow(int direction);
  void Step(long col, long row, bool alongColumns);
  static const Rule* FindRule(UINT key, bool control);

  CGridCtrl& m_control;
  CWnd& m_window;
  int m_repeat = 0;  ///< key-downs since the last key-up, counted in ballistic mode
  long m_step = 1;   ///< how far the key at hand moves
};

}  // namespace coregui
