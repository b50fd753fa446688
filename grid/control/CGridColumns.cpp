#include "grid/control/CGridColumns.h"

#include <algorithm>

#include "grid/data/CGridCell.h"
#include "platform/System.h"

namespace coregui {
namespace {

std::shared_ptr<CGridCell> CopyOf(CGridCell& defaults) {
  auto copy = std::make_shared<CGridCell>();
  copy->CopyInfoFrom(&defaults);
  return copy;
}

}  // namespace

CGridColumns::CGridColumns() {
  SetDefaultSize(ScaleByDpi(75));
}
CGridColumns::~CGridColumns() = default;

int CGridColumns::FromTranslation(int dataColumn) const {
  const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                  [&](const Column& column) { return column.translation == dataColumn; });
  return found == m_columns.end() ? -1 : static_cast<int>(found - m_columns.begin());
}

CGridCell& CGridColumns::Column::OwnDefaults() {
  if (defaults.use_count() > 1) {
    defaults = std::make_shared<CGridCell>(*defaults);
  }
  return *defaults;
}

void CGridColumns::SetColumnCount(int count, CGridCell& defaults) {
  const auto before = static_cast<int>(m_columns.size());
  SetCount(count);
  m_columns.resize(static_cast<std::size_t>(count));
  const std::vector<int> numbers = FreeDataColumns(before);
  const std::shared_ptr<CGridCell> shared = CopyOf(defaults);
  for (int col = before; col < count; ++col) {
    At(col) = {nullptr, shared, numbers[static_cast<std::size_t>(col - before)]};
  }
}

std::vector<int> CGridColumns::FreeDataColumns(int before) const {
  const auto count = static_cast<int>(m_columns.size());
  std::vector<bool> shown(m_columns.size(), false);
  for (int col = 0; col < std::min(before, count); ++col) {
    const int number = At(col).translation;
    if (number >= 0 && number < count) {
      shown[static_cast<std::size_t>(number)] = true;
    }
  }
  std::vector<int> numbers;
  int lowest = 0;
  for (int col = before; col < count; ++col) {
    int number = col;
    if (shown[static_cast<std::size_t>(number)]) {
      lowest = static_cast<int>(std::find(shown.begin() + lowest, shown.end(), false) - shown.begin());
      number = lowest;
    }
    shown[static_cast<std::size_t>(number)] = true;
    numbers.push_back(number);
  }
  return numbers;
}

void CGridColumns::InsertColumn(int col, int dataColumn, CGridCell& defaults) {
  Insert(col);
  m_columns.insert(m_columns.begin() + col, Column{nullptr, CopyOf(defaults), dataColumn});
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

}  // namespace coregui
