#include "grid/control/CGridSizing.h"

#include <algorithm>

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCells.h"
#include "grid/control/CGridNavigator.h"
#include "grid/control/CGridScreen.h"
#include "grid/control/CGridSheets.h"
#include "grid/control/CGridTypeTable.h"
#include "grid/data/CGridCell.h"
#include "platform/System.h"

namespace coregui {

namespace {

int ResizeHeading(std::vector<int>& sizes, int count, int size) {
  int change = 0;
  while (static_cast<int>(sizes.size()) > count) {
    change -= sizes.back();
    sizes.pop_back();
  }
  while (static_cast<int>(sizes.size()) < count) {
    change += size;
    sizes.push_back(size);
  }
  return change;
}

}  // namespace

CGridAxis& CGridSizing::Cols() const {
  return m_rooms.sheets.Current().columns;
}
CGridAxis& CGridSizing::Rows() const {
  return m_rooms.sheets.Current().rows;
}

int CGridSizing::ToldWidth(int col, int width) {
  Rows().ForEachInView([&](long row) {
    if (CGridCellDelegate* const type = m_rooms.types.Of(col, row)) {
      type->OnChangedCellWidth(col, row, &width);
    }
  });
  return std::max(width, 0);
}

int CGridSizing::ToldHeight(long row, int height) {
  Cols().ForEachInView([&](long at) {
    const auto col = static_cast<int>(at);
    if (CGridCellDelegate* const type = m_rooms.types.Of(col, row)) {
      type->OnChangedCellHeight(col, row, &height);
    }
  });
  return std::max(height, 0);
}

int CGridSizing::SetColWidth(int col, int width) {
  CGridInfo& info = m_rooms.sheets.Current();
  if (width < 0 || col < -info.headings.SideCols() || col >= info.columns.Count()) {
    return 1;
  }
  if (col < 0) {
    info.headings.sideColWidths[static_cast<std::size_t>(-col - 1)] = width;
    return 0;
  }
  info.columns.SetSize(col, ToldWidth(col, width));
  m_rooms.navigator.ColsChanged();
  return 0;
}

int CGridSizing::GetColWidth(int col) const {
  const CGridInfo& info = m_rooms.sheets.Current();
  if (col < 0) {
    return col < -info.headings.SideCols() ? 0
                                           : info.headings.sideColWidths[static_cast<std::size_t>(-col - 1)];
  }
  return info.columns.SizeOf(col);
}

int CGridSizing::SetRowHeight(long row, int height) {
  CGridInfo& info = m_rooms.sheets.Current();
  if (height < 0 || row < -info.headings.TopRows() || row >= info.rows.Count()) {
    return 1;
  }
  if (row < 0) {
    info.headings.topRowHeights[static_cast<std::size_t>(-row - 1)] = height;
    return 0;
  }
  info.rows.SetSize(row, ToldHeight(row, height));
  m_rooms.navigator.RowsChanged();
  return 0;
}

int CGridSizing::GetRowHeight(long row) const {
  const CGridInfo& info = m_rooms.sheets.Current();
  if (row < 0) {
    return row < -info.headings.TopRows() ? 0
                                          : info.headings.topRowHeights[static_cast<std::size_t>(-row - 1)];
  }
  return info.rows.SizeOf(row);
}

int CGridSizing::SetDefRowHeight(int height) {
  if (height < 0) {
    return 1;
  }
  Rows().SetDefaultSize(height);
  m_rooms.navigator.RowsChanged();
  return 0;
}

int CGridSizing::SetUniformRowHeight(bool on) {
  if (!on && Rows().Count() > CGridRows::maxOwnHeights) {
    return 1;
  }
  Rows().SetUniform(on);
  m_rooms.navigator.RowsChanged();
  return 0;
}

int CGridSizing::SetHeadingRows(int count) {
  if (count < 0) {
    return 1;
  }
  CGridHeadings& headings = m_rooms.sheets.Current().headings;
  headings.topHeight =
      std::max(0, headings.topHeight + ResizeHeading(headings.topRowHeights, count, ScaleByDpi(20)));
  return 0;
}

int CGridSizing::SetHeadingCols(int count) {
  if (count < 0) {
    return 1;
  }
  CGridHeadings& headings = m_rooms.sheets.Current().headings;
  headings.sideWidth =
      std::max(0, headings.sideWidth + ResizeHeading(headings.sideColWidths, count, ScaleByDpi(25)));
  return 0;
}

int CGridSizing::BestFit(int startCol, int endCol, long rows) {
  if (startCol < 0 || endCol >= Cols().Count() || startCol > endCol) {
    return 1;
  }
  std::vector<int> widths(static_cast<std::size_t>(endCol - startCol + 1), 0);
  const bool measured = m_rooms.screen.Measure([&](CDC& dc) {
    const auto widen = [&](long row) { WidenToRow(dc, row, startCol, widths); };
    for (long row = -m_rooms.sheets.Current().headings.TopRows(); row < 0; ++row) {
      widen(row);
    }
    if (rows == 0) {
      Rows().ForEachInView(widen);
      return;
    }
    const long locked = Rows().LockedInView();
    for (long row = 0; row < locked; ++row) {
      widen(row);
    }
    const long first = rows < 0 ? locked : Rows().First();
    const long end = rows < 0 ? Rows().Count() : std::min(first + rows, Rows().Count());
    for (long row = first; row < end; ++row) {
      widen(row);
    }
  });
  if (!measured) {
    return 1;
  }
  for (int col = startCol; col <= endCol; ++col) {
    if (startCol == endCol || Cols().SizeOf(col) > 0) {
      SetColWidth(col, widths[static_cast<std::size_t>(col - startCol)]);
    }
  }
  return 0;
}

void CGridSizing::WidenToRow(CDC& dc, long row, int startCol, std::vector<int>& widths) {
  int col = startCol;
  for (int& width : widths) {
    CGridCell cell;
    m_rooms.cells.GetDisplayed(col++, row, &cell);
    CGridCellDelegate* const type = m_rooms.types.Of(cell);
    if (type != nullptr && cell.IsPropertySet(CELLPROP_JOIN) == 0) {
      CSize size;
      type->GetBestSize(&dc, &size, &cell);
      width = std::max<int>(width, size.cx);
    }
  }
}

int CGridSizing::FitToWindow(int startCol, int endCol) {
  if (startCol < 0 || endCol >= Cols().Count() || startCol > endCol) {
    return 1;
  }
  const std::int64_t old = Cols().OffsetOf(endCol + 1) - Cols().OffsetOf(startCol);
  const std::int64_t room = Cols().Extent() - (Cols().TotalSize() - old);
  if (old <= 0 || room <= 0) {
    return 1;
  }
  // Rounding each column's end instead of its width makes the widths add up to the room.
  std::int64_t sum = 0;
  std::int64_t end = 0;
  for (int col = startCol; col <= endCol; ++col) {
    sum += Cols().SizeOf(col);
    const std::int64_t newEnd = sum * room / old;
    Cols().SetSize(col, static_cast<int>(newEnd - end));
    end = newEnd;
  }
  m_rooms.navigator.ColsChanged();
  return 0;
}

void CGridSizing::SetViewSize(CSize body) {
  Cols().SetExtent(body.cx);
  Rows().SetExtent(body.cy);
  m_rooms.navigator.ViewSized();
}

}  // namespace coregui
