#include "grid/control/CGridRows.h"

#include "platform/System.h"

namespace coregui {

CGridRows::CGridRows() {
  SetDefaultSize(ScaleByDpi(20));
}

void CGridRows::SetRowCount(long count) {
  if (count > maxOwnHeights) {
    SetUniform(true);
  }
  SetCount(count);
}

}  // namespace coregui
