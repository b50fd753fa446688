#pragma once

#include <QFont>
#include <QImage>
#include <QRawFont>
#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "platform/CFont.h"

namespace coregui {

class FontData;
class ShapedText;

/// One character drawn at one size: its advance and its coverage, in dots.
struct Glyph {
  std::int16_t advance = 0;
  std::int16_t left = 0;  ///< of the coverage, from the pen position
  std::int16_t top = 0;   ///< of the coverage, from the top of the text's cell
  std::int16_t width = 0;
  std::int16_t height = 0;
  bool loaded = false;
  bool simple = false;      ///< false: the character needs the toolkit's text layout
  bool drawn = false;       ///< whether the coverage is there
  std::uint32_t index = 0;  ///< in the font file; 0 for a blank
  /// Rows are filled up with 0 to a multiple of 4.
  int Stride() const { return (width + 3) & ~3; }
  const std::uint8_t* coverage = nullptr;  ///< rows of Stride() bytes, owned by the face; null without ink
};

/// A font at the dot size of a device. Glyphs are drawn once by the toolkit and kept. Advances are whole
/// dots, so the width of a text is the sum of its characters' and equals what drawing covers.
class FontFace {
 public:
  FontFace(const LOGFONT& font, LONG dotHeight);
  ~FontFace();
  /// The face for a selected font (null: the system's) on a device. Shared by all contexts of that device's
  /// scale.
  static std::shared_ptr<FontFace> For(const std::shared_ptr<FontData>& font, int dotsPerInch, double scale);

  const Glyph& GlyphOf(wchar_t character) {
    // By way of the unsigned type, so that a negative code is out of range as well.
    const auto code = static_cast<std::uint32_t>(static_cast<std::make_unsigned_t<wchar_t>>(character));
    if (code > 0xFFFF) {
      return m_none;
    }
    Page* page = m_pages[code >> 8].get();
    if (page == nullptr || !(*page)[code & 0xFF].loaded) {
      return Load(code);
    }
    return (*page)[code & 0xFF];
  }
  /// The same with its coverage.
  const Glyph& DrawnGlyphOf(wchar_t character) {
    const Glyph& glyph = GlyphOf(character);
    return glyph.drawn || glyph.index == 0 ? glyph : Rasterise(static_cast<std::uint32_t>(character));
  }
  const QFont& Font() const { return m_font; }
  int Ascent() const { return m_ascent; }
  int Descent() const { return m_descent; }
  int Height() const { return m_ascent + m_descent; }
  int Leading() const { return m_leading; }
  int AverageWidth() const { return m_averageWidth; }
  int MaxWidth() const { return m_maxWidth; }
  double Degrees() const { return m_degrees; }  ///< anticlockwise
  /// Underline or strike-out, which the fast path draws as rectangles: distance from the cell's top, 0 for
  /// none.
  int UnderlineTop() const { return m_underlineTop; }
  int StrikeTop() const { return m_strikeTop; }
  int LineThickness() const { return m_lineThickness; }
  /// False once the toolkit's application is gone; a later one needs a new face.
  bool IsAlive() const { return m_alive; }
  bool IsRotated() const { return m_degrees != 0.0; }
  /// A text that is not simple, shaped; kept for the next call with the same text. Valid until the next call.
  const ShapedText& Shaped(const wchar_t* text, int length);
  /// The advance in dots of a text of any kind.
  std::int64_t Width(const wchar_t* text, int length);

 private:
  using Page = std::array<Glyph, 256>;
  const Glyph& Load(std::uint32_t code);
  const Glyph& Rasterise(std::uint32_t code);
  void Outline(const QImage& picture, CPoint origin, Glyph* glyph);
  void Release();
  static std::shared_ptr<FontFace> SharedFace(const LOGFONT& font);
  void SetSize(LONG dotHeight);

  QFont m_font;
  QRawFont m_raw;
  int m_ascent = 0;
  int m_descent = 0;
  int m_leading = 0;
  int m_averageWidth = 0;
  int m_maxWidth = 0;
  int m_underlineTop = 0;
  int m_strikeTop = 0;
  int m_lineThickness = 1;
  double m_degrees = 0.0;
  Glyph m_none;
  bool m_alive = true;
  std::array<std::unique_ptr<Page>, 256> m_pages;
  std::vector<std::unique_ptr<std::uint8_t[]>> m_coverage;
  std::map<std::wstring, std::unique_ptr<ShapedText>, std::less<>> m_shaped;
};

}  // namespace coregui
