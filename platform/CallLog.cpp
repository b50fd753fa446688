#include "platform/CallLog.h"

#include <cwchar>

#include "platform/DrawTarget.h"

namespace coregui {

CallLog::Line::Line(CallLog& log, const wchar_t* call, const DrawAttributes& with)
    : m_log(log), m_with(with), m_text(call) {}

CallLog::Line::~Line() {
  if (m_with.rop != R2_COPYPEN) {
    m_text += L" rop" + std::to_wstring(m_with.rop);
  }
  if (!(m_with.clip.box == m_log.m_device)) {
    const CRect& box = m_with.clip.box;
    m_text += L" clip " + std::to_wstring(box.left) + L',' + std::to_wstring(box.top) + L',' +
              std::to_wstring(box.right) + L',' + std::to_wstring(box.bottom);
  }
  m_log.m_lines.push_back(std::move(m_text));
}

CallLog::Line& CallLog::Line::Point(LONG x, LONG y) {
  m_text += L' ' + std::to_wstring(static_cast<std::int64_t>(x) + m_with.origin.x) + L',' +
            std::to_wstring(static_cast<std::int64_t>(y) + m_with.origin.y);
  return *this;
}

CallLog::Line& CallLog::Line::Rect(const RECT& rect) {
  Point(rect.left, rect.top);
  m_text += L',' + std::to_wstring(static_cast<std::int64_t>(rect.right) + m_with.origin.x) + L',' +
            std::to_wstring(static_cast<std::int64_t>(rect.bottom) + m_with.origin.y);
  return *this;
}

CallLog::Line& CallLog::Line::Number(int number) {
  m_text += L' ' + std::to_wstring(number);
  return *this;
}

CallLog::Line& CallLog::Line::Hex(UINT number) {
  wchar_t buffer[16];
  std::swprintf(buffer, 16, L" 0x%X", number);
  m_text += buffer;
  return *this;
}

CallLog::Line& CallLog::Line::Colour(COLORREF colour) {
  wchar_t buffer[16];
  std::swprintf(buffer, 16, L" #%02X%02X%02X", GetRValue(colour), GetGValue(colour), GetBValue(colour));
  m_text += buffer;
  return *this;
}

CallLog::Line& CallLog::Line::Pen() {
  if (m_with.pen->GetStyle() == PS_NULL) {
    m_text += L" nopen";
    return *this;
  }
  Colour(m_with.pen->GetColor());
  if (m_with.pen->GetWidth() != 1) {
    m_text += L" w" + std::to_wstring(m_with.pen->GetWidth());
  }
  if (m_with.pen->GetStyle() != PS_SOLID) {
    m_text += L" style" + std::to_wstring(m_with.pen->GetStyle());
  }
  return *this;
}

CallLog::Line& CallLog::Line::Brush(const CBrush* brush) {
  if (brush == nullptr || brush->GetKind() == CBrush::Kind::none) {
    m_text += L" nobrush";
    return *this;
  }
  if (brush->GetKind() == CBrush::Kind::hatched) {
    m_text += L" hatch" + std::to_wstring(brush->GetHatch());
  }
  return Colour(brush->GetColor());
}

CallLog::Line& CallLog::Line::Text(const wchar_t* text, int length) {
  Colour(m_with.textColour);
  LOGFONT font;
  if (m_with.font != nullptr && m_with.font->GetLogFont(&font)) {
    m_text += L" font \"" + font.lfFaceName.Str() + L"\"," + std::to_wstring(font.lfHeight) + L',' +
              std::to_wstring(font.lfWeight);
    m_text += font.lfItalic != 0 ? L",italic" : L"";
  }
  m_text += L" \"";
  for (int i = 0; i < length; ++i) {
    switch (text[i]) {
      case L'\n':
        m_text += L"\\n";
        break;
      case L'\r':
        m_text += L"\\r";
        break;
      case L'\t':
        m_text += L"\\t";
        break;
      case L'"':
        m_text += L"\\\"";
        break;
      case L'\\':
        m_text += L"\\\\";
        break;
      default:
        m_text += text[i];
    }
  }
  m_text += L'"';
  return *this;
}

}  // namespace coregui
