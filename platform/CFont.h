#pragma once

#include "platform/CGdiObject.h"
#include "platform/CString.h"

inline constexpr int FW_NORMAL = 400;
inline constexpr int FW_BOLD = 700;

// Character sets and pitch-and-family values, with the well-known numbers.
inline constexpr BYTE ANSI_CHARSET = 0;
inline constexpr BYTE DEFAULT_CHARSET = 1;
inline constexpr BYTE SYMBOL_CHARSET = 2;
inline constexpr BYTE DEFAULT_PITCH = 0;
inline constexpr BYTE FIXED_PITCH = 1;
inline constexpr BYTE VARIABLE_PITCH = 2;
inline constexpr BYTE FF_DONTCARE = 0x00;
inline constexpr BYTE FF_ROMAN = 0x10;
inline constexpr BYTE FF_SWISS = 0x20;
inline constexpr BYTE FF_MODERN = 0x30;
inline constexpr BYTE FF_SCRIPT = 0x40;
inline constexpr BYTE FF_DECORATIVE = 0x50;

/// The wanted properties of a font.
struct LOGFONT {
  /// Negative: character height in logical pixels; positive: cell height; 0: the default size.
  LONG lfHeight = 0;
  LONG lfEscapement = 0;  ///< tenths of degrees, anticlockwise
  LONG lfWeight = FW_NORMAL;
  BYTE lfItalic = 0;
  BYTE lfUnderline = 0;
  BYTE lfStrikeOut = 0;
  BYTE lfCharSet = DEFAULT_CHARSET;
  BYTE lfPitchAndFamily = 0;
  CString lfFaceName;  ///< empty: the system's face
};

/// A font for device contexts and windows. Cheap to copy by LOGFONT; the glyph data is shared and cached.
class COREGUI_API CFont : public CGdiObject {
 public:
  CFont();
  ~CFont() override;
  /// Tenths of points and a face; the size follows the device's dots per inch (96 for the screen).
  BOOL CreatePointFont(int tenthsOfPoint, const wchar_t* face);
  BOOL CreateFontIndirect(const LOGFONT& font);
  /// The properties it was made with; false before it was made.
  bool GetLogFont(LOGFONT* font) const;
  bool IsCreated() const { return m_data != nullptr; }
  /// Internal: null before the font is made.
  const std::shared_ptr<coregui::FontData>& Data() const { return m_data; }

 private:
  std::shared_ptr<coregui::FontData> m_data;
};
