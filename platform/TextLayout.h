#pragma once

#include <string>

#include "platform/DrawTarget.h"

namespace coregui {

/// One line of a laid out text, ready to draw.
struct TextLine {
  const wchar_t* text = nullptr;  ///< borrowed: the caller's text or the layout's own
  int length = 0;
  int width = 0;        ///< logical pixels
  int underlined = -1;  ///< the character with the access-key line, or none
};

/// Breaks a text into the lines that DrawText draws. The usual one-line text without prefixes, tabs and
/// line breaks passes through without a copy. Lines are asked for one after the other, so that drawing can
/// stop at the first line out of sight.
class TextLayout {
 public:
  /// `width`: the room in logical pixels, for word breaks and ellipses.
  TextLayout(DrawTarget& target, const DrawAttributes& with, const wchar_t* text, int length, int width,
             UINT format);
  /// The next line; false after the last.
  bool Next(TextLine* line);

 private:
  const wchar_t* EndOfParagraph(const wchar_t* from) const;
  const wchar_t* EndOfLine(const wchar_t* from, const wchar_t* paragraphEnd);
  const wchar_t* SkipBreak(const wchar_t* at) const;
  void Prepare(const wchar_t* from, const wchar_t* to, TextLine* line);
  void Shorten(TextLine* line);
  int Width(const wchar_t* text, std::ptrdiff_t length) const;

  DrawTarget& m_target;
  const DrawAttributes& m_with;
  const wchar_t* m_at;
  const wchar_t* m_end;
  int m_width;
  UINT m_format;
  bool m_done = false;
  std::wstring m_copy;
};

}  // namespace coregui
