#pragma once

#include <vector>

class CGridDataSource;

namespace coregui {

class CGridSheets;
class CGridSourceOwner;

/// The registered data sources, and which source and data column serve a grid column of the current sheet.
class CGridSourceTable {
 public:
  /// The most sources that may be registered. Index 0 is the sheet's own memory and never given out.
  static constexpr int maxSources = 63;

  CGridSourceTable(CGridSheets& sheets, CGridSourceOwner& owner) : m_sheets(sheets), m_owner(owner) {}

  /// Registers at the lowest free index from 1 up; -1 for null or a full table.
  int Add(CGridDataSource* source);
  /// Unregisters; every sheet and column that used the source goes back to the sheet's memory. 1: no such
  /// source.
  int Remove(int index);
  /// Index 0 gives the current sheet's memory; null when nothing is registered there.
  CGridDataSource* At(int index) const;
  /// Makes a source the sheet's default and drops every column's own source. 1: no such source.
  int SetDefault(int index);
  int SetColumnSource(int col, int index);

  /// Where a column's cells are. Heading columns and columns without a source use the sheet's default;
  /// columns outside the table too, with their raw number.
  struct Place {
    CGridDataSource* source;
    int col;
  };
  Place Of(int col) const;
  /// Every source that serves a column of the sheet, each once, the default first.
  std::vector<CGridDataSource*> InUse() const;

 private:
  CGridSheets& m_sheets;
  CGridSourceOwner& m_owner;
  std::vector<CGridDataSource*> m_sources{nullptr};  ///< borrowed; null: free
};

}  // namespace coregui
