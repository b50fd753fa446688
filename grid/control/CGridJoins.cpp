#include "grid/control/CGridJoins.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "grid/control/CGridCells.h"
#include "grid/control/CGridSheets.h"
#include "grid/control/CellPlace.h"
#include "grid/data/CGridCell.h"

namespace coregui {

namespace {

/// What a cell of a block stores: the first one the extent, the others the way back to it.
struct Link {
  bool isFirst = false;
  int across = 0;
  long down = 0;
};

std::optional<Link> LinkOf(CGridCells& cells, int col, long row) {
  CGridCell cell;
  int origin = 0;
  Link link;
  cells.Get(col, row, &cell);
  if (cell.GetJoinInfo(&origin, &link.across, &link.down) != 0) {
    return std::nullopt;
  }
  link.isFirst = origin != 0;
  return link;
}

}  // namespace

bool CGridJoins::IsValid(const Block& block) const {
  const CGridInfo& info = m_sheets.Current();
  return block.startCol <= block.endCol && block.startRow <= block.endRow &&
         block.endCol < info.columns.Count() && block.endRow < info.rows.Count() &&
         block.startCol >= -info.headings.SideCols() && block.startRow >= -info.headings.TopRows();
}

int CGridJoins::Join(const Block& block) {
  if (!IsValid(block)) {
    return 1;
  }
  UnJoin(block);  // a block that loses cells to this one is none any more
  CGridCell cell;
  for (long row = block.startRow; row <= block.endRow; ++row) {
    for (int col = block.startCol; col <= block.endCol; ++col) {
      m_cells.Get(col, row, &cell);
      cell.SetJoinInfo(0, block.startCol - col, block.startRow - row);
      m_cells.Set(col, row, &cell);
    }
  }
  m_cells.Get(block.startCol, block.startRow, &cell);
  cell.SetJoinInfo(1, block.endCol - block.startCol, block.endRow - block.startRow);
  m_cells.Set(block.startCol, block.startRow, &cell);
  return 0;
}

int CGridJoins::UnJoin(const Block& range) {
  if (!IsValid(range)) {
    return 1;
  }
  int result = 1;
  for (int col = range.startCol; col <= range.endCol; ++col) {
    for (long row = m_cells.NextJoined(col, range.startRow); row <= range.endRow;
         row = m_cells.NextJoined(col, row + 1)) {
      Block block{col, row, col, row};
      if (FindStored(col, row, block) || LinkOf(m_cells, col, row)) {
        Dissolve(block);  // or what is left of a torn one
        result = 0;
      }
    }
  }
  return result;
}

void CGridJoins::Dissolve(const Block& block) {
  CGridCell cell;
  for (long row = block.startRow; row <= block.endRow; ++row) {
    for (int col = block.startCol; col <= block.endCol; ++col) {
      m_cells.Get(col, row, &cell);
      cell.ClearProperty(CELLPROP_JOIN);
      if (cell.GetPropertyFlags() == 0) {
        m_cells.Delete(col, row);
      } else {
        m_cells.Set(col, row, &cell);
      }
    }
  }
}

bool CGridJoins::FindGroup(int col, long row, Block& block) {
  return m_sheets.Current().columns.Has(col) && FindStored(col, row, block) && block.endRow < 0 &&
         block.endCol > block.startCol;
}

/// Which cells the group of the column has when the column has moved. What its heading shows goes to the
/// column that will be its first.
CGridJoins::Block CGridJoins::GroupWithout(Block group, int from, int to) {
  const bool stays = to >= group.startCol && to <= group.endCol;
  int first = group.startCol;
  if (from == first && to != first) first = from + 1;
  if (from != group.startCol && to == group.startCol) first = from;
  Exchange(group.startCol, first, group.startRow);
  if (!stays && to > group.endCol) --group.endCol;
  if (!stays && to < group.startCol) ++group.startCol;
  return group;
}

/// Whether the column has neither a text nor a block in the rows.
bool CGridJoins::IsFree(int col, const Block& rows) {
  CGridCell cell;
  for (long row = rows.startRow; row <= rows.endRow; ++row) {
    m_cells.Get(col, row, &cell);
    const wchar_t* const text = cell.GetText();
    if ((text != nullptr && *text != L'\0') || LinkOf(m_cells, col, row)) return false;
  }
  return true;
}

void CGridJoins::Exchange(int col, int other, long row) {
  if (col == other) return;
  CGridCell first;
  CGridCell second;
  const auto put = [&](int at, bool isStored, CGridCell& cell) {
    isStored ? m_cells.Set(at, row, &cell) : m_cells.Delete(at, row);
  };
  const bool isFirstStored = m_cells.Get(col, row, &first) == 0;
  put(col, m_cells.Get(other, row, &second) == 0, second);
  put(other, isFirstStored, first);
}

void CGridJoins::MoveColumn(int from, int to, const std::function<void()>& move) {
  std::vector<Block> groups;
  const long top = -m_sheets.Current().headings.TopRows();
  Block group{};
  for (long row = top; row < 0; ++row) {
    if (!FindGroup(from, row, group)) continue;
    row = group.endRow;
    Dissolve(group);
    groups.push_back(GroupWithout(group, from, to));
  }
  const int right = to > from ? to + 1 : to;  // beside which the column comes to stand
  for (long row = top; row < 0; ++row) {
    if (!FindGroup(right, row, group) || right == group.startCol || !IsFree(from, group)) continue;
    row = group.endRow;
    Dissolve(group);
    from < group.startCol ? --group.startCol : ++group.endCol;
    groups.push_back(group);
  }
  move();
  for (const Block& block : groups) {
    if (block.startCol < block.endCol || block.startRow < block.endRow) Join(block);
  }
}

bool CGridJoins::LeadsTo(const Block& block, int col, long row) {
  const std::optional<Link> link = LinkOf(m_cells, col, row);
  return link && !link->isFirst && col + link->across == block.startCol && row + link->down == block.startRow;
}

/// The first row and the last cell tell whether the block's columns and rows are still its own. A block that
/// begins in a heading shows in each window from its first cell there, which stands for the block as the
/// origin does elsewhere: it may have been deleted, moved or joined to others since.
bool CGridJoins::IsWholeAt(int col, long row, const Block& block) {
  for (int inner = block.startCol + 1; inner <= block.endCol; ++inner) {
    if (!LeadsTo(block, inner, block.startRow)) {
      return false;
    }
  }
  if (block.endRow > block.startRow && !LeadsTo(block, block.endCol, block.endRow)) {
    return false;
  }
  const int firstCol = col < 0 ? block.startCol : std::max(block.startCol, 0);
  const long firstRow = row < 0 ? block.startRow : std::max(block.startRow, 0L);
  return (firstCol == block.startCol && firstRow == block.startRow) || LeadsTo(block, firstCol, firstRow);
}

bool CGridJoins::Find(int col, long row, Block& block) {
  block = {col, row, col, row};
  return m_sheets.Current().view.joins != 0 && FindStored(col, row, block);
}

bool CGridJoins::FindStored(int col, long row, Block& block) {
  CellPlace start{col, row};
  std::optional<Link> link = LinkOf(m_cells, col, row);
  if (link && !link->isFirst) {
    start = {col + link->across, row + link->down};
    link = LinkOf(m_cells, start.col, start.row);
  }
  if (!link || !link->isFirst) {
    return false;
  }
  const Block found{start.col, start.row, start.col + link->across, start.row + link->down};
  if (!IsValid(found) || col > found.endCol || row > found.endRow || col < found.startCol ||
      row < found.startRow || !IsWholeAt(col, row, found)) {
    return false;
  }
  block = found;
  return true;
}

}  // namespace coregui
