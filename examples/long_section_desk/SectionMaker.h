#pragma once

#include <atomic>
#include <cstddef>
#include <vector>

#include "SectionData.h"

namespace desk {

/// Gathers the levels of a survey while its rows come, and makes its long-section of them.
///
/// They lie in blocks: no row makes those before it move, and a block goes as soon as the section has its
/// points. Make needs no window, so that it may run beside the windows; nothing else may be called meanwhile.
class SectionMaker {
 public:
  /// Forgets what was gathered; the columns are those of the table to come.
  void Begin(const SectionColumns& columns);
  /// True when the table has what a section needs.
  bool HasColumns() const { return m_columns.chainage >= 0 && m_columns.ground >= 0; }
  /// Takes one row of the table: for each column its number, NaN where it holds none. Rows come in order; one
  /// without a chainage is no part of the section.
  void Add(long row, const std::vector<double>& numbers);
  /// The section of a table with so many rows; nothing stays gathered. Empty when no row was taken, and soon
  /// after `stop` has become true.
  SectionData Make(long rows, const std::atomic<bool>& stop);

 private:
  struct Level {
    long row;
    double chainage;
    double ground;
    double design;
  };
  using Block = std::vector<Level>;
  using Line = std::vector<PNT_2D_record>;

  bool SortBlocks(const std::atomic<bool>& stop);
  bool MergeBlocks(SectionData& data, Line& grounds, Line& designs, const std::atomic<bool>& stop);

  SectionColumns m_columns;
  std::vector<Block> m_blocks;  ///< none is empty
  std::size_t m_count = 0;      ///< of the levels in all blocks
};

}  // namespace desk
