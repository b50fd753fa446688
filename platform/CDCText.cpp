// The text operations of CDC.

#include <cwchar>
#include <limits>

#include "platform/CDC.h"
#include "platform/CallLog.h"
#include "platform/DrawTarget.h"
#include "platform/TextLayout.h"

using coregui::CallLog;
using coregui::DrawAttributes;
using coregui::Saturated;

namespace {

constexpr UINT horizontalAlign = TA_RIGHT | TA_CENTER;

// The characters to draw: a negative count means up to the terminator.
int CountOf(const wchar_t* text, int length) {
  if (text == nullptr) {
    return 0;
  }
  if (length >= 0) {
    return length;
  }
  constexpr std::size_t limit = std::numeric_limits<int>::max();
  return static_cast<int>(std::min(std::wcslen(text), limit));
}

/// Where something of a size begins between two ends: at the first one unless it is to stand at the last one
/// or in the middle.
LONG Aligned(std::int64_t first, std::int64_t last, int size, bool atLast, bool inMiddle) {
  if (atLast) return Saturated(last - size);
  return Saturated(inMiddle ? first + (last - first - size) / 2 : first);
}

LONG LineStart(const RECT& rect, int width, UINT format) {
  return Aligned(rect.left, rect.right, width, (format & DT_RIGHT) != 0, (format & DT_CENTER) != 0);
}

LONG SingleLineTop(const RECT& rect, int height, UINT format) {
  return Aligned(rect.top, rect.bottom, height, (format & DT_BOTTOM) != 0, (format & DT_VCENTER) != 0);
}

}  // namespace

CSize CDC::GetTextExtent(const wchar_t* text, int length) const {
  const int count = CountOf(text, length);
  const int width = count > 0 ? m_target->TextWidth(m_state->now, text, count) : 0;
  return {width, m_target->Metrics(m_state->now).tmHeight};
}

void CDC::GetTextMetrics(TEXTMETRIC* metrics) const {
  *metrics = m_target->Metrics(m_state->now);
}

void CDC::PutText(int x, int y, const wchar_t* text, int length) {
  const DrawAttributes& now = m_state->now;
  if (now.backMode == OPAQUE) {
    const CSize size = GetTextExtent(text, length);
    m_target->Fill(now,
                   CRect(x, y, Saturated(std::int64_t{x} + size.cx), Saturated(std::int64_t{y} + size.cy)),
                   now.backColour);
  }
  m_target->Text(now, x, y, text, length);
}

CPoint CDC::AlignedStart(int x, int y, const wchar_t* text, int length) {
  const UINT align = m_state->now.align;
  if (align == (TA_LEFT | TA_TOP)) {
    return {x, y};
  }
  std::int64_t left = x;
  std::int64_t top = y;
  if ((align & horizontalAlign) != 0) {
    const int width = m_target->TextWidth(m_state->now, text, length);
    left -= (align & horizontalAlign) == TA_CENTER ? width / 2 : width;
  }
  const TEXTMETRIC metrics = m_target->Metrics(m_state->now);
  if ((align & TA_BASELINE) == TA_BASELINE) {
    top -= metrics.tmAscent;
  } else if ((align & TA_BOTTOM) != 0) {
    top -= metrics.tmHeight;
  }
  return {Saturated(left), Saturated(top)};
}

void CDC::TextOut(int x, int y, const wchar_t* text, int length) {
  const int count = CountOf(text, length);
  if (count == 0) {
    return;
  }
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"TextOut", m_state->now).Point(x, y).Text(text, count);
    return;
  }
  const CPoint start = AlignedStart(x, y, text, count);
  PutText(start.x, start.y, text, count);
}

void CDC::ExtTextOut(int x, int y, UINT options, const RECT* rect, const wchar_t* text, int length) {
  const int count = CountOf(text, length);
  DrawAttributes& now = m_state->now;
  if (m_state->log != nullptr) {
    CallLog::Line line(*m_state->log, L"ExtTextOut", now);
    line.Point(x, y).Hex(options).Rect(rect != nullptr ? *rect : RECT()).Text(text, count);
    return;
  }
  if (rect != nullptr && (options & ETO_OPAQUE) != 0) {
    m_target->Fill(now, *rect, now.backColour);
  }
  if (count == 0) {
    return;
  }
  const CPoint start = AlignedStart(x, y, text, count);
  if (rect == nullptr || (options & ETO_CLIPPED) == 0) {
    PutText(start.x, start.y, text, count);
    return;
  }
  const CRect before = now.clip.box;
  if (now.clip.box.IntersectRect(before, m_target->DotRect(now, *rect))) {
    PutText(start.x, start.y, text, count);
  }
  now.clip.box = before;
}

int CDC::DrawText(const wchar_t* text, int length, RECT* rect, UINT format) {
  if (rect == nullptr) {
    return 0;
  }
  const int count = CountOf(text, length);
  DrawAttributes& now = m_state->now;
  const bool calculate = (format & DT_CALCRECT) != 0;
  if (m_state->log != nullptr && !calculate) {
    CallLog::Line(*m_state->log, L"DrawText", now).Rect(*rect).Hex(format).Text(text, count);
  }
  if (count == 0) {
    if (calculate) {
      rect->right = rect->left;
      rect->bottom = rect->top;
    }
    return 0;
  }
  return LayText(text, count, rect, format);
}

int CDC::LayText(const wchar_t* text, int count, RECT* rect, UINT format) {
  DrawAttributes& now = m_state->now;
  const bool calculate = (format & DT_CALCRECT) != 0;
  const bool draws = !calculate && m_state->log == nullptr;
  const int lineHeight = m_target->Metrics(now).tmHeight;
  const CRect before = now.clip.box;
  if (draws && (format & DT_NOCLIP) == 0) {
    now.clip.box.IntersectRect(before, m_target->DotRect(now, *rect));
  }
  const int room = Saturated(std::int64_t{rect->right} - rect->left);
  coregui::TextLayout layout(*m_target, now, text, count, room, format);
  coregui::TextLine line;
  const bool single = (format & DT_SINGLELINE) != 0;
  std::int64_t y = single ? SingleLineTop(*rect, lineHeight, format) : rect->top;
  const std::int64_t first = y;
  int widest = 0;
  while (layout.Next(&line)) {
    if (draws && !now.clip.box.IsRectEmpty()) {
      PutLine(line, LineStart(*rect, line.width, format), Saturated(y));
    }
    widest = std::max(widest, line.width);
    y += lineHeight;
  }
  now.clip.box = before;
  if (calculate) {
    rect->right = Saturated(std::int64_t{rect->left} + widest);
    rect->bottom = Saturated(std::int64_t{rect->top} + (y - first));
  }
  // With a vertical alignment the result counts from the rectangle's top, as the well-known call does.
  return Saturated(single && !calculate ? y - rect->top : y - first);
}

void CDC::PutLine(const coregui::TextLine& line, int x, int y) {
  PutText(x, y, line.text, line.length);
  if (line.underlined < 0) {
    return;
  }
  const DrawAttributes& now = m_state->now;
  const std::int64_t left = std::int64_t{x} + m_target->TextWidth(now, line.text, line.underlined);
  const std::int64_t right = std::int64_t{x} + m_target->TextWidth(now, line.text, line.underlined + 1);
  const std::int64_t top = std::int64_t{y} + m_target->Metrics(now).tmAscent + 1;
  m_target->Fill(now, CRect(Saturated(left), Saturated(top), Saturated(right), Saturated(top + 1)),
                 now.textColour);
}
