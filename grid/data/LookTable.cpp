#include "grid/data/LookTable.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "grid/data/CellSlot.h"

namespace coregui {
namespace {

constexpr std::uint32_t NONE = ~0U;

/// Without the fields that are not set, so that they make no difference.
CellLook Normalized(const CellLook& look) {
  CellLook normal;
  normal.flags = look.flags;
  normal.CopySetFieldsFrom(look);
  return normal;
}

bool SameBytes(const CellLook& a, const CellLook& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

}  // namespace

std::size_t LookTable::Hash::operator()(const CellLook& look) const noexcept {
  return std::hash<std::string_view>()({reinterpret_cast<const char*>(&look), sizeof look});
}

bool LookTable::Equal::operator()(const CellLook& a, const CellLook& b) const noexcept {
  return SameBytes(a, b);
}

LookTable::LookTable() : m_lastId(NONE) {}

std::uint32_t LookTable::Acquire(const CellLook& look) {
  if (m_lastId != NONE && SameBytes(look, m_last)) {
    ++m_entries[m_lastId].count;
    return m_lastId;
  }
  const auto [place, isNew] = m_ids.try_emplace(Normalized(look), 0);
  if (isNew) {
    if (m_free.empty()) {
      if (m_entries.size() == CellSlot::MAX_LOOKS) throw std::length_error("too many different cell looks");
      m_free.push_back(static_cast<std::uint32_t>(m_entries.size()));
      m_entries.emplace_back();
    }
    place->second = m_free.back();
    m_free.pop_back();
    m_entries[place->second] = {&place->first, 0};
  }
  m_last = look;
  m_lastId = place->second;
  ++m_entries[m_lastId].count;
  return m_lastId;
}

void LookTable::Release(std::uint32_t id) {
  Entry& entry = m_entries[id];
  if (--entry.count != 0) return;
  m_ids.erase(m_ids.find(*entry.look));
  entry.look = nullptr;
  m_free.push_back(id);
  if (m_lastId == id) m_lastId = NONE;
}

void LookTable::Clear() {
  m_ids.clear();
  m_entries.clear();
  m_free.clear();
  m_lastId = NONE;
}

bool LookTable::Check() const {
  const auto used =
      std::count_if(m_entries.begin(), m_entries.end(), [](const Entry& entry) { return entry.count != 0; });
  return static_cast<std::size_t>(used) == m_ids.size() && m_entries.size() == m_ids.size() + m_free.size() &&
         std::all_of(m_ids.begin(), m_ids.end(),
                     [this](const auto& item) { return m_entries[item.second].look == &item.first; });
}

}  // namespace coregui
