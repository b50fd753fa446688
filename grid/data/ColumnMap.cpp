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
  Include(col);
  int& storage = m_storage[static_cast<std::size_t>(col - m_first)];
  if (storage != NONE) return storage;
  if (m_free.empty()) {
    storage = m_count++;
  } else {
    storage = m_free.back();
    m_free.pop_back();
  }
  return storage;
}

void ColumnMap::Insert(int col) {
  if (col >= End()) return;
  if (col < m_first) {
    ++m_first;
    return;
  }
  m_storage.insert(m_storage.begin() + (col - m_first), NONE);
}

int ColumnMap::Erase(int col) {
  if (col >= End()) return NONE;
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
  std::vector<int> uses(static_cast<std::size_t>(m_count), 0);
  const auto count = [&uses](int storage) {
    if (storage >= 0 && storage < static_cast<int>(uses.size())) ++uses[static_cast<std::size_t>(storage)];
  };
  std::for_each(m_storage.begin(), m_storage.end(), count);
  std::for_each(m_free.begin(), m_free.end(), count);
  return std::all_of(uses.begin(), uses.end(), [](int times) { return times == 1; });
}

}  // namespace coregui
