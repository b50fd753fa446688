#pragma once

#include <memory>
#include <optional>
#include <utility>

#include "SurveyGrid.h"
#include "coregui/coregui.h"

namespace desk {

/// Finds texts in the table: the find dialog beside the desk, and the same search again by a key. A search
/// begins behind the current cell, looks into every column, goes on at the other end, and makes the cell that
/// it finds the current one. A number is also found when it is written in another way than the table stores
/// it: with more zeros, with or without thousands separators.
class TableFinder {
 public:
  enum class Result {
    nothingToFind,  ///< no text was entered yet
    notFound,
    found,
    foundFromOtherEnd,  ///< the search went on at the other end of the table
  };

  explicit TableFinder(SurveyGrid& grid) : m_grid(grid) {}

  /// Shows the dialog at the right end of `owner`, or brings it to the front. `owner` gets its messages
  /// (RegisterWindowMessage of FINDMSGSTRING) and passes them to TakeFromDialog.
  void OpenDialog(CWnd* owner);
  void CloseDialog() { m_dialog.reset(); }
  /// Takes over what a message of the dialog says; true when a search is wanted.
  bool TakeFromDialog(LPARAM lParam);
  /// Searches for the text entered last; `back` turns its direction round.
  Result FindAgain(bool back);

  void SetText(const CString& text) { m_text = text; }
  const CString& Text() const { return m_text; }
  /// What messages about a search stand in front of: the dialog, or null.
  CWnd* Dialog() const { return m_dialog.get(); }

 private:
  /// A cell, in the order of a search: rows before columns.
  struct Place {
    long row;
    int col;
    bool operator<(const Place& other) const { return std::pair(row, col) < std::pair(other.row, other.col); }
  };
  /// Moves the dialog off the current cell.
  void Uncover();
  std::optional<Place> Search(const CString& text, const Place& from, bool up);

  SurveyGrid& m_grid;
  std::unique_ptr<CFindReplaceDialog> m_dialog;
  CString m_text;
  bool m_matchCase = false;
  bool m_wholeCell = false;
  bool m_up = false;
};

}  // namespace desk
