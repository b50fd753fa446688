#include "platform/qt/FontFace.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextLayout>
#include <cmath>
#include <map>
#include <tuple>

#include "platform/FontData.h"
#include "platform/qt/Application.h"
#include "platform/qt/ShapedText.h"

namespace coregui {

namespace {

constexpr int systemTenthsOfPoint = 90;

struct CodeRange {
  std::uint32_t first;
  std::uint32_t last;
};

// Characters that stand alone, left to right, one glyph each. Combining marks, joining scripts, direction
// marks and variation selectors are not among them.
constexpr CodeRange simpleRanges[] = {
    {0x20, 0x7E},     {0xA0, 0xAC},     {0xAE, 0x2FF},    {0x370, 0x482},   {0x48A, 0x52F},
    {0x10A0, 0x10FF}, {0x1E00, 0x1FFF}, {0x2000, 0x200A}, {0x2010, 0x2027}, {0x202F, 0x205F},
    {0x2070, 0x20CF}, {0x2100, 0x2BFF}, {0x3000, 0x3029}, {0x3030, 0x3098}, {0x309B, 0x31BF},
    {0x31F0, 0xA4CF}, {0xAC00, 0xD7A3}, {0xF900, 0xFAFF}, {0xFF01, 0xFFEF},
};

bool IsSimple(std::uint32_t code) {
  for (const CodeRange& range : simpleRanges) {
    if (code >= range.first && code <= range.last) {
      return true;
    }
  }
  return false;
}

int Rounded(double value) {
  return static_cast<int>(std::floor(value + 0.5));
}

QFont::StyleHint HintOf(BYTE pitchAndFamily) {
  if ((pitchAndFamily & 0x03) == FIXED_PITCH) {
    return QFont::TypeWriter;
  }
  switch (pitchAndFamily & 0xF0) {
    case FF_ROMAN:
      return QFont::Serif;
    case FF_MODERN:
      return QFont::TypeWriter;
    case FF_SCRIPT:
      return QFont::Cursive;
    case FF_DECORATIVE:
      return QFont::Decorative;
    default:
      return QFont::SansSerif;
  }
}

}  // namespace

FontFace::FontFace(const LOGFONT& font, LONG dotHeight) : m_degrees(font.lfEscapement / 10.0) {
  EnsureApplication();
  if (font.lfFaceName.IsEmpty()) {
    m_font = QGuiApplication::font();
    m_font.setStyleName(QString());
  } else {
    m_font.setFamilies({QString::fromStdWString(font.lfFaceName.Str())});
    m_font.setStyleHint(HintOf(font.lfPitchAndFamily));
  }
  const LONG weight = font.lfWeight == 0 ? FW_NORMAL : font.lfWeight;
  m_font.setWeight(static_cast<QFont::Weight>(std::clamp<LONG>(weight, 1, 1000)));
  m_font.setItalic(font.lfItalic != 0);
  m_font.setUnderline(font.lfUnderline != 0);
  m_font.setStrikeOut(font.lfStrikeOut != 0);
  m_font.setKerning(false);
  m_font.setHintingPreference(QFont::PreferFullHinting);
  m_font.setStyleStrategy(
      static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  SetSize(dotHeight);
}

FontFace::~FontFace() = default;

void FontFace::SetSize(LONG dotHeight) {
  constexpr LONG largest = 4000;
  const LONG wanted = std::clamp<LONG>(dotHeight, -largest, largest);
  int em = std::max(1, static_cast<int>(std::abs(wanted)));
  if (wanted > 0) {
    m_font.setPixelSize(em);
    const QFontMetricsF metrics(m_font);
    em = std::max(
        1, Rounded(em * static_cast<double>(em) / std::max(1.0, metrics.ascent() + metrics.descent())));
  }
  m_font.setPixelSize(em);
  m_raw = QRawFont::fromFont(m_font);
  const QFontMetricsF metrics(m_font);
  m_ascent = static_cast<int>(std::ceil(metrics.ascent()));
  m_descent = static_cast<int>(std::ceil(metrics.descent()));
  m_leading = std::max(0, Rounded(metrics.leading()));
  m_averageWidth = std::max(1, Rounded(metrics.averageCharWidth()));
  m_maxWidth = std::max(1, static_cast<int>(std::ceil(metrics.maxWidth())));
  m_lineThickness = std::max(1, Rounded(metrics.lineWidth()));
  m_underlineTop = m_font.underline() ? m_ascent + std::max(1, Rounded(metrics.underlinePos())) : 0;
  m_strikeTop = m_font.strikeOut() ? m_ascent - Rounded(metrics.strikeOutPos()) : 0;
}

std::shared_ptr<FontFace> FontFace::For(const std::shared_ptr<FontData>& font, int dotsPerInch,
                                        double scale) {
  // Never destroyed: its faces may be in use as long as there is a context.
  static const std::shared_ptr<FontData>& system = *new std::shared_ptr<FontData>([] {
    CFont standard;
    standard.CreatePointFont(systemTenthsOfPoint, L"");
    return standard.Data();
  }());
  FontData& data = font != nullptr ? *font : *system;
  const std::uint64_t key = (static_cast<std::uint64_t>(dotsPerInch) << 32U) |
                            static_cast<std::uint32_t>(std::lround(scale * 4096.0));
  for (const auto& [known, face] : data.faces) {
    if (known == key && face->IsAlive()) {
      return face;
    }
  }
  LOGFONT wanted = data.font;
  LONG height = data.HeightAt(dotsPerInch);
  if (height == 0) {
    height = system->HeightAt(dotsPerInch);
  }
  wanted.lfHeight = static_cast<LONG>(std::lround(std::clamp(height * scale, -1e6, 1e6)));
  wanted.lfHeight = wanted.lfHeight == 0 ? -1 : wanted.lfHeight;
  data.faces.emplace_back(key, SharedFace(wanted));
  return data.faces.back().second;
}

std::shared_ptr<FontFace> FontFace::SharedFace(const LOGFONT& font) {
  using Key = std::tuple<std::wstring, LONG, LONG, LONG, int, BYTE>;
  static std::map<Key, std::weak_ptr<FontFace>>& faces = *new std::map<Key, std::weak_ptr<FontFace>>;
  static const bool released = [] {
    qAddPostRoutine([] {
      for (const auto& [key, known] : faces) {
        if (const std::shared_ptr<FontFace> face = known.lock()) {
          face->Release();
        }
      }
      faces.clear();
    });
    return true;
  }();
  static_cast<void>(released);
  const int style =
      (font.lfItalic != 0 ? 1 : 0) | (font.lfUnderline != 0 ? 2 : 0) | (font.lfStrikeOut != 0 ? 4 : 0);
  const Key key(font.lfFaceName.Str(), font.lfHeight, font.lfWeight, font.lfEscapement, style,
                font.lfPitchAndFamily);
  constexpr std::size_t mostKeys = 256;
  if (faces.size() >= mostKeys) {
    std::erase_if(faces, [](const auto& entry) { return entry.second.expired(); });
  }
  std::weak_ptr<FontFace>& known = faces[key];
  std::shared_ptr<FontFace> face = known.lock();
  if (face == nullptr) {
    face = std::make_shared<FontFace>(font, font.lfHeight);
    known = face;
  }
  return face;
}

const Glyph& FontFace::Load(std::uint32_t code) {
  std::unique_ptr<Page>& page = m_pages[code >> 8];
  if (page == nullptr) {
    page = std::make_unique<Page>();
  }
  Glyph& glyph = (*page)[code & 0xFF];
  glyph.loaded = true;
  // Control characters and a no-break space show as blanks.
  const bool control = code < 0x20;
  const std::uint32_t shown = control || code == 0xA0 ? 0x20 : code;
  if (IsRotated() || !IsSimple(shown)) {
    return glyph;
  }
  const QChar character(static_cast<char16_t>(shown));
  quint32 index = 0;
  int count = 1;
  if (!m_raw.glyphIndexesForChars(&character, 1, &index, &count) || count != 1 || index == 0) {
    return glyph;
  }
  glyph.simple = true;
  QPointF advance;
  m_raw.advancesForGlyphIndexes(&index, &advance, 1, QRawFont::SeparateAdvances);
  glyph.advance = static_cast<std::int16_t>(std::clamp(Rounded(advance.x()), 0, 32767));
  glyph.index = shown != 0x20 ? index : 0;
  return glyph;
}

const Glyph& FontFace::Rasterise(std::uint32_t code) {
  Glyph& glyph = (*m_pages[code >> 8])[code & 0xFF];
  glyph.drawn = true;
  const QRectF bounds = m_raw.boundingRect(glyph.index);
  constexpr int margin = 3;
  const int originX = margin + static_cast<int>(std::ceil(std::max(0.0, -bounds.left())));
  const int originY = margin + std::max(m_ascent, static_cast<int>(std::ceil(std::max(0.0, -bounds.top()))));
  const int width = originX + margin + static_cast<int>(std::ceil(std::max(0.0, bounds.right())));
  const int height = originY + margin + static_cast<int>(std::ceil(std::max(0.0, bounds.bottom())));
  QImage picture(width, height, QImage::Format_ARGB32_Premultiplied);
  if (picture.isNull()) {
    return glyph;
  }
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setPen(Qt::black);
  QGlyphRun run;
  run.setRawFont(m_raw);
  run.setGlyphIndexes({glyph.index});
  run.setPositions({QPointF(0, 0)});
  painter.drawGlyphRun(QPointF(originX, originY), run);
  painter.end();
  Outline(picture, CPoint(originX, originY), &glyph);
  return glyph;
}

// Keeps the part of the picture that has ink; the pen stood at `origin` on the baseline.
void FontFace::Outline(const QImage& picture, CPoint origin, Glyph* glyph) {
  const auto alpha = [&picture](int x, int y) {
    return static_cast<std::uint8_t>(qAlpha(reinterpret_cast<const QRgb*>(picture.constScanLine(y))[x]));
  };
  QRect box;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      box |= alpha(x, y) != 0 ? QRect(x, y, 1, 1) : QRect();
    }
  }
  if (box.isEmpty()) {
    return;
  }
  glyph->width = static_cast<std::int16_t>(box.width());
  glyph->height = static_cast<std::int16_t>(box.height());
  const int stride = glyph->Stride();
  m_coverage.push_back(std::make_unique<std::uint8_t[]>(static_cast<std::size_t>(stride) * box.height()));
  std::uint8_t* out = m_coverage.back().get();
  glyph->coverage = out;
  for (int y = 0; y < box.height(); ++y) {
    for (int x = 0; x < box.width(); ++x) {
      out[y * stride + x] = alpha(box.left() + x, box.top() + y);
    }
  }
  glyph->left = static_cast<std::int16_t>(box.left() - origin.x);
  glyph->top = static_cast<std::int16_t>(box.top() - origin.y + m_ascent);
}

// The toolkit's fonts must not outlive its application. What is left measures nothing and draws nothing.
void FontFace::Release() {
  m_alive = false;
  m_shaped.clear();
  m_raw = QRawFont();
  m_font = QFont();
  for (std::unique_ptr<Page>& page : m_pages) {
    page.reset();
  }
}

const ShapedText& FontFace::Shaped(const wchar_t* text, int length) {
  constexpr std::size_t mostKept = 1024;
  constexpr int longestKept = 4096;
  const std::wstring_view wanted(text, static_cast<std::size_t>(length));
  const auto found = m_shaped.find(wanted);
  if (found != m_shaped.end()) {
    return *found->second;
  }
  // A long text takes the place of the one before it, under a name that no text has.
  const bool keeps = length > 0 && length <= longestKept;
  if (keeps && m_shaped.size() >= mostKept) {
    m_shaped.clear();
  }
  std::unique_ptr<ShapedText>& shaped = m_shaped[keeps ? std::wstring(wanted) : std::wstring()];
  shaped = std::make_unique<ShapedText>(m_font, text, length);
  return *shaped;
}

std::int64_t FontFace::Width(const wchar_t* text, int length) {
  std::int64_t width = 0;
  for (int i = 0; i < length; ++i) {
    const Glyph& glyph = GlyphOf(text[i]);
    if (!glyph.simple) {
      return Shaped(text, length).Width();
    }
    width += glyph.advance;
  }
  return width;
}

}  // namespace coregui
