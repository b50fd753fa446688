#include "platform/CDC.h"
#include "platform/CWnd.h"
#include "platform/RecordingTarget.h"
#include "platform/WindowDevice.h"
#include "platform/WindowState.h"

namespace coregui {

std::shared_ptr<DrawTarget> WindowDevice(CWnd* window) {
  if (window != nullptr && window->State().native != nullptr) {
    if (std::shared_ptr<DrawTarget> target = window->State().native->Target()) {
      return target;
    }
  }
  return std::make_shared<RecordingTarget>(CSize(1, 1), CSize(), false);
}

}  // namespace coregui

CClientDC::CClientDC(CWnd* window) : CDC(coregui::WindowDevice(window)) {}

CClientDC::~CClientDC() = default;

bool CClientDC::IsValid() const {
  return !(Target()->Dots() == CSize());
}
