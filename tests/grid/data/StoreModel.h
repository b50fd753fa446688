#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

/// What a memory store must answer, told in the plainest way: rows in a list, positions in a list, a value or
/// nothing at each. Values are texts here; the mask and the properties have their own tests.
class StoreModel {
 public:
  struct Row {
    int first = 0;
    std::deque<std::string> positions;  // an empty text: a position without a cell
    int End() const { return first + static_cast<int>(positions.size()); }
    bool Has(int col) const { return col >= first && col < End(); }
    std::string& At(int col) { return positions[static_cast<std::size_t>(col - first)]; }
  };

  bool HasRow(long row) const { return row >= m_first && row < m_first + static_cast<long>(m_rows.size()); }
  Row& At(long row) { return m_rows[static_cast<std::size_t>(row - m_first)]; }
  long Last() const { return m_rows.empty() ? 0 : m_first + static_cast<long>(m_rows.size()) - 1; }
  long First() const { return m_first; }

  void Set(int col, long row, const std::string& value) {
    if (m_rows.empty()) m_rows.emplace_back();
    while (row < m_first) {
      m_rows.emplace_front();
      --m_first;
    }
    while (!HasRow(row)) m_rows.emplace_back();
    Row& cells = At(row);
    if (cells.positions.empty()) cells.positions.emplace_back();
    while (col < cells.first) {
      cells.positions.emplace_front();
      --cells.first;
    }
    while (!cells.Has(col)) cells.positions.emplace_back();
    cells.At(col) = value;
  }

  std::string Get(int col, long row) { return HasRow(row) && At(row).Has(col) ? At(row).At(col) : ""; }

  int Delete(int col, long row) {
    if (!HasRow(row) || !At(row).Has(col)) return 1;
    At(row).At(col).clear();
    return 0;
  }

  int InsertRow(long row) {
    if (!HasRow(row)) return 1;
    m_rows.insert(m_rows.begin() + (row - m_first), Row());
    return 0;
  }

  void DeleteRow(long row) {
    if (!HasRow(row)) return;
    m_rows.erase(m_rows.begin() + (row - m_first));
    if (m_rows.empty()) m_first = 0;
  }

  int InsertCol(int col) {
    if (m_rows.empty()) return 1;
    for (Row& row : m_rows) {
      if (row.Has(col)) row.positions.insert(row.positions.begin() + (col - row.first), std::string());
    }
    return 0;
  }

  int DeleteCol(int col) {
    if (m_rows.empty()) return 1;
    for (Row& row : m_rows) {
      if (!row.Has(col)) continue;
      if (col == row.End() - 1) {
        row.At(col).clear();
      } else {
        row.positions.erase(row.positions.begin() + (col - row.first));
      }
    }
    return 0;
  }

  int PrevNonBlank(int& col, long row) {
    if (!HasRow(row)) return 1;
    Row& cells = At(row);
    for (int at = std::min(col, cells.End()) - 1; at >= cells.first; --at) {
      if (cells.At(at).empty()) continue;
      col = at;
      return 0;
    }
    return 1;
  }

  void Clear() { *this = {}; }

 private:
  std::deque<Row> m_rows;
  long m_first = 0;
};
