#include "platform/qt/ScrollCodes.h"

#include <QAbstractSlider>

#include "platform/CWnd.h"

namespace coregui {

int ScrollCodeOf(int sliderAction) {
  switch (sliderAction) {
    case QAbstractSlider::SliderSingleStepAdd:
      return SB_LINEDOWN;
    case QAbstractSlider::SliderSingleStepSub:
      return SB_LINEUP;
    case QAbstractSlider::SliderPageStepAdd:
      return SB_PAGEDOWN;
    case QAbstractSlider::SliderPageStepSub:
      return SB_PAGEUP;
    case QAbstractSlider::SliderToMinimum:
      return SB_TOP;
    case QAbstractSlider::SliderToMaximum:
      return SB_BOTTOM;
    default:
      return SB_THUMBTRACK;
  }
}

void TellScroll(const CWnd& control, bool vertical, int code, int position) {
  CWnd* parent = control.GetParent();
  if (parent == nullptr || !control.HasWindow()) return;
  parent->SendMessage(vertical ? WM_VSCROLL : WM_HSCROLL, MAKEWPARAM(code, position),
                      reinterpret_cast<LPARAM>(control.GetSafeHwnd()));
}

}  // namespace coregui
