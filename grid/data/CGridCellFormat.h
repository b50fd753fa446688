#pragma once

#include "core/Export.h"
#include "platform/CObject.h"

class CGridCell;

/// A hook that a cell can name to change what it shows just before it is shown. Derive from it, and keep it
/// alive as long as any cell refers to it.
class COREGUI_API CGridCellFormat : public CObject {
 public:
  /// Called on every cell fetched for display that names this hook; the cell is a copy, the store is
  /// untouched.
  virtual void ApplyDisplayFormat(CGridCell* cell);
  /// Whether the cell's content is acceptable: 0 when it is.
  virtual int ValidateCellInfo(CGridCell* cell);
};
