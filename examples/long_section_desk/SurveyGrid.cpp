#include "SurveyGrid.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace desk {

namespace {

constexpr short kAlignLeft = 0x01;
constexpr short kAlignRight = 0x02;
constexpr short kAlignCentreVertically = 0x20;
constexpr long kFirstRows = 1024;
constexpr long kRowsForFit = 500;
constexpr int kWidestColumn = 420;
enum : int { kMenuCopy = 1, kMenuSortUp, kMenuSortDown };

/// The row of the station that the section marks.
COLORREF CurrentRowColor() {
  return IsDarkTheme() ? RGB(38, 54, 74) : RGB(222, 236, 250);
}

}  // namespace

void SurveyGrid::OnSetup() {
  SetTH_Height(ScaleByDpi(24));
  SetTH_RowHeight(0, ScaleByDpi(24));
  SetUniformRowHeight(1);
  SetUserSizingMode(2);
  SetMultiSelectMode(1);
  EnableExcelBorders(1);
  SetHighlightRow(0);
  SetCurrentCellMode(3);  // focus rectangle, and highlighted without the focus too
  UseHints(1);
  SetBallisticMode(2);  // a drag that leaves the table scrolls faster the further it goes
  SetBallisticDelay(0);
  EnableMenu(1);
}

std::unique_ptr<CGridMem> SurveyGrid::TakeSource() {
  RemoveDataSource(m_source);
  m_source = 0;
  return std::move(m_cells);
}

void SurveyGrid::UseSource(std::unique_ptr<CGridMem> cells) {
  m_cells = std::move(cells);
  m_source = AddDataSource(m_cells.get());
  SetDefDataSource(m_source);
}

/// The windows keep the pixels that they have.
void SurveyGrid::HoldPainting(bool hold) {
  for (CWnd* part = GetWindow(GW_CHILD); part != nullptr; part = part->GetWindow(GW_HWNDNEXT)) {
    part->SetRedraw(!hold);
  }
}

std::unique_ptr<CGridMem> SurveyGrid::LendCells() {
  HoldPainting(true);
  return TakeSource();
}

void SurveyGrid::GiveCells(std::unique_ptr<CGridMem> cells) {
  UseSource(std::move(cells));
  HoldPainting(false);
  RedrawAll();
}

void SurveyGrid::WatchSearch(CGridMem::Watch watch) {
  if (m_cells != nullptr) {
    m_cells->SetWatch(std::move(watch));
  }
}

std::unique_ptr<CGridMem> SurveyGrid::BeginTable(const CsvDialect& dialect) {
  m_dialect = dialect;
  m_longest.assign(dialect.headings.size(), Longest());
  m_stored = 0;
  m_beginningShown = false;
  EnableUpdate(0);
  std::unique_ptr<CGridMem> before = TakeSource();
  UseSource(std::make_unique<CGridMem>());
  SetNumberRows(0, 0);
  SetNumberCols(static_cast<int>(dialect.headings.size()), 0);
  for (int col = 0; col < GetNumberCols(); ++col) {
    const auto column = static_cast<std::size_t>(col);
    CGridCell columnDefault;
    GetGridDefault(&columnDefault);
    columnDefault.SetAlignment(
        static_cast<short>((dialect.numeric[column] ? kAlignRight : kAlignLeft) | kAlignCentreVertically));
    if (dialect.numeric[column]) {
      columnDefault.SetNumberDecimals(dialect.decimals[column]);
    }
    SetColDefault(col, &columnDefault);
    QuickSetText(col, -1, dialect.headings[column].c_str());
    QuickSetAlignment(col, -1, columnDefault.GetAlignment());
  }
  return before;
}

void SurveyGrid::StoreRow(std::uint64_t row, const std::vector<std::wstring_view>& fields) {
  const auto gridRow = static_cast<long>(row);
  m_stored = row + 1;
  if (gridRow >= GetNumberRows()) {
    SetNumberRows(std::max(kFirstRows, gridRow * 2), 0);
  }
  m_numbers.assign(m_dialect.headings.size(), std::numeric_limits<double>::quiet_NaN());
  for (std::size_t column = 0; column < fields.size(); ++column) {
    double number = 0.0;
    // Only the value is stored: how it looks is the column's business.
    m_cell.SetPropertyFlags(0);
    if (m_dialect.numeric[column] && ParseNumber(fields[column], m_dialect.decimal, number)) {
      m_cell.SetNumber(number);
      m_numbers[column] = number;
    } else if (!fields[column].empty()) {
      m_cell.SetText(std::wstring(fields[column]).c_str());
    } else {
      continue;
    }
    SetCell(static_cast<int>(column), gridRow, &m_cell);
    if (fields[column].size() > m_longest[column].characters) {
      m_longest[column] = {fields[column].size(), gridRow};
    }
  }
}

void SurveyGrid::ShowBeginning() {
  if (!std::exchange(m_beginningShown, true)) {
    EndTable(m_stored);
  }
}

void SurveyGrid::EndTable(std::uint64_t rows) {
  SetNumberRows(static_cast<long>(rows), 0);
  const CString widestNumber =
      CString::Formatted(L"%llu", static_cast<unsigned long long>(std::max<std::uint64_t>(rows, 1)));
  SetSH_ColWidth(0, ScaleByDpi(16 + 8 * widestNumber.GetLength()));
  SetSH_Width(ScaleByDpi(16 + 8 * widestNumber.GetLength()));
  BestFit(0, GetNumberCols() - 1, kRowsForFit);
  for (int col = 0; col < GetNumberCols(); ++col) {
    const int wanted = std::max(GetColWidth(col), WidthOf(col, m_longest[static_cast<std::size_t>(col)].row));
    SetColWidth(col, std::clamp(wanted, ScaleByDpi(60), ScaleByDpi(kWidestColumn)));
  }
  EnableUpdate(1);
  AdjustComponentSizes();
  RedrawAll();
}

void SurveyGrid::OnGetCell(int col, long row, CGridCell* cell) {
  if (col == -1 && row >= 0) {
    cell->SetText(CString::Formatted(L"%ld", row + 1));
  } else if (col >= 0 && row >= 0 && row == GetCurrentRow()) {
    cell->SetBackColor(CurrentRowColor());
  }
}

int SurveyGrid::WidthOf(int col, long row) {
  CString text;
  if (row >= 0) {
    QuickGetText(col, row, &text);
  }
  return text.IsEmpty() ? 0 : WidthOf(text);
}

int SurveyGrid::WidthOf(const CString& text) {
  CWnd* body = GetGridWnd();
  if (body == nullptr) {
    return 0;
  }
  CClientDC dc(body);
  dc.SelectObject(GetDefFont());
  return dc.GetTextExtent(text, text.GetLength()).cx + 2 * GetMargin() + 1;
}

void SurveyGrid::OnSetFocus(int /*section*/) {
  if (m_focusHook) {
    m_focusHook();
  }
}

void SurveyGrid::OnKillFocus(int /*section*/, CWnd* /*newFocus*/) {
  if (m_focusHook) {
    m_focusHook();
  }
}

/// The whole of a text that its column or the window's edge cuts off.
int SurveyGrid::OnHint(int col, long row, int /*section*/, CString* text) {
  CRect cell;
  QuickGetText(col, row, text);
  if (text->IsEmpty() || GetGridWnd() == nullptr || GetCellRect(col, row, &cell) != 0) {
    return 0;
  }
  const LONG edge = col < 0 ? cell.right : GetGridWnd()->GetClientRectangle().right;
  return WidthOf(*text) > std::min(cell.right, edge) - cell.left ? 1 : 0;
}

int SurveyGrid::OnMenuStart(int col, long /*row*/, int /*section*/) {
  CMenu* menu = GetMenu();
  while (menu->GetMenuItemCount() > 0) {
    menu->DeleteMenu(0, MF_BYPOSITION);
  }
  menu->AppendMenu(MF_STRING, kMenuCopy, L"&Copy\tCtrl+C");
  menu->AppendMenu(MF_SEPARATOR);
  const UINT state = col >= 0 ? MF_ENABLED : MF_GRAYED;
  menu->AppendMenu(MF_STRING | state, kMenuSortUp, L"Sort column &upwards");
  menu->AppendMenu(MF_STRING | state, kMenuSortDown, L"Sort column &downwards");
  return 1;
}

void SurveyGrid::OnMenuCommand(int col, long /*row*/, int /*section*/, int item) {
  if (item == kMenuCopy) {
    CopySelected();
  } else if (col >= 0 && m_sortHook && (item == kMenuSortUp || item == kMenuSortDown)) {
    m_sortHook(col, item == kMenuSortDown);
  }
}

void SurveyGrid::OpenMenuAtCurrent() {
  CRect cell;
  const CWnd* body = GetGridWnd();
  if (body == nullptr || GetCellRect(GetCurrentCol(), GetCurrentRow(), &cell) != 0) {
    return;
  }
  const CRect inside = body->GetClientRectangle();
  POINT at = CPoint(std::clamp(cell.left, inside.left, inside.right),
                    std::clamp(cell.bottom, inside.top, inside.bottom));
  body->ClientToScreen(&at);
  StartMenu(GetCurrentCol(), GetCurrentRow(), &at, coregui::GRIDSECTION_GRID);
}

void SurveyGrid::OnRowChange(long oldRow, long newRow) {
  RedrawRow(oldRow);
  RedrawRow(newRow);
  if (m_rowHook) {
    m_rowHook(newRow);
  }
}

}  // namespace desk
