#include "grid/control/CGridCells.h"

#include <algorithm>
#include <cstring>

#include "grid/control/CGridNotify.h"
#include "grid/control/CGridSheets.h"
#include "grid/control/CGridSourceTable.h"
#include "grid/data/CGridCell.h"
#include "grid/data/CGridCellFormat.h"
#include "grid/data/CGridDataSource.h"
#include "grid/data/CGridMem.h"

namespace coregui {

CGridCells::CGridCells(CGridSheets& sheets, CGridSourceTable& sources, CGridNotify& notify)
    : m_sheets(sheets), m_sources(sources), m_notify(notify), m_spare(std::make_unique<CGridCell>()) {}

CGridCells::~CGridCells() = default;

CGridCells::Scratch::Scratch(CGridCells& cells) : m_cells(cells), m_cell(std::move(cells.m_spare)) {
  if (m_cell == nullptr) {
    m_cell = std::make_unique<CGridCell>();
  }
}

CGridCells::Scratch::~Scratch() {
  m_cells.m_spare = std::move(m_cell);
}

int CGridCells::Get(int col, long row, CGridCell* cell) {
  if (cell == nullptr) {
    return 1;
  }
  cell->ClearAll();
  cell->SetPropertyFlags(0);
  if (col >= m_sheets.Current().columns.Count()) {
    return 1;
  }
  const CGridSourceTable::Place place = m_sources.Of(col);
  return place.source->GetCell(place.col, row, cell);
}

int CGridCells::GetDisplayed(int col, long row, CGridCell* cell) {
  if (cell == nullptr) {
    return 1;
  }
  CGridInfo& info = m_sheets.Current();
  cell->SetPropertyFlags(0);
  if (row < 0 || !info.columns.Has(col)) {
    cell->CopyInfoFrom(info.headingDefault.get());
  } else if (info.columns.At(col).defaults != nullptr) {
    cell->CopyInfoFrom(info.columns.At(col).defaults.get());
  }
  if (row >= info.rows.Count()) {
    return 0;
  }
  const CGridSourceTable::Place place = m_sources.Of(col);
  place.source->GetCell(place.col, row, cell);
  m_notify.OnGetCell(col, row, cell);
  if (cell->IsPropertySet(CELLPROP_FORMAT) != 0 && cell->GetFormatClass() != nullptr) {
    cell->GetFormatClass()->ApplyDisplayFormat(cell);
  }
  if (cell->IsPropertySet(CELLPROP_STYLE) != 0 && cell->GetCellStyle() != nullptr) {
    cell->GetCellStyle()->AddInfoTo(cell);
  }
  return 0;
}

bool CGridCells::IsInRange(int col, long row) const {
  const CGridInfo& info = m_sheets.Current();
  return col >= -info.headings.SideCols() && col <= info.columns.Count() && row >= -info.headings.TopRows() &&
         row <= info.rows.Count();
}

int CGridCells::Set(int col, long row, CGridCell* cell) {
  if (cell == nullptr || !IsInRange(col, row)) {
    return 1;
  }
  m_notify.OnSetCell(col, row, cell);
  const CGridSourceTable::Place place = m_sources.Of(col);
  place.source->SetCell(place.col, row, cell);
  return 0;
}

int CGridCells::Delete(int col, long row) {
  const CGridSourceTable::Place place = m_sources.Of(col);
  return place.source->DeleteCell(place.col, row);
}

long CGridCells::NextJoined(int col, long row) const {
  const CGridMem* const memory = m_sheets.Current().memory.get();
  const CGridSourceTable::Place place = m_sources.Of(col);
  if (place.source != memory) {
    return row;
  }
  const long next = memory->NextJoinedRow(place.col, row);
  return std::max(next, row);
}

int CGridCells::GetColDefault(int col, CGridCell* cell) {
  CGridColumns& columns = m_sheets.Current().columns;
  if (cell == nullptr || !columns.Has(col)) {
    return 1;
  }
  return cell->CopyInfoFrom(columns.At(col).defaults.get());
}

int CGridCells::SetColDefault(int col, CGridCell* cell) {
  CGridColumns& columns = m_sheets.Current().columns;
  if (cell == nullptr || !columns.Has(col)) {
    return 1;
  }
  return columns.At(col).OwnDefaults().CopyInfoFrom(cell);
}

int CGridCells::QuickGetText(int col, long row, CString* text) {
  const Scratch scratch(*this);
  GetDisplayed(col, row, &scratch.Cell());
  if (scratch.Cell().GetText(text) != 0) {
    text->Empty();
  }
  return 0;
}

int CGridCells::QuickGetNumber(int col, long row, double* number) {
  const Scratch scratch(*this);
  GetDisplayed(col, row, &scratch.Cell());
  return scratch.Cell().GetNumber(number);
}

int CGridCells::QuickSetExtraMem(int col, long row, long size, const void* data) {
  const Scratch scratch(*this);
  if (size <= 0 || data == nullptr || Get(col, row, &scratch.Cell()) != 0) {
    return 1;
  }
  void* const block = scratch.Cell().AllocExtraMem(size);
  if (block == nullptr) {
    return 1;
  }
  std::memcpy(block, data, static_cast<std::size_t>(size));
  return Set(col, row, &scratch.Cell());
}

}  // namespace coregui
