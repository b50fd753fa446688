#include "platform/qt/PageModule.h"

#include "core/LateModule.h"

namespace coregui {

const PageDevices* LoadPageDevices() {
  static const auto devices =
      reinterpret_cast<decltype(&coregui_page_devices)>(LateFunction("pages", "coregui_page_devices"));
  return devices == nullptr ? nullptr : devices();
}

}  // namespace coregui
