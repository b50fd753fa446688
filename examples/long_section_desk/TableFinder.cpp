#include "TableFinder.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace desk {

namespace {

/// The texts to look for: what was entered, and when it means a number, how the table's store writes that
/// number, and how it writes one that only begins so.
std::vector<CString> WaysToWrite(const CString& text) {
  std::vector<CString> ways = {text};
  const coregui::UserLocale& locale = coregui::GetUserLocale();
  CString digits = text;
  digits.Replace(locale.thousands, L"");
  const wchar_t decimal = locale.decimal.IsEmpty() ? L'.' : locale.decimal[0];
  double value = 0.0;
  if (!ParseNumber(digits.GetString(), decimal, value)) {
    return ways;
  }
  CGridCell cell;
  cell.SetPropertyFlags(0);
  cell.SetNumber(value);
  const int point = digits.Find(locale.decimal);
  digits.Replace(locale.decimal, L".");
  const CString grouped = coregui::FormatNumberText(digits, point < 0 ? 0 : digits.GetLength() - point - 1);
  for (const CString& way : {CString(cell.GetText()), grouped}) {
    if (!way.IsEmpty() && std::find(ways.begin(), ways.end(), way) == ways.end()) {
      ways.push_back(way);
    }
  }
  return ways;
}

}  // namespace

void TableFinder::OpenDialog(CWnd* owner) {
  if (m_dialog != nullptr && m_dialog->HasWindow()) {
    m_dialog->SetActiveWindow();
    return;
  }
  const DWORD flags = (m_wanted.up ? 0U : FR_DOWN) | (m_wanted.matchCase ? FR_MATCHCASE : 0U) |
                      (m_wanted.wholeCell ? FR_WHOLEWORD : 0U);
  m_dialog = std::make_unique<CFindReplaceDialog>();
  m_dialog->Create(TRUE, m_wanted.text, L"", flags, owner);
  m_dialog->SetWholeWordText(L"Match &entire cell text");
  CRect beside;
  CRect dialog;
  owner->GetWindowRect(&beside);
  m_dialog->GetWindowRect(&dialog);
  const int gap = ScaleByDpi(40);
  m_dialog->MoveWindow(
      CRect(CPoint(std::max(beside.left, beside.right - gap - dialog.Width()), beside.top + 2 * gap),
            dialog.Size()));
  Uncover();
}

void TableFinder::Uncover() {
  CRect cell;
  CRect dialog;
  const CWnd* body = m_grid.GetGridWnd();
  if (m_dialog == nullptr || !m_dialog->HasWindow() || body == nullptr ||
      m_grid.GetCellRect(m_grid.GetCurrentCol(), m_grid.GetCurrentRow(), &cell) != 0) {
    return;
  }
  body->ClientToScreen(&cell);
  m_dialog->GetWindowRect(&dialog);
  const int frame = ScaleByDpi(36);  // what the desktop adds at the top
  dialog.top -= frame;
  CRect common;
  if (common.IntersectRect(dialog, cell) == FALSE) {
    return;
  }
  const bool below = cell.bottom + dialog.Height() <= GetSystemMetrics(SM_CYSCREEN);
  const LONG top = below ? cell.bottom + frame : std::max<LONG>(cell.top - dialog.Height(), 0) + frame;
  m_dialog->MoveWindow(CRect(CPoint(dialog.left, top), CSize(dialog.Width(), dialog.Height() - frame)));
}

bool TableFinder::TakeFromDialog(LPARAM lParam) {
  const CFindReplaceDialog* dialog = CFindReplaceDialog::GetNotifier(lParam);
  m_wanted = {dialog->GetFindString(), dialog->MatchCase() != FALSE, dialog->MatchWholeWord() != FALSE,
              dialog->SearchDown() == FALSE};
  return dialog->FindNext() != FALSE;
}

std::optional<TableFinder::Place> TableFinder::Search(const CString& text, const Place& from, int flags) {
  Place found = from;
  CString wanted = text;  // a search that ignores the case changes it
  if (m_grid.FindNext(&wanted, &found.col, &found.row, flags) != 0) {
    return std::nullopt;
  }
  return found;
}

TableFinder::Result TableFinder::FindAgain(bool back, const CGridMem::Watch& watch) {
  if (m_wanted.text.IsEmpty()) {
    return Result::nothingToFind;
  }
  const bool up = m_wanted.up != back;
  const int flags = FIND_ALLCOLS | (m_wanted.wholeCell ? 0 : FIND_PARTIAL) |
                    (m_wanted.matchCase ? 0 : FIND_NOCASE) | (up ? FIND_UP : 0);
  const Place from{m_grid.GetCurrentRow(), m_grid.GetCurrentCol()};
  const auto isAhead = [&](const Place& place) { return up ? place < from : from < place; };
  // What comes first: ahead before what is found from the other end, then in the search's direction.
  const auto comesFirst = [&](const Place& a, const Place& b) {
    return isAhead(a) != isAhead(b) ? isAhead(a) : (up ? b < a : a < b);
  };
  std::optional<Place> found;
  bool goesOn = true;
  const std::vector<CString> ways = WaysToWrite(m_wanted.text);
  for (std::size_t way = 0; way < ways.size() && goesOn; ++way) {
    m_grid.WatchSearch([&](double part) {
      goesOn = watch((static_cast<double>(way) + part) / static_cast<double>(ways.size()));
      return goesOn;
    });
    const std::optional<Place> place = Search(ways[way], from, flags);
    found = place && (!found || comesFirst(*place, *found)) ? place : found;
  }
  m_grid.WatchSearch(nullptr);
  if (!goesOn) {
    return Result::givenUp;
  }
  if (!found) {
    return Result::notFound;
  }
  m_grid.GotoCell(found->col, found->row);
  Uncover();
  return isAhead(*found) ? Result::found : Result::foundFromOtherEnd;
}

}  // namespace desk
