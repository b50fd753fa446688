#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "grid/data/CGridCell.h"

namespace coregui {

/// Every combination of shared cell properties that occurs in a store, once. Cells refer to it by number and
/// are counted.
class LookTable {
 public:
  /// The number of a look whose set properties equal those of `look`, counted once more.
  std::uint32_t Acquire(const CellLook& look);
  void Release(std::uint32_t id);
  /// Valid while a cell refers to it.
  const CellLook& Get(std::uint32_t id) const { return *m_entries[id].look; }
  void Clear();
  /// How many cells refer to the look.
  std::uint64_t Count(std::uint32_t id) const { return m_entries[id].count; }
  std::size_t Size() const { return m_entries.size(); }
  /// Whether some cell has one of the properties set (CELLPROP_ bits).
  bool HasAny(DWORD properties) const;
  bool Check() const;

 private:
  struct Hash {
    std::size_t operator()(const CellLook& look) const noexcept;
  };
  struct Equal {
    bool operator()(const CellLook& a, const CellLook& b) const noexcept;
  };
  struct Entry {
    const CellLook* look = nullptr;  // the key in m_ids; null when free
    std::uint64_t count = 0;
  };

  /// A look as it was asked for, with fields that are not set, and its number; NONE when that was given up.
  struct Recent {
    CellLook look;
    std::uint32_t id = NONE;
  };
  static constexpr std::uint32_t NONE = ~0U;
  static std::size_t RecentPlace(const CellLook& look);

  std::unordered_map<CellLook, std::uint32_t, Hash, Equal> m_ids;
  std::vector<Entry> m_entries;
  std::vector<std::uint32_t> m_free;
  std::array<Recent, 8> m_recent;  // cells of a few looks are written by turns
};

}  // namespace coregui
