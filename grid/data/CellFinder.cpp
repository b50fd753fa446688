#include "grid/data/CellFinder.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "grid/data/CGridDataSource.h"
#include "platform/Locale.h"
#include "platform/UnicodeText.h"

namespace coregui {

CellFinder::CellFinder(CellStore& store, const CString& text, int flags, int numberCols, long numberRows)
    : m_store(store),
      m_text(text.Str()),
      m_partial((flags & FIND_PARTIAL) != 0),
      m_noCase((flags & FIND_NOCASE) != 0),
      m_allColumns((flags & FIND_ALLCOLS) != 0),
      m_step((flags & FIND_UP) != 0 ? -1 : 1),
      m_numberCols(numberCols),
      m_numberRows(numberRows),
      m_numbersCount(CanStandInNumbers()) {
  for (std::size_t i = 0; i < m_fold.size(); ++i) {
    const auto character = static_cast<wchar_t>(i);
    m_fold[i] = m_noCase ? UpperCase(character) : character;
  }
}

bool CellFinder::CanStandInNumbers() const {
  const UserLocale& locale = GetUserLocale();
  std::wstring inNumbers =
      L"0123456789.-() " + locale.decimal.Str() + locale.thousands.Str() + locale.negative.Str();
  inNumbers += CString(inNumbers).MakeUpper().Str();
  return m_text.find_first_not_of(inNumbers) == std::wstring::npos;
}

wchar_t CellFinder::Fold(const StoredText& text, std::uint32_t index) const {
  const wchar_t character = text.At(index);
  if (static_cast<std::uint32_t>(character) < m_fold.size())
    return m_fold[static_cast<std::size_t>(character)];
  return m_noCase ? UpperCase(character) : character;
}

bool CellFinder::MatchesText(const StoredText& text) const {
  const auto wanted = static_cast<std::uint32_t>(m_text.size());
  const auto matchesAt = [&](std::uint32_t at) {
    std::uint32_t i = 0;
    while (i < wanted && Fold(text, at + i) == m_text[i]) ++i;
    return i == wanted;
  };
  if (!m_partial) return text.length == wanted && wanted != 0 && matchesAt(0);
  if (text.length < wanted) return false;
  for (std::uint32_t at = 0; at <= text.length - wanted; ++at) {
    if (matchesAt(at)) return true;
  }
  return false;
}

bool CellFinder::Matches(const CellSlot& slot) const {
  const CellCodec& codec = m_store.Codec();
  if (!m_numbersCount && slot.Kind() == SlotKind::number && std::isfinite(slot.Number())) return false;
  return MatchesText(codec.ShownText(slot, m_scratch));
}

void CellFinder::ListColumns(int from, int to) {
  m_columns.clear();
  const ColumnMap& map = m_store.Columns();
  const auto add = [&](int col) {
    if (map.Find(col) != ColumnMap::NONE) m_columns.push_back({col, map.Find(col)});
  };
  // `from` may be far outside what is stored, and so may `to`.
  const int low = std::max(std::min(from, to), map.First());
  const int high = static_cast<int>(std::min<long>(std::max(from, to), map.End() - 1));
  for (int col = low; col <= high; ++col) add(col);
  if (m_step < 0) std::reverse(m_columns.begin(), m_columns.end());
}

bool CellFinder::ScanRow(RowLeaf& leaf, int inLeaf, int& col) const {
  for (const Column& column : m_columns) {
    const CellSlot slot = leaf.FindCell(column.storage, inLeaf);
    if (!slot.Exists() || !Matches(slot)) continue;
    col = column.col;
    return true;
  }
  return false;
}

bool CellFinder::ScanLeaf(RowLeaf& leaf, int from, int to, std::int64_t start, int& col, long& row) {
  for (int at = from; at != to + m_step; at += m_step) {
    if (!ScanRow(leaf, at, col)) continue;
    row = static_cast<long>(start + at);
    return true;
  }
  return false;
}

/// Asks the watch now and then.
bool CellFinder::GoesOnAfter(const RowLeaf& leaf) {
  constexpr std::size_t MANY = 16384;
  m_rowsDone += leaf.count;
  m_cellsUnasked += leaf.HasPositions() ? static_cast<std::size_t>(leaf.count) * m_columns.size() : 0;
  if (m_cellsUnasked < MANY) return true;
  m_cellsUnasked = 0;
  return m_watch.GoesOn(std::min(static_cast<double>(m_rowsDone) / static_cast<double>(m_numberRows), 1.0));
}

/// Rows `first`, `first` + step …, of which those in the store are looked at.
bool CellFinder::ScanRows(std::int64_t first, std::int64_t count, int& col, long& row) {
  const std::int64_t last = first + (count - 1) * m_step;
  const std::int64_t low = std::max(std::min(first, last), m_store.FirstRow());
  const std::int64_t high = std::min(std::max(first, last), m_store.EndRow() - 1);
  if (low > high) return false;
  std::int64_t inLeaf = 0;
  const std::int64_t begin = m_step > 0 ? low : high;
  RowLeaf* leaf = m_store.Rows().Find(begin - m_store.FirstRow(), inLeaf);
  std::int64_t start = begin - inLeaf;
  while (leaf != nullptr && start <= high && start + leaf->count > low) {
    if (leaf->HasPositions()) {
      const int top = static_cast<int>(std::max<std::int64_t>(low - start, 0));
      const int bottom = static_cast<int>(std::min<std::int64_t>(high - start, leaf->count - 1));
      if (ScanLeaf(*leaf, m_step > 0 ? top : bottom, m_step > 0 ? bottom : top, start, col, row)) return true;
    }
    if (!GoesOnAfter(*leaf)) return false;
    if (m_step > 0) start += leaf->count;
    leaf = m_step > 0 ? leaf->next : leaf->previous;
    if (m_step < 0 && leaf != nullptr) start -= leaf->count;
  }
  return false;
}

/// The rest of the row that the search starts in.
bool CellFinder::FinishRow(int& col, long row) {
  const long next = static_cast<long>(col) + m_step;
  const bool inRow = m_step > 0 ? next <= m_numberCols - 1 : next >= 0;
  if (!inRow || !m_store.HasRow(row)) return false;
  ListColumns(static_cast<int>(next), m_step > 0 ? m_numberCols - 1 : 0);
  std::int64_t inLeaf = 0;
  RowLeaf* const leaf = m_store.Rows().Find(row - m_store.FirstRow(), inLeaf);
  return leaf->HasPositions() && ScanRow(*leaf, static_cast<int>(inLeaf), col);
}

bool CellFinder::FindNext(int& col, long& row, WorkWatch watch) {
  m_watch = std::move(watch);
  if (m_numberRows < 1 || (m_allColumns && m_numberCols < 1)) return false;
  if (m_allColumns) {
    if (FinishRow(col, row)) return true;
    ListColumns(0, m_numberCols - 1);
  } else {
    ListColumns(col, col);
  }
  std::int64_t next = row + m_step;
  for (std::int64_t moves = m_numberRows + 1; moves > 0 && m_watch.GoesOn();) {
    if (m_step > 0 && next > m_numberRows - 1) next = 0;
    if (m_step < 0 && next < 0) next = m_numberRows - 1;
    const std::int64_t count = std::min(moves, m_step > 0 ? m_numberRows - next : next + 1);
    if (ScanRows(next, count, col, row)) return true;
    moves -= count;
    next += count * m_step;
  }
  return false;
}

}  // namespace coregui
