#include "grid/display/CGridKeys.h"

#include <algorithm>
#include <array>
#include <limits>

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "grid/display/Ballistics.h"
#include "grid/display/ContextHelp.h"
#include "platform/Keys.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

namespace coregui {
namespace {

constexpr int kPageBack = 2;  // move codes of the control
constexpr int kPageForward = 3;
constexpr int kFirst = 4;
constexpr int kLast = 5;
constexpr long kMostLines = std::numeric_limits<std::int32_t>::max();

enum class When { always, withoutControl, withControl };
enum class Effect { stepColumn, stepRow, moveColumn, moveRow, help };

}  // namespace

struct CGridKeys::Rule {
  UINT key;
  When when;
  Effect effect;
  int argument;  ///< a direction, or a move code
};

const CGridKeys::Rule* CGridKeys::FindRule(UINT key, bool control) {
  static constexpr std::array<Rule, 11> kRules{{
      {VK_LEFT, When::always, Effect::stepColumn, -1},
      {VK_RIGHT, When::always, Effect::stepColumn, 1},
      {VK_UP, When::always, Effect::stepRow, -1},
      {VK_DOWN, When::always, Effect::stepRow, 1},
      {VK_PRIOR, When::always, Effect::moveRow, kPageBack},
      {VK_NEXT, When::always, Effect::moveRow, kPageForward},
      {VK_HOME, When::withoutControl, Effect::moveColumn, kFirst},
      {VK_HOME, When::withControl, Effect::moveRow, kFirst},
      {VK_END, When::withoutControl, Effect::moveColumn, kLast},
      {VK_END, When::withControl, Effect::moveRow, kLast},
      {VK_F1, When::withoutControl, Effect::help, 0},
  }};
  const When held = control ? When::withControl : When::withoutControl;
  const auto* const at = std::find_if(kRules.begin(), kRules.end(), [key, held](const Rule& rule) {
    return rule.key == key && (rule.when == When::always || rule.when == held);
  });
  return at != kRules.end() ? at : nullptr;
}

void CGridKeys::KeyDown(UINT key) {
  const WindowRef alive(&m_window);
  const Ballistics& ballistics = m_control.GetInfo().view.keyBallistics;
  if (ballistics.mode > 0) ++m_repeat;
  const KeyPace pace = PaceKey(m_repeat, ballistics.mode, ballistics.delay);
  m_step = pace.step;
  if (pace.waits) Sleep(static_cast<UINT>(ballistics.delay));
  const int col = m_control.GetCurrentCol();
  const long row = m_control.GetCurrentRow();
  int processed = 0;
  if (col >= 0 && row >= 0) processed = m_control.GetCellDelegate(col, row)->OnKeyDown(col, row, &key);
  if (!alive) return;
  m_control.OnKeyDown(&key, processed);
  if (!alive) return;
  const Rule* const rule = FindRule(key, GetKeyState(VK_CONTROL) < 0);
  if (rule == nullptr) return;
  switch (rule->effect) {
    case Effect::stepColumn:
      StepColumn(rule->argument);
      break;
    case Effect::stepRow:
      StepRow(rule->argument);
      break;
    case Effect::moveColumn:
      m_control.MoveCurrentCol(rule->argument);
      break;
    case Effect::moveRow:
      m_control.MoveCurrentRow(rule->argument);
      break;
    case Effect::help:
      AskForHelp(m_control);
      break;
  }
}

/// Forward, the step begins behind the joined block that holds the current cell.
void CGridKeys::StepColumn(int direction) {
  const CGridInfo& info = m_control.GetInfo();
  long target = info.columns.drag + direction * m_step;
  int col = static_cast<int>(info.columns.current);
  long row = info.rows.current;
  int endCol = 0;
  long endRow = 0;
  if (direction > 0 && m_control.GetJoinRange(&col, &row, &endCol, &endRow) == 0) target += endCol - col;
  Step(std::clamp(target, 0L, kMostLines), info.rows.drag, true);
}

void CGridKeys::StepRow(int direction) {
  const CGridInfo& info = m_control.GetInfo();
  long target = info.rows.drag + direction * m_step;
  int col = static_cast<int>(info.columns.current);
  long row = info.rows.current;
  int endCol = 0;
  long endRow = 0;
  if (direction > 0 && m_control.GetJoinRange(&col, &row, &endCol, &endRow) == 0) target += endRow - row;
  Step(info.columns.drag, std::clamp(target, 0L, kMostLines), false);
}

/// A target inside a joined block stands for the block's first cell, kept as far from it as the drag cell is
/// from the current one.
void CGridKeys::Step(long col, long row, bool alongColumns) {
  const CGridInfo& info = m_control.GetInfo();
  int startCol = 0;
  long startRow = 0;
  if (m_control.GetJoinStartCell(&startCol, &startRow, static_cast<int>(col), row) == 0) {
    m_control.GotoCell(startCol + static_cast<int>(info.columns.drag - info.columns.current),
                       startRow + info.rows.drag - info.rows.current);
  } else if (alongColumns) {
    m_control.GotoCol(static_cast<int>(col));
  } else {
    m_control.GotoRow(row);
  }
}

void CGridKeys::KeyUp(UINT key) {
  const WindowRef alive(&m_window);
  const int col = m_control.GetCurrentCol();
  const long row = m_control.GetCurrentRow();
  int processed = 0;
  if (col >= 0 && row >= 0) processed = m_control.GetCellDelegate(col, row)->OnKeyUp(col, row, &key);
  if (!alive) return;
  m_control.OnKeyUp(&key, processed);
  if (alive) m_repeat = 0;
}

void CGridKeys::Character(UINT character) {
  const WindowRef alive(&m_window);
  const int col = m_control.GetCurrentCol();
  const long row = m_control.GetCurrentRow();
  int processed = 0;
  if (col >= 0 && row >= 0) processed = m_control.GetCellDelegate(col, row)->OnCharDown(col, row, &character);
  if (alive) m_control.OnCharDown(&character, processed);
}

}  // namespace coregui
