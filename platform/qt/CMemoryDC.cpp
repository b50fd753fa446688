#include "platform/CDC.h"
#include "platform/qt/BitmapData.h"
#include "platform/qt/RasterTarget.h"

namespace {

// A context on an empty bitmap draws on one dot that nobody sees.
std::shared_ptr<coregui::Surface> SurfaceOf(const CDC* like, CBitmap* bitmap) {
  if (bitmap != nullptr && bitmap->IsCreated()) {
    return bitmap->Data()->surface;
  }
  return std::make_shared<coregui::Surface>(CSize(1, 1), like != nullptr ? like->Target()->Grid() : 1.0);
}

}  // namespace

CMemoryDC::CMemoryDC(const CDC* like, CBitmap* bitmap)
    : CDC(std::make_shared<coregui::RasterTarget>(SurfaceOf(like, bitmap))) {}

CMemoryDC::~CMemoryDC() = default;
