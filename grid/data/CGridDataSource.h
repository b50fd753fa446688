#pragma once

#include "core/Export.h"
#include "platform/CObject.h"
#include "platform/CString.h"

class CGridCell;
class CWnd;

namespace coregui {
class CGridSourceOwner;
}

// Flags of FindFirst and FindNext.
inline constexpr int FIND_PARTIAL = 1;  ///< the searched text is a part of the cell's text
inline constexpr int FIND_NOCASE = 2;   ///< ignoring case
inline constexpr int FIND_UP = 4;       ///< backwards
inline constexpr int FIND_ALLCOLS = 8;  ///< in every column, not only in the one passed in

/// Where a grid reads and writes its cells. Columns are data columns: the control has translated them.
/// Columns come before rows; negative ones are heading cells.
///
/// Operations that return int answer 0 when done or found, 1 when failed, not found or out of range, and -1
/// when this source does not support them, which is what all of them answer here. The vetoes answer 1 to
/// allow, and the notifications do nothing.
class COREGUI_API CGridDataSource : public CObject {
 public:
  CGridDataSource() = default;
  CGridDataSource(const CGridDataSource&) = delete;
  CGridDataSource& operator=(const CGridDataSource&) = delete;

  /// The control that this source is registered with, or null. Borrowed: the control outlives the
  /// registration.
  coregui::CGridSourceOwner* GetOwner() const { return m_owner; }
  void SetOwner(coregui::CGridSourceOwner* owner) { m_owner = owner; }
  /// A number for the application's use, -1 until set.
  long GetID() const { return m_id; }
  void SetID(long id) { m_id = id; }

  // --- The source as a whole

  virtual int Open(const wchar_t* name, const wchar_t* table);
  /// 1 when open.
  virtual int IsOpen();
  virtual int SetPassword(const wchar_t* user, const wchar_t* password);
  virtual int Close();
  virtual int Save();
  virtual int SaveAs(const wchar_t* name, const wchar_t* table);

  // --- Rows and columns

  /// The number of rows, or the index of the last one, as the source defines it; -1 when unknown.
  virtual long GetNumRows();
  virtual int GetNumCols();
  virtual int GetColName(int col, CString* name);
  virtual int GetColType(int col, int* type);
  virtual int GetColFromName(const wchar_t* name, int* col);
  virtual int AppendRow(CGridCell** cells, int count);
  virtual int AppendRow();
  /// The new row takes the index `row`; that row and the ones after it move up by one.
  virtual int InsertRow(long row);
  virtual int AppendCol();
  virtual int InsertCol(int col);
  virtual int DeleteRow(long row);
  virtual int DeleteCol(int col);

  // --- Cells

  virtual int DeleteCell(int col, long row);
  /// Removes every cell.
  virtual int Empty();
  /// Merges the stored cell over `cell`: only properties that are set in the stored cell change it.
  virtual int GetCell(int col, long row, CGridCell* cell);
  /// The stored cell gets the mask and properties of `cell`.
  virtual int SetCell(int col, long row, CGridCell* cell);

  // --- Finding and sorting

  /// Searches from the start. `text` is upper-cased in place with FIND_NOCASE; on a match `col` and `row`
  /// receive it.
  virtual int FindFirst(CString* text, int* col, long* row, long flags);
  /// Searches on from the cell after `col`, `row`.
  virtual int FindNext(CString* text, int* col, long* row, int flags);
  /// Sorts the rows by the key columns, the first one first. `flags` go to the owner's comparison.
  virtual int SortBy(int* cols, int count, int flags);
  virtual int SortBy(int col, int flags);

  // --- Options and notices whose meaning each source defines

  virtual int GetOption(int option, long& a, long& b);
  virtual int SetOption(int option, long a, long b);
  virtual int OnHitTop(long numberRows, long rowsPast, long* rowsFound);
  virtual int OnHitBottom(long numberRows, long rowsPast, long* rowsFound);

  // --- The current cell: notifications and veto

  virtual void OnRowChange(long oldRow, long newRow);
  virtual void OnColChange(int oldCol, int newCol);
  virtual int OnCanMove(int oldCol, long oldRow, int newCol, long newRow);

  // --- Transactions

  virtual int StartTransaction();
  virtual int CancelTransaction();
  virtual int FinishTransaction();

  // --- Editing: vetoes

  virtual int OnEditStart(int col, long row, CWnd** editor);
  /// A typed key is about to reach the editor; it may be changed.
  virtual int OnEditVerify(int col, long row, CWnd* editor, unsigned int* key);
  virtual int OnEditFinish(int col, long row, CWnd* editor, const wchar_t* text, int cancelled);
  virtual int OnEditContinue(int oldCol, long oldRow, int* newCol, long* newRow);

  /// The nearest column left of `*col` whose cell in the row shows a text.
  virtual int GetPrevNonBlankCol(int* col, long row);

 private:
  coregui::CGridSourceOwner* m_owner = nullptr;  // borrowed
  long m_id = -1;
};
