#include "grid/control/CGridFonts.h"

namespace coregui {

int CGridFonts::Add(const LOGFONT& font) {
  auto made = std::make_unique<CFont>();
  if (made->CreateFontIndirect(font) == FALSE) {
    return -1;
  }
  m_fonts.push_back(std::move(made));
  return static_cast<int>(m_fonts.size()) - 1;
}

int CGridFonts::Add(int tenthsOfPoint, const wchar_t* face) {
  auto made = std::make_unique<CFont>();
  if (made->CreatePointFont(tenthsOfPoint, face) == FALSE) {
    return -1;
  }
  m_fonts.push_back(std::move(made));
  return static_cast<int>(m_fonts.size()) - 1;
}

CFont* CGridFonts::At(int index) const {
  return index >= 0 && index < static_cast<int>(m_fonts.size())
             ? m_fonts[static_cast<std::size_t>(index)].get()
             : nullptr;
}

}  // namespace coregui
