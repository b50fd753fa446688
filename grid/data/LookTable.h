#pragma once

#include <array>
#include <cstdint>
#include <memory>
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
  /// Valid while a cell refers to it. A number's look is at the same place as long as the table is not
  /// cleared.
  const CellLook& Get(std::uint32_t id) const { return *m_entries[id].look; }
  void Clear();
  /// How many cells refer to the look.
  std::uint64_t Count(std::uint32_t id) const { return m_entries[id].count; }
  std::size_t Size() const { return m_entries.size(); }
  /// Whether some cell has one of the properties set (CELLPROP_ bits).
  bool HasAny(DWORD properties) const;
  bool Check() const;

 private:
  // Looks are told apart by what they are, not by where.
  struct Hash {
    std::size_t operator()(const CellLook* look) const noexcept;
  };
  struct Equal {
    bool operator()(const CellLook* a, const CellLook* b) const noexcept;
  };
  struct Entry {
    std::unique_ptr<CellLook> look = std::make_unique<CellLook>();  // of no meaning when free
    std::uint64_t count = 0;
  };

  /// A look as it was asked for, with fields that are not set, and its number; NONE when that was given up.
  struct Recent {
    CellLook look;
    std::uint32_t id = NONE;
  };
  static constexpr std::uint32_t NONE = ~0U;
  std::uint32_t Add(const CellLook& normal);
  static std::size_t RecentPlace(const CellLook& look);

  std::unordered_map<const CellLook*, std::uint32_t, Hash, Equal> m_ids;  // the keys are the entries'
  std::vector<Entry> m_entries;
  std::vector<std::uint32_t> m_free;
  std::array<Recent, 8> m_recent;  // cells of a few looks are written by turns
};

}  // namespace coregui
