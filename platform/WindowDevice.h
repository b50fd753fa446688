#pragma once

#include <memory>

class CWnd;

namespace coregui {

class DrawTarget;

/// What a window's contexts draw on. A window without a surface has a device without dots.
std::shared_ptr<DrawTarget> WindowDevice(CWnd* window);

}  // namespace coregui
