#pragma once

#include <cstdint>
#include <vector>

#include "grid/data/SortKeys.h"

namespace coregui {

/// Compares rows by keys that were read once, as the standard comparison does.
class KeyCompare {
 public:
  /// `keys` by column and row, one column at least. Borrowed.
  KeyCompare(const std::vector<KeyColumn>& keys, bool descending) : m_keys(keys), m_descending(descending) {}
  /// The row to compare with others.
  void Take(std::uint32_t row) { m_row = row; }
  int First(std::uint32_t other) const { return Compare(m_keys[0], other); }
  int All(std::uint32_t other) const {
    for (const auto& keys : m_keys) {
      if (const int result = Compare(keys, other); result != 0) return result;
    }
    return 0;
  }

 private:
  int Compare(const KeyColumn& keys, std::uint32_t other) const {
    return CompareKeys(keys[m_row], keys[other], m_descending);
  }

  const std::vector<KeyColumn>& m_keys;
  bool m_descending;
  std::uint32_t m_row = 0;
};

}  // namespace coregui
