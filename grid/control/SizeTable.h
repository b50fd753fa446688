#pragma once

#include <cstdint>
#include <vector>

#include "core/Export.h"

namespace coregui {

/// The pixel sizes of a run of rows or columns, with their sums. Reading a size is O(1); setting one, summing
/// and searching by pixel are O(log n). Inserting, erasing and moving shift the sizes behind, and correct one
/// sum for each block of them.
class COREGUI_API SizeTable {
 public:
  long Count() const { return static_cast<long>(m_sizes.size()); }
  /// The size of an index from 0 to Count() - 1.
  int At(long index) const { return m_sizes[static_cast<std::size_t>(index)]; }
  void Set(long index, int size);
  /// Drops entries at the end, or adds entries of the given size.
  void Resize(long count, int size);
  void Insert(long index, int size);
  void Erase(long index);
  /// Takes the entry out and puts it back so that it stands at `to`.
  void Move(long from, long to);
  void Clear();
  /// The sum of the sizes of the entries before `index`, which may be Count().
  std::int64_t SumBefore(long index) const;
  /// The largest index whose SumBefore is at most `pixel`: the entry that covers it, Count() behind the end.
  /// `pixel` must not be negative.
  long IndexAt(std::int64_t pixel) const;
  /// True when the sums agree with the sizes.
  bool Check() const;

 private:
  /// Entries are summed in blocks of this many.
  static constexpr std::size_t blockSize = 128;

  std::int64_t SumOfBlock(std::size_t block) const;
  void SumBlocksFrom(std::size_t block);
  void SumTree();

  std::vector<int> m_sizes;
  std::vector<std::int64_t> m_blocks;  ///< the sum of each block
  /// Binary indexed over the blocks: entry i - 1 sums the lowest-set-bit-of-i blocks up to i - 1.
  std::vector<std::int64_t> m_tree;
};

}  // namespace coregui
