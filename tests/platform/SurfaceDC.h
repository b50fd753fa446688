#pragma once

#include <memory>
#include <utility>

#include "platform/CDC.h"
#include "platform/qt/RasterTarget.h"

namespace coregui::test {

/// A context on a surface of its own.
template <typename Device>
class TargetDC : public CDC {
 public:
  explicit TargetDC(std::shared_ptr<coregui::Surface> surface)
      : CDC(std::make_shared<Device>(std::move(surface))) {}
};

using SurfaceDC = TargetDC<coregui::RasterTarget>;

}  // namespace coregui::test
