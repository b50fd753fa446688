#include "platform/TextLayout.h"

#include <algorithm>

namespace coregui {

namespace {

constexpr wchar_t ellipsis[] = L"...";
constexpr int ellipsisLength = 3;
constexpr int tabColumns = 8;

bool IsBreak(wchar_t c) {
  return c == L'\r' || c == L'\n';
}
bool IsBlank(wchar_t c) {
  return c == L' ' || c == L'\t';
}

// Ideographs and kana: a line may break before each.
bool BreaksAnywhere(wchar_t c) {
  return c >= 0x2E80 && c <= 0xD7A3;
}

}  // namespace

TextLayout::TextLayout(DrawTarget& target, const DrawAttributes& with, const wchar_t* text, int length,
                       int width, UINT format)
    : m_target(target), m_with(with), m_at(text), m_end(text + length), m_width(width), m_format(format) {}

int TextLayout::Width(const wchar_t* text, std::ptrdiff_t length) const {
  return m_target.TextWidth(m_with, text, static_cast<int>(length));
}

bool TextLayout::Next(TextLine* line) {
  if (m_done) {
    return false;
  }
  *line = TextLine();
  if ((m_format & DT_SINGLELINE) != 0) {
    m_done = true;
    Prepare(m_at, m_end, line);
    return true;
  }
  const wchar_t* paragraphEnd = EndOfParagraph(m_at);
  const wchar_t* lineEnd = EndOfLine(m_at, paragraphEnd);
  Prepare(m_at, lineEnd, line);
  m_at = lineEnd;
  if (lineEnd == paragraphEnd) {
    m_at = SkipBreak(m_at);
  } else {
    while (m_at != paragraphEnd && IsBlank(*m_at)) {
      ++m_at;
    }
    if (m_at == paragraphEnd) {
      m_at = SkipBreak(m_at);
    }
  }
  m_done = m_at == m_end;
  return true;
}

const wchar_t* TextLayout::EndOfParagraph(const wchar_t* from) const {
  return std::find_if(from, m_end, IsBreak);
}

const wchar_t* TextLayout::SkipBreak(const wchar_t* at) const {
  if (at == m_end) {
    return at;
  }
  const bool pair = *at == L'\r' && at + 1 != m_end && at[1] == L'\n';
  return at + (pair ? 2 : 1);
}

const wchar_t* TextLayout::EndOfLine(const wchar_t* from, const wchar_t* paragraphEnd) {
  if ((m_format & DT_WORDBREAK) == 0 || from == paragraphEnd) {
    return paragraphEnd;
  }
  const int length = static_cast<int>(paragraphEnd - from);
  const int fits = m_target.FitText(m_with, from, length, m_width);
  if (fits >= length) {
    return paragraphEnd;
  }
  // Back to a blank or between ideographs; a word that is wider than the room keeps its line, and with
  // DT_EDITCONTROL breaks within.
  const wchar_t* limit = from + fits;
  const wchar_t* end = limit;
  while (end != from && !IsBlank(*end) && !BreaksAnywhere(*end)) {
    --end;
  }
  if (end == from) {
    const bool within = (m_format & DT_EDITCONTROL) != 0 || BreaksAnywhere(*from);
    end = within ? std::max(limit, from + 1) : std::find_if(from + 1, paragraphEnd, IsBlank);
  }
  const wchar_t* trimmed = end;
  while (trimmed != from && IsBlank(trimmed[-1])) {
    --trimmed;
  }
  return trimmed == from ? end : trimmed;
}

void TextLayout::Prepare(const wchar_t* from, const wchar_t* to, TextLine* line) {
  line->text = from;
  line->length = static_cast<int>(to - from);
  const bool prefixes = (m_format & DT_NOPREFIX) == 0 && std::find(from, to, L'&') != to;
  const bool tabs = (m_format & DT_EXPANDTABS) != 0 && std::find(from, to, L'\t') != to;
  if (prefixes || tabs) {
    m_copy.clear();
    const int average = std::max<int>(1, tabs ? m_target.Metrics(m_with).tmAveCharWidth : 1);
    for (const wchar_t* c = from; c != to; ++c) {
      if (prefixes && *c == L'&') {
        if (++c == to) {
          break;
        }
        if (*c != L'&') {
          line->underlined = static_cast<int>(m_copy.size());
        }
      }
      if (tabs && *c == L'\t') {
        const int stop = average * tabColumns;
        const int space = std::max(1, Width(L" ", 1));
        const int used = Width(m_copy.data(), static_cast<std::ptrdiff_t>(m_copy.size()));
        const int gap = stop - used % stop;
        m_copy.append(static_cast<std::size_t>(std::max(1, (gap + space / 2) / space)), L' ');
      } else {
        m_copy += *c;
      }
    }
    line->text = m_copy.data();
    line->length = static_cast<int>(m_copy.size());
  }
  line->width = Width(line->text, line->length);
  if (line->width > m_width && (m_format & (DT_END_ELLIPSIS | DT_WORD_ELLIPSIS)) != 0) {
    Shorten(line);
  }
}

void TextLayout::Shorten(TextLine* line) {
  const int dots = Width(ellipsis, ellipsisLength);
  int keep = m_target.FitText(m_with, line->text, line->length, std::max(0, m_width - dots));
  if ((m_format & DT_WORD_ELLIPSIS) != 0 && (m_format & DT_END_ELLIPSIS) == 0) {
    int word = keep;
    while (word > 0 && !IsBlank(line->text[word]) && !IsBlank(line->text[word - 1])) {
      --word;
    }
    keep = word > 0 ? word : keep;
  }
  std::wstring shortened(line->text, static_cast<std::size_t>(std::max(keep, 0)));
  shortened += ellipsis;
  m_copy = std::move(shortened);
  line->text = m_copy.data();
  line->length = static_cast<int>(m_copy.size());
  line->width = Width(line->text, line->length);
  if (line->underlined >= keep) {
    line->underlined = -1;
  }
}

}  // namespace coregui
