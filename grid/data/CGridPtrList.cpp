#include "grid/data/CGridPtrList.h"

#include <algorithm>

namespace {

constexpr std::size_t GROWTH = 10;

}

int CGridPtrList::AddPointer(void* pointer, long param, const GridID* id) {
  auto slot =
      std::find_if(m_entries.begin(), m_entries.end(), [](const Entry& entry) { return !entry.inUse; });
  if (slot == m_entries.end()) {
    const std::size_t first = m_entries.size();
    m_entries.resize(first + GROWTH);
    slot = m_entries.begin() + static_cast<std::ptrdiff_t>(first);
  }
  slot->pointer = pointer;
  slot->param = param;
  slot->inUse = true;
  if (id != nullptr) slot->id = *id;
  ++m_count;
  return static_cast<int>(slot - m_entries.begin());
}

int CGridPtrList::DeletePointer(int index) {
  if (!IsInRange(index)) return 1;
  Entry& entry = m_entries[static_cast<std::size_t>(index)];
  if (entry.inUse) --m_count;
  entry.inUse = false;
  entry.pointer = nullptr;
  return 0;
}

void* CGridPtrList::GetPointer(int index) const {
  return IsInRange(index) ? m_entries[static_cast<std::size_t>(index)].pointer : nullptr;
}

int CGridPtrList::GetPointerIndex(const void* pointer) const {
  const auto found = std::find_if(m_entries.begin(), m_entries.end(), [pointer](const Entry& entry) {
    return entry.inUse && entry.pointer == pointer;
  });
  return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

long CGridPtrList::GetParam(int index) const {
  return IsInRange(index) ? m_entries[static_cast<std::size_t>(index)].param : 0;
}

int CGridPtrList::UpdateParam(int index, long param) {
  if (!IsInRange(index)) return 1;
  Entry& entry = m_entries[static_cast<std::size_t>(index)];
  if (!entry.inUse) return 2;
  entry.param = param;
  return 0;
}

const GridID* CGridPtrList::GetID(int index) const {
  return IsInRange(index) ? &m_entries[static_cast<std::size_t>(index)].id : nullptr;
}

void CGridPtrList::EmptyList() {
  m_entries.clear();
  m_entries.shrink_to_fit();
  m_count = 0;
}

bool CGridPtrList::Check() const {
  const auto used =
      std::count_if(m_entries.begin(), m_entries.end(), [](const Entry& entry) { return entry.inUse; });
  const bool clear = std::all_of(m_entries.begin(), m_entries.end(),
                                 [](const Entry& entry) { return entry.inUse || entry.pointer == nullptr; });
  return clear && used == m_count && m_entries.size() % GROWTH == 0;
}
