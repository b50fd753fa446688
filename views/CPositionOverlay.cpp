#include "views/CPositionOverlay.h"

#include <algorithm>
#include <array>
#include <utility>

namespace coregui {

namespace {

constexpr COLORREF kCrossHairColour = 0x808080;
constexpr COLORREF kMeasureColour = RGB(0, 90, 200);
constexpr COLORREF kMeasureColourOnDark = RGB(120, 180, 255);

bool IsDark(COLORREF colour) {
  return 3 * GetRValue(colour) + 6 * GetGValue(colour) + GetBValue(colour) < 10 * 128;
}

COLORREF MeasureColour(COLORREF background) {
  return IsDark(background) ? kMeasureColourOnDark : kMeasureColour;
}

}  // namespace

CPositionOverlay::Label CPositionOverlay::LabelAt(CDC& window, CRect const& client, CPoint at,
                                                  const CString& text, COLORREF colour) {
  // Inside the window, wherever the position is.
  CSize size = window.GetTextExtent(text.GetString(), text.GetLength());
  size.cx += 2;
  const LONG x = std::max(client.left, std::min(at.x, client.right - size.cx));
  const LONG y = std::max(client.top, std::min(at.y - size.cy, client.bottom - size.cy));
  return {CRect(CPoint(x, y), size), text, colour};
}

void CPositionOverlay::Show(CDC& window, CSize client, const Content& content) {
  const CRect all(CPoint(), client);
  // A position far outside has no lines in sight; what stands beside it stays inside.
  const CPoint at(std::clamp<LONG>(content.at.x, -2, client.cx),
                  std::clamp<LONG>(content.at.y, -2, client.cy));
  m_shown = content;
  m_kept.clear();
  const int saved = window.SaveDC();
  std::vector<Label> labels;
  if (content.measuring) {
    // The line lies below the rest, so that what is remembered holds it.
    DrawMeasureLine(window);
    labels.push_back(
        LabelAt(window, all, at + CSize(8, 20), content.measure, MeasureColour(content.background)));
  }
  if (content.crossHair) {
    labels.push_back(
        LabelAt(window, all, at + CSize(8, -8), content.readOut, IsDark(content.background) ? 0xFFFFFF : 0));
    // Two pixels: between whole scales a line is thicker than its pixel.
    m_kept.emplace_back(0, at.y, client.cx, at.y + 2);
    m_kept.emplace_back(at.x, 0, at.x + 2, client.cy);
  }
  for (const Label& label : labels) {
    m_kept.push_back(label.place);
  }
  if (Keep(window, client)) {
    if (content.crossHair) {
      DrawCrossHair(window, client, at);
    }
    for (const Label& label : labels) {
      window.SetTextColor(label.colour);
      window.SetBkColor(content.background);
      window.ExtTextOut(label.place.left + 1, label.place.top, ETO_OPAQUE | ETO_CLIPPED, &label.place,
                        label.text.GetString(), label.text.GetLength());
    }
  }
  window.RestoreDC(saved);
}

void CPositionOverlay::DrawCrossHair(CDC& window, CSize client, CPoint at) {
  CPen pen(PS_DOT, 1, kCrossHairColour);
  const int saved = window.SaveDC();
  window.SelectObject(&pen);
  window.SetBkMode(TRANSPARENT);
  window.MoveTo(0, at.y);
  window.LineTo(client.cx, at.y);
  window.MoveTo(at.x, 0);
  window.LineTo(at.x, client.cy);
  window.RestoreDC(saved);
}

bool CPositionOverlay::Keep(CDC& window, CSize client) {
  if (m_belowSize != client || !m_below.IsCompatible(window)) {
    m_belowSize = client;
    if (m_below.CreateCompatibleBitmap(&window, client.cx, client.cy) == FALSE) {
      m_kept.clear();
      return false;
    }
  }
  CMemoryDC memory(&window, &m_below);
  for (const CRect& r : m_kept) {
    memory.BitBlt(r.left, r.top, r.Width(), r.Height(), &window, r.left, r.top, SRCCOPY);
  }
  return true;
}

void CPositionOverlay::Hide(CDC& window) {
  const std::vector<CRect> kept = std::exchange(m_kept, {});
  const bool measured = std::exchange(m_shown.measuring, false);
  if (m_below.IsCreated() && !m_below.IsCompatible(window)) {
    return;
  }
  if (!kept.empty()) {
    CMemoryDC memory(&window, &m_below);
    for (const CRect& r : kept) {
      window.BitBlt(r.left, r.top, r.Width(), r.Height(), &memory, r.left, r.top, SRCCOPY);
    }
  }
  if (measured) {
    DrawMeasureLine(window);
  }
}

void CPositionOverlay::DrawMeasureLine(CDC& window) const {
  // Exclusive-or, so that drawing it again removes it; of this colour on the plain ground.
  const int saved = window.SaveDC();
  CPen pen(PS_SOLID, 1, MeasureColour(m_shown.background) ^ m_shown.background);
  window.SelectObject(&pen);
  window.SetROP2(R2_XORPEN);
  const std::array<POINT, 2> line = {m_shown.from, m_shown.at};
  window.Polyline(line.data(), 2);
  window.RestoreDC(saved);
}

}  // namespace coregui
