#pragma once

#include <functional>

#include "platform/CString.h"

namespace coregui {

/// Cuts a text of cells: a TAB ends a field and goes one column on; CR, LF or CR LF ends a field and goes to
/// the start of the next row. `field(col, row, text)` is called for each field, counted from 0; the end of
/// the text ends the last field only when there is something in it.
void SplitTabText(const CString& text,
                  const std::function<void(int col, long row, const CString& field)>& field);

}  // namespace coregui
