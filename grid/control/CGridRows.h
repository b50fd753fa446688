#pragma once

#include "grid/control/CGridAxis.h"

namespace coregui {

/// The rows of one sheet. Up to 64000 of them may differ in height; more have one height for good.
class COREGUI_API CGridRows : public CGridAxis {
 public:
  CGridRows();

  /// The most rows that may have heights of their own.
  static constexpr long maxOwnHeights = 64000;

  /// Switches to one height when there are too many rows.
  void SetRowCount(long count);
};

}  // namespace coregui
