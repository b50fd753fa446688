#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "platform/CFont.h"

namespace coregui {

class FontFace;

/// What a CFont was made from, and the faces that devices made of it so far.
class FontData {
 public:
  LOGFONT font;
  int tenthsOfPoint = 0;  ///< not 0: the size follows the device's dots per inch

  /// The height in logical pixels that the font asks for on a device; negative: of the characters.
  LONG HeightAt(int dotsPerInch) const;
  /// Faces by device: dots per inch and scale make the key. A handful at most.
  std::vector<std::pair<std::uint64_t, std::shared_ptr<FontFace>>> faces;
};

}  // namespace coregui
