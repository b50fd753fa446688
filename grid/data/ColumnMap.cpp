#include "grid/data/ColumnMap.h"

#include <algorithm>
#include <cstddef>

namespace coregui {

void ColumnMap::Include(int col) {
  if (m_storage.empty()) m_first = col;
  if (col < m_first) {
    m_storage.insert(m_storage.begin(), static_cast<std::size_t>(m_first - col), NONE);
    m_first = col;
  }
  if (col >= End()) m_storage.resize(static_cast<std::size_t>(col - m_first) + 1, NONE);
}

int ColumnMap::FindOrAdd(int col) {
  if (const int storage = Find(col); storage != NONE) return storage;
  Include(col);
  int& storage = m_storage[static_cast<std::size_t>(col - m_first)];
  if (m_free.empty()) {
    storage = StorageCount();
    m_columns.push_back(col);
  } else {
    storage = m_free.back();
    m_free.pop_back();
    m_columns[static_cast<std::size_t>(storage)] = col;
  }
  return storage;
}

void ColumnMap::Insert(int col) {
  if (col >= End()) return;
  for (int& column : m_columns) column += column >= col ? 1 : 0;
  if (col < m_first) {
    ++m_first;
    return;
  }
  m_storage.insert(m_storage.begin() + (col - m_first), NONE);
}

int ColumnMap::Erase(int col) {
  if (col >= End()) return NONE;
  for (int& column : m_columns) column -= column > col ? 1 : 0;
  if (col < m_first) {
    --m_first;
    return NONE;
  }
  const auto place = m_storage.begin() + (col - m_first);
  const int storage = *place;
  m_storage.erase(place);
  if (storage != NONE) m_free.push_back(storage);
  return storage;
}

void ColumnMap::Clear() {
  *this = {};
}

bool ColumnMap::Check() const {
  std::vector<int> uses(m_columns.size(), 0);
  for (const int storage : m_free) ++uses.at(static_cast<std::size_t>(storage));
  for (long col = m_first; col < End(); ++col) {
    const int storage = Find(static_cast<int>(col));
    if (storage == NONE) continue;
    ++uses.at(static_cast<std::size_t>(storage));
    if (ColumnOf(storage) != col) return false;
  }
  return std::all_of(uses.begin(), uses.end(), [](int times) { return times == 1; });
}

}  // namespace coregui
