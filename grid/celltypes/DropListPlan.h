#pragma once

#include "core/Export.h"
#include "platform/CString.h"
#include "platform/CStringList.h"
#include "platform/Geometry.h"

namespace coregui {

inline constexpr int kMostVisibleChoices = 15;

/// The drop button: the rightmost `buttonWidth` pixels of the cell.
COREGUI_API CRect DropButtonRect(const CRect& cell, int buttonWidth);

/// The choices of a label: its lines.
COREGUI_API CStringList SplitChoices(const CString& label);

/// What the drop-down list's place depends on, in pixels.
struct DropListMeasures {
  int choices = 0;
  int itemHeight = 0;
  int widestChoice = 0;  ///< text extent
  int scrollBarWidth = 0;
  CSize window;  ///< client size of the grid window that the list stays in
};

/// Where the list opens: under the cell, moved up or left where it would leave the window (never beyond its
/// top or left edge), as wide as the widest choice needs.
COREGUI_API CRect DropListRect(const CRect& cell, const DropListMeasures& measures);

}  // namespace coregui
