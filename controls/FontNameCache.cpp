#include "controls/FontNameCache.h"

#include "platform/FontFamilies.h"

namespace coregui {

FontNameCache& FontNameCache::Get() {
  static FontNameCache cache;
  return cache;
}

int FontNameCache::Build() {
  return static_cast<int>(Families().size());
}

void FontNameCache::Clear() {
  m_families.clear();
  m_samples.clear();
  m_built = false;
}

const std::vector<FontNameCache::Family>& FontNameCache::Families() {
  if (!m_built) {
    m_built = true;
    EnumFontFamilies([this](const LOGFONT& font) {
      const CString& name = font.lfFaceName;
      const bool usable = !name.IsEmpty() && name[0] != L'@';
      if (usable && (m_families.empty() || m_families.back().name != name)) {
        m_families.push_back({name, font.lfCharSet == SYMBOL_CHARSET});
      }
      return true;
    });
  }
  return m_families;
}

CFont* FontNameCache::Sample(const CString& family, int height) {
  CFont& font = m_samples[{family, height}];
  if (!font.IsCreated()) {
    LOGFONT wanted;
    wanted.lfHeight = -height;
    wanted.lfFaceName = family;
    font.CreateFontIndirect(wanted);
  }
  return &font;
}

}  // namespace coregui
