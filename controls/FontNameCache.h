#pragma once

#include <functional>
#include <map>
#include <vector>

#include "core/Export.h"
#include "platform/CFont.h"
#include "platform/CString.h"

namespace coregui {

/// The font families of the screen, looked up once for the whole program, and a sample font of each, made
/// when it is first drawn. Used by the windows' thread only.
class COREGUI_API FontNameCache {
 public:
  struct Family {
    CString name;
    bool symbols = false;  ///< its glyphs are no letters: the name cannot be read in it
  };

  static FontNameCache& Get();

  /// Looks the families up; a second call does nothing. Returns how many there are.
  int Build();
  /// Looks them up again at the next use. No font combo box may be drawn in between.
  void Clear();
  /// In alphabetical order, each name once, without those for vertical text ('@' in front). Builds the cache
  /// when that was not done at the start.
  const std::vector<Family>& Families();
  /// The font to draw a sample of a family in, `height` pixels high. Borrowed: lives until Clear.
  CFont* Sample(const CString& family, int height);

 private:
  std::vector<Family> m_families;
  std::map<std::pair<CString, int>, CFont> m_samples;
  bool m_built = false;
};

}  // namespace coregui
