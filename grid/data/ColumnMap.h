#pragma once

#include <vector>

namespace coregui {

/// Which storage column holds a column's cells. Columns may be negative; one that never had a cell has no
/// storage. Inserting or deleting a column moves numbers here and no cell.
class ColumnMap {
 public:
  static constexpr int NONE = -1;

  /// The storage column, or NONE.
  int Find(int col) const {
    const long index = static_cast<long>(col) - m_first;
    return index >= 0 && index < static_cast<long>(m_storage.size())
               ? m_storage[static_cast<std::size_t>(index)]
               : NONE;
  }
  int FindOrAdd(int col);
  /// The column that a storage column in use holds.
  int ColumnOf(int storage) const { return m_columns[static_cast<std::size_t>(storage)]; }
  /// Columns from `col` on move up by one; `col` has no storage then.
  void Insert(int col);
  /// Columns after `col` move down by one. Returns the storage that `col` had, free for another column, or
  /// NONE.
  int Erase(int col);
  void Clear();
  /// The columns that may have storage are First() to End() - 1.
  int First() const { return m_first; }
  long End() const { return m_first + static_cast<long>(m_storage.size()); }
  /// Storage columns are 0 to StorageCount() - 1.
  int StorageCount() const { return static_cast<int>(m_columns.size()); }
  /// Whether each storage column is free, or used once and knows its column.
  bool Check() const;

 private:
  void Include(int col);

  int m_first = 0;
  std::vector<int> m_storage;  // by column from the first on
  std::vector<int> m_columns;  // by storage; of no meaning for a free one
  std::vector<int> m_free;
};

}  // namespace coregui
