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

std::size_t LookTable::Hash::operator()(const CellLook* look) const noexcept {
  return std::hash<std::string_view>()({reinterpret_cast<const char*>(look), sizeof *look});
}

bool LookTable::Equal::operator()(const CellLook* a, const CellLook* b) const noexcept {
  return SameBytes(*a, *b);
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
  const CellLook normal = Normalized(look);
  const auto place = m_ids.find(&normal);
  recent = {look, place != m_ids.end() ? place->second : Add(normal)};
  ++m_entries[recent.id].count;
  return recent.id;
}

std::uint32_t LookTable::Add(const CellLook& normal) {
  if (m_free.empty()) {
    if (m_entries.size() == CellSlot::MAX_LOOKS) throw std::length_error("too many different cell looks");
    m_free.push_back(static_cast<std::uint32_t>(m_entries.size()));
    m_entries.emplace_back();
  }
  const std::uint32_t id = m_free.back();
  m_free.pop_back();
  *m_entries[id].look = normal;
  m_ids.emplace(m_entries[id].look.get(), id);
  return id;
}

void LookTable::Release(std::uint32_t id) {
  Entry& entry = m_entries[id];
  if (--entry.count != 0) return;
  m_ids.erase(entry.look.get());
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
                     [this](const auto& item) { return m_entries[item.second].look.get() == item.first; });
}

}  // namespace coregui
