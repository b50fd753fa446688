#include <utility>

#include "platform/CDC.h"
#include "platform/DrawTarget.h"

// What a context draws with, and where it may.

using coregui::DrawAttributes;
using coregui::Saturated;

namespace {

struct StockObjects {
  CPen blackPen{PS_SOLID, 1, RGB(0, 0, 0)};
  CPen whitePen{PS_SOLID, 1, RGB(255, 255, 255)};
  CPen nullPen{PS_NULL, 1, 0};
  CBrush nullBrush;
  CBrush whiteBrush{RGB(255, 255, 255)};
  CBrush blackBrush{RGB(0, 0, 0)};
};

StockObjects& Stock() {
  static auto& objects = *new StockObjects;  // never destroyed: see WindowRegistry.cpp
  return objects;
}

}  // namespace

CDC::CDC(std::shared_ptr<coregui::DrawTarget> target)
    : m_target(std::move(target)), m_state(std::make_unique<coregui::DrawState>()) {
  m_state->log = m_target->Log();
  m_state->base.box = CRect(CPoint(), m_target->Dots());
  m_state->now.pen = &Stock().blackPen;
  m_state->now.brush = &Stock().whiteBrush;
  m_state->now.clip = m_state->base;
}

CDC::~CDC() = default;

int CDC::SaveDC() {
  m_state->saved.push_back(m_state->now);
  return static_cast<int>(m_state->saved.size());
}

BOOL CDC::RestoreDC(int saved) {
  const int count = static_cast<int>(m_state->saved.size());
  const int level = saved < 0 ? count + 1 + saved : saved;
  if (level < 1 || level > count) {
    return FALSE;
  }
  m_state->now = std::move(m_state->saved[static_cast<std::size_t>(level - 1)]);
  m_state->saved.resize(static_cast<std::size_t>(level - 1));
  return TRUE;
}

CPen* CDC::SelectObject(CPen* pen) {
  return std::exchange(m_state->now.pen, pen != nullptr ? pen : &Stock().blackPen);
}

CBrush* CDC::SelectObject(CBrush* brush) {
  return std::exchange(m_state->now.brush, brush != nullptr ? brush : &Stock().whiteBrush);
}

CFont* CDC::SelectObject(CFont* font) {
  return std::exchange(m_state->now.font, font);
}

void CDC::SelectStockObject(StockObject object) {
  switch (object) {
    case StockObject::blackPen:
    case StockObject::whitePen:
    case StockObject::nullPen:
      m_state->now.pen = GetStockPen(object);
      break;
    case StockObject::nullBrush:
      m_state->now.brush = &Stock().nullBrush;
      break;
    case StockObject::whiteBrush:
      m_state->now.brush = &Stock().whiteBrush;
      break;
    case StockObject::blackBrush:
      m_state->now.brush = &Stock().blackBrush;
      break;
    case StockObject::systemFont:
      m_state->now.font = nullptr;
      break;
  }
}

CPen* CDC::GetStockPen(StockObject object) {
  switch (object) {
    case StockObject::whitePen:
      return &Stock().whitePen;
    case StockObject::nullPen:
      return &Stock().nullPen;
    default:
      return &Stock().blackPen;
  }
}

CPen* CDC::GetCurrentPen() const {
  return m_state->now.pen;
}
CFont* CDC::GetCurrentFont() const {
  return m_state->now.font;
}
COLORREF CDC::SetTextColor(COLORREF colour) {
  return std::exchange(m_state->now.textColour, colour);
}
COLORREF CDC::GetTextColor() const {
  return m_state->now.textColour;
}
COLORREF CDC::SetBkColor(COLORREF colour) {
  return std::exchange(m_state->now.backColour, colour);
}
COLORREF CDC::GetBkColor() const {
  return m_state->now.backColour;
}
int CDC::SetBkMode(int mode) {
  return std::exchange(m_state->now.backMode, mode);
}
int CDC::GetBkMode() const {
  return m_state->now.backMode;
}
int CDC::SetROP2(int mode) {
  return std::exchange(m_state->now.rop, mode);
}
int CDC::GetROP2() const {
  return m_state->now.rop;
}
UINT CDC::SetTextAlign(UINT align) {
  return std::exchange(m_state->now.align, align);
}
bool CDC::SetAntiAliasing(bool on) {
  return std::exchange(m_state->now.smooth, on);
}
CPoint CDC::SetViewportOrg(int x, int y) {
  return std::exchange(m_state->now.origin, CPoint(x, y));
}
CPoint CDC::GetViewportOrg() const {
  return m_state->now.origin;
}
int CDC::GetDeviceCaps(int index) const {
  return m_target->Capability(index);
}
double CDC::GetScaleFactor() const {
  return m_target->Scale();
}

// --- Clipping

void CDC::IntersectClipRect(const RECT& rect) {
  CRect& box = m_state->now.clip.box;
  box.IntersectRect(box, m_target->DotRect(m_state->now, rect));
}

void CDC::ExcludeClipRect(const RECT& rect) {
  coregui::Clip& clip = m_state->now.clip;
  coregui::Region left;
  clip.ForEach(clip.box, [&left](const CRect& piece) { left.Add(piece); });
  left.Subtract(m_target->DotRect(m_state->now, rect));
  clip.box = left.Bounds();
  clip.region = std::make_shared<const coregui::Region>(std::move(left));
}

void CDC::SelectClipRect(const RECT* rect) {
  m_state->now.clip = m_state->base;
  if (rect != nullptr) {
    IntersectClipRect(*rect);
  }
}

void CDC::SetBaseRegion(std::shared_ptr<const coregui::Region> region) {
  m_state->base.box.IntersectRect(m_state->base.box, region->Bounds());
  m_state->base.region = region->Rects().size() > 1 ? std::move(region) : nullptr;
  m_state->now.clip = m_state->base;
}

bool CDC::GetClipBox(RECT* rect) const {
  const DrawAttributes& now = m_state->now;
  CRect bounds;
  now.clip.ForEach(now.clip.box, [&bounds](const CRect& piece) { bounds.UnionRect(bounds, piece); });
  if (bounds.IsRectEmpty()) {
    *rect = CRect();
    return false;
  }
  const auto logical = [](const coregui::DotAxis& axis, LONG dot) {
    return static_cast<LONG>(std::floor(axis.PixelsTo(dot) + 0.5));
  };
  const auto& [x, y] = m_target->Grid();
  const auto without = [](std::int64_t device, LONG origin) { return Saturated(device - origin); };
  *rect = CRect(without(logical(x, bounds.left), now.origin.x), without(logical(y, bounds.top), now.origin.y),
                without(logical(x, bounds.right), now.origin.x),
                without(logical(y, bounds.bottom), now.origin.y));
  return true;
}

bool CDC::RectVisible(const RECT& rect) const {
  bool visible = false;
  m_state->now.clip.ForEach(m_target->DotRect(m_state->now, rect),
                            [&visible](const CRect&) { visible = true; });
  return visible;
}
