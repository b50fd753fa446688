#pragma once

#include <memory>

#include "platform/CBitmap.h"
#include "platform/qt/Surface.h"

namespace coregui {

/// The dots of a CBitmap.
class BitmapData {
 public:
  explicit BitmapData(std::shared_ptr<Surface> dots) : surface(std::move(dots)) {}
  std::shared_ptr<Surface> surface;
};

}  // namespace coregui
