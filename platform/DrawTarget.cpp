#include "platform/DrawTarget.h"

#include <limits>

namespace coregui {

int DrawTarget::FitText(const DrawAttributes& with, const wchar_t* text, int length, int width) {
  int fits = 0;
  int tooMany = length + 1;
  while (tooMany - fits > 1) {
    const int middle = fits + (tooMany - fits) / 2;
    (TextWidth(with, text, middle) <= width ? fits : tooMany) = middle;
  }
  return fits;
}

int DrawTarget::LogicalSize(std::int64_t dots) const {
  constexpr std::int64_t limit = std::numeric_limits<int>::max();
  const std::int64_t size =
      Scale() == 1.0 ? dots
                     : static_cast<std::int64_t>(std::ceil(static_cast<double>(dots) / Scale() - 1e-9));
  return static_cast<int>(std::min(size, limit));
}

}  // namespace coregui
