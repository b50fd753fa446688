#include "grid/data/CGridMem.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "grid/data/CGridCell.h"
#include "grid/data/CGridSourceOwner.h"
#include "grid/data/CellFinder.h"
#include "grid/data/CellStore.h"
#include "grid/data/RowSorter.h"

namespace {

/// Moves the translations from `dataColumn` on by `shift`.
void ShiftTranslations(coregui::CGridSourceOwner* owner, int dataColumn, int shift) {
  if (owner == nullptr) return;
  for (int col = 0; col < owner->GetNumberCols(); ++col) {
    const int translation = owner->GetColTranslation(col);
    if (translation >= dataColumn) owner->SetColTranslation(col, translation + shift);
  }
}

}  // namespace

CGridMem::CGridMem() : m_store(std::make_unique<coregui::CellStore>()) {}

CGridMem::~CGridMem() = default;

int CGridMem::GetCell(int col, long row, CGridCell* cell) {
  return cell != nullptr && m_store->Get(col, row, *cell) ? 0 : 1;
}

int CGridMem::SetCell(int col, long row, CGridCell* cell) {
  if (cell == nullptr || !std::in_range<std::int32_t>(row)) return 1;
  m_store->Set(col, row, *cell);
  return 0;
}

int CGridMem::DeleteCell(int col, long row) {
  return m_store->Delete(col, row) ? 0 : 1;
}

int CGridMem::InsertRow(long row) {
  if (!m_store->HasRow(row)) return 1;
  m_store->InsertRow(row);
  return 0;
}

int CGridMem::DeleteRow(long row) {
  if (m_store->HasRow(row)) m_store->DeleteRow(row);
  return 0;
}

int CGridMem::InsertCol(int col) {
  if (m_store->IsEmpty()) return 1;
  // Kept: the grid column's index serves as the position in the store.
  const int shown = GetOwner() != nullptr ? GetOwner()->FindColOfData(col) : -1;
  const int position = shown >= 0 ? shown : col;
  m_store->InsertCol(position);
  ShiftTranslations(GetOwner(), position, 1);
  return 0;
}

int CGridMem::DeleteCol(int col) {
  if (m_store->IsEmpty()) return 1;
  m_store->DeleteCol(col);
  // Kept: the translation of the deleted column itself moves down too.
  ShiftTranslations(GetOwner(), col, -1);
  return 0;
}

int CGridMem::AppendRow() {
  return 0;
}

int CGridMem::AppendCol() {
  return 0;
}

int CGridMem::Empty() {
  m_store->Clear();
  return 0;
}

long CGridMem::GetNumRows() {
  return m_store->IsEmpty() ? 0 : static_cast<long>(m_store->EndRow() - 1);
}

int CGridMem::GetPrevNonBlankCol(int* col, long row) {
  int last = 0;
  if (!m_store->HasRow(row) || !m_store->LastPosition(row, last)) return 1;
  if (*col <= m_store->Columns().First()) return 1;
  coregui::CellText scratch;
  const int start = *col > last ? last : *col - 1;
  for (int at = start; at >= m_store->Columns().First(); --at) {
    const coregui::CellSlot slot = m_store->Find(at, row);
    if (m_store->Codec().ShownText(slot, scratch).length == 0) continue;
    *col = at;
    return 0;
  }
  return 1;
}

long CGridMem::NextJoinedRow(int col, long row) const {
  return static_cast<long>(m_store->NextRowWith(CELLPROP_JOIN, col, row));
}

int CGridMem::FindFirst(CString* text, int* col, long* row, long flags) {
  const bool allColumns = (flags & FIND_ALLCOLS) != 0;
  int foundCol = allColumns ? -1 : *col;
  long foundRow = allColumns ? 0 : -1;
  if (FindNext(text, &foundCol, &foundRow, static_cast<int>(flags)) != 0) return 1;
  *col = foundCol;
  *row = foundRow;
  return 0;
}

int CGridMem::FindNext(CString* text, int* col, long* row, int flags) {
  if ((flags & FIND_NOCASE) != 0) text->MakeUpper();
  // Without a control the whole store is searched.
  const auto* const owner = GetOwner();
  const int numberCols =
      owner != nullptr ? owner->GetNumberCols() : static_cast<int>(m_store->Columns().End());
  const long numberRows = owner != nullptr ? owner->GetNumberRows() : static_cast<long>(m_store->EndRow());
  int foundCol = *col;
  long foundRow = *row;
  coregui::CellFinder finder(*m_store, *text, flags, numberCols, numberRows);
  if (!finder.FindNext(foundCol, foundRow, coregui::WorkWatch(m_watch))) return 1;
  *col = foundCol;
  *row = foundRow;
  return 0;
}

int CGridMem::SortBy(int* cols, int count, int flags) {
  if (m_store->IsEmpty() || m_store->EndRow() <= 0) return 1;
  coregui::RowSorter sorter(*m_store, GetOwner(), flags, coregui::WorkWatch(m_watch));
  return sorter.Sort({cols, cols + std::max(count, 0)}) ? 0 : 1;
}

int CGridMem::SortBy(int col, int flags) {
  return SortBy(&col, 1, flags);
}

bool CGridMem::Check() const {
  return m_store->Check();
}
