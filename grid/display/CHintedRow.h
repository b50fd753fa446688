#pragma once

#include <vector>

#include "core/Export.h"
#include "grid/control/CGridDrawHint.h"

namespace coregui {

/// The hints of one row after the other, with the answers of CGridDrawHint::IsInvalid: only the ranges that
/// touch the row are looked through for each of its cells, so that a pass over many hints stays quick. Hints
/// that are added while the row is drawn count at once.
class COREGUI_API CHintedRow {
 public:
  explicit CHintedRow(const CGridDrawHint& hints) : m_hints(hints) {}
  void Enter(long row);
  /// Whether nothing in the row is hinted.
  bool IsEmpty();
  bool IsInvalid(int col);
  /// Whether a hint reaches one of the columns; false where `to` is less than `from`.
  bool Touches(int from, int to) const;

 private:
  void Collect();

  const CGridDrawHint& m_hints;
  long m_row = 0;
  std::size_t m_seen = 0;             ///< how many ranges there were when the touching ones were picked
  std::vector<std::size_t> m_picked;  ///< their indexes
};

}  // namespace coregui
