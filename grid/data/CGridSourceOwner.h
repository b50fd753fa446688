#pragma once

#include "core/Export.h"

class CGridCell;

namespace coregui {

/// Bit of the sort flags: larger cells first.
inline constexpr int SORT_DESCENDING = 2;

/// How the rows of an owner can be sorted.
enum class SortOrder {
  standard,    ///< by the standard comparison: keys are read once and compared without calling the owner
  consistent,  ///< by the owner's own comparison, which orders the cells without contradiction
  unknown,     ///< by the owner's own comparison, which may contradict itself: rows are inserted one by one
};

/// What a data source asks the control that it serves: the extent of the grid, which data column each grid
/// column shows, and how two cells compare. The control derives from it; a test can too.
class COREGUI_API CGridSourceOwner {
 public:
  virtual ~CGridSourceOwner() = default;

  virtual int GetNumberCols() const = 0;
  virtual long GetNumberRows() const = 0;
  /// The data column that a grid column shows.
  virtual int GetColTranslation(int col) const = 0;
  virtual void SetColTranslation(int col, int dataColumn) = 0;

  /// Compares two key cells while rows are sorted: negative, 0 or positive. `flags` are the caller's sort
  /// flags. The standard comparison: a null cell goes last; SORT_DESCENDING swaps the cells; when the first
  /// is a number, a truth value or a currency amount, the numbers decide, else the texts, code unit by code
  /// unit. A cell without text gives 1 as the first cell and -1 as the second. Dates compare as texts.
  ///
  /// Override it only to compare differently: a class that merely forwards costs its sorts the fast road.
  virtual int OnSortEvaluate(CGridCell* a, CGridCell* b, int flags);

  /// What may be assumed of OnSortEvaluate. By itself: `standard` as long as it is not overridden, else
  /// `unknown`. Override it together with OnSortEvaluate to promise `consistent`: the sign of a comparison
  /// turns with its arguments, and what compares equal or below is transitive. Millions of rows then sort in
  /// moments.
  virtual SortOrder GetSortOrder() const;

  /// The first grid column that shows the data column, or -1.
  int FindColOfData(int dataColumn) const;
};

}  // namespace coregui
