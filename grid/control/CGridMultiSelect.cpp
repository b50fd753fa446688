#include "grid/control/CGridMultiSelect.h"

#include <algorithm>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridDrawHint.h"
#include "platform/System.h"

namespace {

bool IsDown(UINT key) {
  return GetKeyState(key) < 0;
}

}  // namespace

int CGridMultiSelect::ClearAll() {
  m_blocks.clear();
  ForgetRow();
  m_enum = {};
  m_clickedCol = -1;
  m_clickedRow = -1;
  return 0;
}

int CGridMultiSelect::StartBlock(int col, long row) {
  Block block;
  block.startCol = block.endCol = col;
  block.startRow = block.endRow = row;
  Normalise(block);
  m_blocks.push_back(block);
  ForgetRow();
  Report(block);
  Hint(block);
  return 0;
}

int CGridMultiSelect::EndBlock(int col, long row) {
  if (m_blocks.empty()) {
    return 1;
  }
  const Block before = m_blocks.back();
  Block block = before;
  block.endCol = col;
  block.endRow = row;
  block.selected = 1;
  Normalise(block);
  m_blocks.back() = block;
  ForgetRow();
  Report(block);
  HintChange(before, block);
  return 0;
}

void CGridMultiSelect::OnLClick(int col, long row, UINT flags) {
  m_clickedCol = col;
  m_clickedRow = row;
  if ((flags & MK_CONTROL) != 0) {
    StartBlock(col, row);
  } else if ((flags & MK_SHIFT) != 0) {
    EndBlock(col, row);
  } else {
    HintAndClear();
    m_clickedCol = col;
    m_clickedRow = row;
    StartBlock(col, row);
  }
}

void CGridMultiSelect::OnRClick(int col, long row, UINT) {
  if (IsSelected(col, row) != 0) {
    return;
  }
  HintAndClear();
  StartBlock(col, row);
}

void CGridMultiSelect::OnKeyMove(int col, long row) {
  // Kept: the click has selected its cell already, so a move onto it changes nothing.
  if (col == m_clickedCol && row == m_clickedRow) {
    return;
  }
  if (IsDown(VK_SHIFT)) {
    EndBlock(col, row);
    return;
  }
  if (!IsDown(VK_CONTROL)) {
    HintAndClear();
  }
  StartBlock(col, row);
}

void CGridMultiSelect::OnMouseMove(int col, long row, UINT) {
  // Kept: a drag that returns to the clicked cell leaves the block as it was extended last; the pointer's
  // shaking on one cell never changes a block.
  if (col != m_clickedCol || row != m_clickedRow) {
    EndBlock(col, row);
  }
}

int CGridMultiSelect::ToggleCell(int col, long row) {
  const auto own = std::find_if(m_blocks.begin(), m_blocks.end(), [&](const Block& block) {
    return block.left == col && block.right == col && block.top == row && block.bottom == row;
  });
  if (own != m_blocks.end()) {
    own->selected = own->selected == 0 ? 1 : 0;
    Hint(*own);
    Report(Block(*own));
    return 0;
  }
  const int selected = IsSelected(col, row);
  StartBlock(col, row);
  if (!m_blocks.empty()) {  // the notification may have cleared the selection
    m_blocks.back().selected = selected == 0 ? 1 : 0;
  }
  return 0;
}

int CGridMultiSelect::GetOrigCell(int* col, long* row) {
  if (m_blocks.empty()) {
    return 1;
  }
  *col = m_blocks.back().startCol;
  *row = m_blocks.back().startRow;
  return 0;
}

int CGridMultiSelect::GetCurrentBlock(int* left, long* top, int* right, long* bottom) {
  if (m_blocks.empty()) {
    return 1;
  }
  const Block& block = m_blocks.back();
  *left = block.left;
  *top = block.top;
  *right = block.right;
  *bottom = block.bottom;
  return 0;
}

int CGridMultiSelect::GetTotalRange(int* left, long* top, int* right, long* bottom) {
  if (m_blocks.empty()) {
    return 1;
  }
  const Block& first = m_blocks.front();
  *left = first.left;
  *top = first.top;
  *right = first.right;
  *bottom = first.bottom;
  for (const Block& block : m_blocks) {
    *left = std::min(*left, block.left);
    *top = std::min(*top, block.top);
    *right = std::max(*right, block.right);
    *bottom = std::max(*bottom, block.bottom);
  }
  return 0;
}

int CGridMultiSelect::GetNumberBlocks() {
  return static_cast<int>(m_blocks.size());
}

/// Cells are asked for row by row, by the paint pass and by an enumeration: with many blocks, most of them
/// are looked at once for each row and not for each cell.
const std::vector<std::size_t>& CGridMultiSelect::BlocksInRow(long row) {
  if (!m_rowIsKnown || m_row != row) {
    m_rowBlocks.clear();
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
      if (row >= m_blocks[i].top && row <= m_blocks[i].bottom) {
        m_rowBlocks.push_back(i);
      }
    }
    m_row = row;
    m_rowIsKnown = true;
  }
  return m_rowBlocks;
}

int CGridMultiSelect::IsSelected(int col, long row, int* block) {
  int selected = 0;
  std::size_t deciding = 0;
  for (const std::size_t i : BlocksInRow(row)) {
    if (col >= m_blocks[i].left && col <= m_blocks[i].right) {
      selected = m_blocks[i].selected;
      deciding = i;
      if (FirstWins()) {
        break;
      }
    }
  }
  if (block != nullptr) {
    *block = static_cast<int>(deciding);
  }
  return selected;
}

int CGridMultiSelect::IsCellInColSelected(int col) {
  const int tested = (m_mode & MULTISELECT_ROWS) != 0 ? 1 : col;
  int selected = 0;
  for (const Block& block : m_blocks) {
    if (tested >= block.left && tested <= block.right) {
      selected = block.selected;
      if (FirstWins()) {
        break;
      }
    }
  }
  return selected;
}

int CGridMultiSelect::IsCellInRowSelected(long row) {
  const std::vector<std::size_t>& blocks = BlocksInRow(row);
  return blocks.empty() ? 0 : m_blocks[FirstWins() ? blocks.front() : blocks.back()].selected;
}

int CGridMultiSelect::SelectMode(int mode) {
  ClearAll();
  m_mode = mode;
  return 0;
}

int CGridMultiSelect::GetSelectMode() {
  return m_mode;
}

bool CGridMultiSelect::StartEnumeration() {
  const int col = m_control == nullptr ? -1 : m_control->GetCurrentCol();
  const long row = m_control == nullptr ? -1 : m_control->GetCurrentRow();
  m_enum.active = true;
  if (GetTotalRange(&m_enum.left, &m_enum.top, &m_enum.right, &m_enum.bottom) != 0) {
    m_enum.left = m_enum.right = col;
    m_enum.top = m_enum.bottom = row;
    return false;
  }
  if (m_control != nullptr && col >= 0 && row >= 0) {
    m_enum.left = std::min(m_enum.left, col);
    m_enum.top = std::min(m_enum.top, row);
    m_enum.right = std::max(m_enum.right, col);
    m_enum.bottom = std::max(m_enum.bottom, row);
  }
  return true;
}

int CGridMultiSelect::EnumFirstSelected(int* col, long* row) {
  return EnumFrom(col, row, 1);
}
int CGridMultiSelect::EnumNextSelected(int* col, long* row) {
  return EnumOn(col, row, 1);
}
int CGridMultiSelect::EnumLastSelected(int* col, long* row) {
  return EnumFrom(col, row, -1);
}
int CGridMultiSelect::EnumPreviousSelected(int* col, long* row) {
  return EnumOn(col, row, -1);
}

int CGridMultiSelect::EnumFrom(int* col, long* row, int step) {
  if (!StartEnumeration()) {
    *col = m_enum.left;
    *row = m_enum.top;
    m_enum.active = false;
    return 0;
  }
  m_enum.col = FirstEnumerated(step);
  m_enum.row = step > 0 ? m_enum.top : m_enum.bottom;
  return EnumOn(col, row, step);
}

int CGridMultiSelect::EnumOn(int* col, long* row, int step) {
  while (m_enum.active && m_enum.row >= m_enum.top && m_enum.row <= m_enum.bottom) {
    const int at = m_enum.col;
    const long atRow = m_enum.row;
    m_enum.col += step;
    if (m_mode == MULTISELECT_ROWS || m_enum.col < m_enum.left || m_enum.col > m_enum.right) {
      m_enum.col = FirstEnumerated(step);
      m_enum.row += step;
    }
    if (IsSelected(at, atRow) != 0) {
      *col = at;
      *row = atRow;
      return 0;
    }
  }
  m_enum.active = false;
  return 1;
}

int CGridMultiSelect::FirstEnumerated(int step) const {
  return step > 0 || m_mode == MULTISELECT_ROWS ? m_enum.left : m_enum.right;
}

int CGridMultiSelect::EnumFirstBlock(int* left, long* top, int* right, long* bottom) {
  m_enum.nextBlock = 0;
  return EnumNextBlock(left, top, right, bottom);
}

int CGridMultiSelect::EnumNextBlock(int* left, long* top, int* right, long* bottom) {
  if (m_enum.nextBlock >= static_cast<int>(m_blocks.size())) {
    return 1;
  }
  const Block& block = m_blocks[static_cast<std::size_t>(m_enum.nextBlock++)];
  *left = block.left;
  *top = block.top;
  *right = block.right;
  *bottom = block.bottom;
  return 0;
}

void CGridMultiSelect::AddTotalRangeToDrawHints(CGridDrawHint* hints) {
  int left = 0;
  long top = 0;
  int right = 0;
  long bottom = 0;
  if (hints != nullptr && GetTotalRange(&left, &top, &right, &bottom) == 0) {
    hints->AddHint(left, top, right, bottom);
  }
}

void CGridMultiSelect::Normalise(Block& block) const {
  block.left = std::min(block.startCol, block.endCol);
  block.right = std::max(block.startCol, block.endCol);
  block.top = std::min(block.startRow, block.endRow);
  block.bottom = std::max(block.startRow, block.endRow);
  if ((m_mode & MULTISELECT_ROWS) != 0) {
    block.left = 0;
    // Kept: one past the last column; derived controls rely on the number.
    block.right = m_control == nullptr ? block.right : m_control->GetNumberCols();
  }
}

void CGridMultiSelect::Report(const Block& block) {
  if (m_control != nullptr) {
    m_control->OnSelectionChanged(block.right, block.top, block.left, block.bottom, GetNumberBlocks());
  }
}

void CGridMultiSelect::Hint(const Block& block) const {
  if (CGridDrawHint* const hints = Hints(); hints != nullptr) {
    hints->AddHint(block.left, block.top, block.right, block.bottom);
  }
}

void CGridMultiSelect::HintChange(const Block& before, const Block& after) {
  CGridDrawHint* const hints = Hints();
  if (hints == nullptr) {
    return;
  }
  if (before.selected != after.selected) {
    Hint(before);  // it deselected its cells until now
  }
  if (before.endRow != after.endRow) {
    hints->AddHint(std::min(before.left, after.left), std::min(before.endRow, after.endRow),
                   std::max(before.right, after.right), std::max(before.endRow, after.endRow));
  }
  if (before.endCol != after.endCol) {
    hints->AddHint(std::min(before.endCol, after.endCol), std::min(before.top, after.top),
                   std::max(before.endCol, after.endCol), std::max(before.bottom, after.bottom));
  }
}

void CGridMultiSelect::HintAndClear() {
  AddTotalRangeToDrawHints(Hints());
  ClearAll();
}

CGridDrawHint* CGridMultiSelect::Hints() const {
  return m_control == nullptr ? nullptr : m_control->GetDrawHints();
}
