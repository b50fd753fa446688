#pragma once

#include <memory>
#include <vector>

#include "platform/CFont.h"

namespace coregui {

/// The fonts that a grid owns, by index. A font lives as long as the grid, as cells refer to it.
class CGridFonts {
 public:
  /// The index of a new font, -1 when it could not be made.
  int Add(const LOGFONT& font);
  int Add(int tenthsOfPoint, const wchar_t* face);
  /// Null when there is no such font.
  CFont* At(int index) const;

 private:
  std::vector<std::unique_ptr<CFont>> m_fonts;
};

}  // namespace coregui
