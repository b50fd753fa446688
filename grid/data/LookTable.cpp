#include "grid/data/LookTable.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "grid/data/CellSlot.h"

namespace coregui {
namespace {

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

std::size_t LookTable::RecentPlace(const CellLook& look) {
  const std::uint32_t mixed =
      look.flags + static_cast<std::uint32_t>(look.dataType) + look.textColor + look.backColor;
  return (mixed ^ (mixed >> 8U) ^ (mixed >> 16U)) & 7U;
}

std::uint32_t LookTable::Acquire(const CellLook& look) {
  Recent& recent = m_recent[RecentPlace(look)];
  if (recent.id != NONE && SameBytes(look, recent.look)) {
    ++m_entries[recent.id].count;
    return recent.id;
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
  recent = {look, place->second};
  ++m_entries[recent.id].count;
  return recent.id;
}

void LookTable::Release(std::uint32_t id) {
  Entry& entry = m_entries[id];
  if (--entry.count != 0) return;
  m_ids.erase(m_ids.find(*entry.look));
  entry.look = nullptr;
  m_free.push_back(id);
  for (Recent& recent : m_recent) {
    if (recent.id == id) recent.id = NONE;
  }
}

bool LookTable::HasAny(DWORD properties) const {
  return std::any_of(m_entries.begin(), m_entries.end(), [properties](const Entry& entry) {
    return entry.look != nullptr && (entry.look->flags & properties) != 0;
  });
}

void LookTable::Clear() {
  m_ids.clear();
  m_entries.clear();
  m_free.clear();
  m_recent.fill({});
}

bool LookTable::Check() const {
  const auto used =
      std::count_if(m_entries.begin(), m_entries.end(), [](const Entry& entry) { return entry.count != 0; });
  return static_cast<std::size_t>(used) == m_ids.size() && m_entries.size() == m_ids.size() + m_free.size() &&
         std::all_of(m_ids.begin(), m_ids.end(),
                     [this](const auto& item) { return m_entries[item.second].look == &item.first; });
}

}  // namespace coregui
