#include "grid/control/CGridColumns.h"

#include <algorithm>

#include "grid/data/CGridCell.h"
#include "platform/System.h"

namespace coregui {

CGridColumns::CGridColumns() {
  SetDefaultSize(ScaleByDpi(75));
}
CGridColumns::~CGridColumns() = default;

int CGridColumns::FromTranslation(int dataColumn) const {
  const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                  [&](const Column& column) { return column.translation == dataColumn; });
  return found == m_columns.end() ? -1 : static_cast<int>(found - m_columns.begin());
}

void CGridColumns::SetColumnCount(int count, CGridCell& defaults) {
  const auto before = static_cast<int>(m_columns.size());
  SetCount(count);
  m_columns.resize(static_cast<std::size_t>(count));
  for (int col = before; col < count; ++col) {
    At(col) = MakeColumn(col, defaults);
  }
}

void CGridColumns::InsertColumn(int col, int dataColumn, CGridCell& defaults) {
  Insert(col);
  m_columns.insert(m_columns.begin() + col, MakeColumn(dataColumn, defaults));
}

void CGridColumns::EraseColumn(int col) {
  Erase(col);
  m_columns.erase(m_columns.begin() + col);
}

void CGridColumns::MoveColumn(int from, int to) {
  Move(from, to);
  const auto begin = m_columns.begin();
  if (from < to) {
    std::rotate(begin + from, begin + from + 1, begin + to + 1);
  } else {
    std::rotate(begin + to, begin + from, begin + from + 1);
  }
}

CGridColumns::Column CGridColumns::MakeColumn(int dataColumn, CGridCell& defaults) {
  Column column;
  column.defaults = std::make_unique<CGridCell>();
  column.defaults->CopyInfoFrom(&defaults);
  column.translation = dataColumn;
  return column;
}

}  // namespace coregui
