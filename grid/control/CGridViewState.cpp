#include "grid/control/CGridViewState.h"

#include "grid/control/SystemLook.h"
#include "platform/System.h"

namespace coregui {

CGridViewState::CGridViewState()
    : vScrollWidth(GetSystemMetrics(SM_CXVSCROLL)),
      hScrollHeight(GetSystemMetrics(SM_CYHSCROLL)),
      margin(ScaleByDpi(4)),
      gridLinePen(PS_SOLID, 1, SystemLook::Read().gridLine),
      arrowCursor(LoadSystemCursor(SystemCursor::arrow)),
      horizontalSizingCursor(LoadSystemCursor(SystemCursor::sizeWE)),
      verticalSizingCursor(LoadSystemCursor(SystemCursor::sizeNS)) {}

}  // namespace coregui
