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
    givenUp,
  };
  /// What is looked for.
  struct Wanted {
    CString text;
    bool matchCase = false;
    bool wholeCell = false;
    bool up = false;
    bool operator==(const Wanted&) const = default;
  };

  explicit TableFinder(SurveyGrid& grid) : m_grid(grid) {}

  /// Shows the dialog at the right end of `owner`, or brings it to the front. `owner` gets its messages
  /// (RegisterWindowMessage of FINDMSGSTRING) and passes them to TakeFromDialog.
  void OpenDialog(CWnd* owner);
  void CloseDialog() { m_dialog.reset(); }
  /// Takes over what a message of the dialog says; true when a search is wanted.
  bool TakeFromDialog(LPARAM lParam);
  /// Searches for what was entered last; `back` turns its direction round. `watch` is asked every few
  /// milliseconds, with the part that is done, whether to go on; it may take over what a dialog says.
  Result FindAgain(bool back, const CGridMem::Watch& watch);

  void SetText(const CString& text) { m_wanted.text = text; }
  const CString& Text() const { return m_wanted.text; }
  const Wanted& What() const { return m_wanted; }
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
  std::optional<Place> Search(const CString& text, const Place& from, int flags);

  SurveyGrid& m_grid;
  std::unique_ptr<CFindReplaceDialog> m_dialog;
  Wanted m_wanted;
};

}  // namespace desk
