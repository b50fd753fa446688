#include "platform/CFont.h"

#include <cmath>

#include "platform/FontData.h"

namespace coregui {

LONG FontData::HeightAt(int dotsPerInch) const {
  if (tenthsOfPoint == 0) {
    return font.lfHeight;
  }
  constexpr double tenthsPerInch = 720.0;
  return static_cast<LONG>(-std::floor(std::fabs(tenthsOfPoint) * dotsPerInch / tenthsPerInch + 0.5));
}

}  // namespace coregui

CFont::CFont() = default;
CFont::~CFont() = default;

BOOL CFont::CreatePointFont(int tenthsOfPoint, const wchar_t* face) {
  m_data = std::make_shared<coregui::FontData>();
  m_data->tenthsOfPoint = tenthsOfPoint;
  m_data->font.lfFaceName = face;
  return TRUE;
}

BOOL CFont::CreateFontIndirect(const LOGFONT& font) {
  m_data = std::make_shared<coregui::FontData>();
  m_data->font = font;
  return TRUE;
}

bool CFont::GetLogFont(LOGFONT* font) const {
  if (m_data == nullptr) {
    return false;
  }
  constexpr int screenDotsPerInch = 96;
  *font = m_data->font;
  font->lfHeight = m_data->HeightAt(screenDotsPerInch);
  return true;
}
