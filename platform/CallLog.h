#pragma once

#include <string>
#include <vector>

#include "platform/CDC.h"

namespace coregui {

struct DrawAttributes;

/// The calls of a recording context as lines of text.
class CallLog {
 public:
  /// One line being written: the call's name, then its arguments. Coordinates include the context's origin.
  class Line {
   public:
    Line(CallLog& log, const wchar_t* call, const DrawAttributes& with);
    /// Completes the line: raster mode and clip where they are not the usual ones.
    ~Line();
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;
    Line& Point(LONG x, LONG y);
    Line& Rect(const RECT& rect);
    Line& Number(int number);
    Line& Hex(UINT number);
    Line& Colour(COLORREF colour);
    Line& Pen();
    Line& Brush(const CBrush* brush);
    /// Text in quotes, with its colour and the selected font.
    Line& Text(const wchar_t* text, int length);

   private:
    CallLog& m_log;
    const DrawAttributes& m_with;
    std::wstring m_text;
  };

  const std::vector<std::wstring>& Lines() const { return m_lines; }
  void Clear() { m_lines.clear(); }
  /// The device's clip box, which lines do not mention.
  void SetDevice(const CRect& device) { m_device = device; }

 private:
  std::vector<std::wstring> m_lines;
  CRect m_device;
};

}  // namespace coregui
