#include "platform/CDC.h"

#include <utility>

#include "platform/CallLog.h"
#include "platform/DrawTarget.h"

using coregui::CallLog;
using coregui::DrawAttributes;
using coregui::Saturated;
using coregui::Shape;

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
  static StockObjects objects;
  return objects;
}

// A rectangle whose far edges stop at the end of the number range.
CRect RectAt(LONG x, LONG y, CSize size) {
  return {x, y, Saturated(std::int64_t{x} + size.cx), Saturated(std::int64_t{y} + size.cy)};
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

// --- State

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
  const double scale = m_target->Scale();
  const auto logical = [scale](LONG dot) { return static_cast<LONG>(std::floor(dot / scale + 0.5)); };
  const auto without = [](std::int64_t device, LONG origin) { return Saturated(device - origin); };
  *rect = CRect(without(logical(bounds.left), now.origin.x), without(logical(bounds.top), now.origin.y),
                without(logical(bounds.right), now.origin.x), without(logical(bounds.bottom), now.origin.y));
  return true;
}

bool CDC::RectVisible(const RECT& rect) const {
  bool visible = false;
  m_state->now.clip.ForEach(m_target->DotRect(m_state->now, rect),
                            [&visible](const CRect&) { visible = true; });
  return visible;
}

// --- Lines and shapes

CPoint CDC::MoveTo(int x, int y) {
  return std::exchange(m_state->now.position, CPoint(x, y));
}

void CDC::LineTo(int x, int y) {
  DrawAttributes& now = m_state->now;
  const POINT points[] = {now.position, POINT{x, y}};
  now.position = CPoint(x, y);
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"LineTo", now).Point(points[0].x, points[0].y).Point(x, y).Pen();
    return;
  }
  m_target->Polyline(now, points, 2);
}

void CDC::Polyline(const POINT* points, int count) {
  if (points == nullptr || count < 2) {
    return;
  }
  if (m_state->log != nullptr) {
    CallLog::Line line(*m_state->log, L"Polyline", m_state->now);
    for (int i = 0; i < count; ++i) {
      line.Point(points[i].x, points[i].y);
    }
    line.Pen();
    return;
  }
  m_target->Polyline(m_state->now, points, count);
}

void CDC::PolyPolyline(const POINT* points, const DWORD* counts, int polylines) {
  for (int i = 0; i < polylines; ++i) {
    Polyline(points, static_cast<int>(counts[i]));
    points += counts[i];
  }
}

void CDC::PolylineF(const double* xy, int count) {
  if (xy == nullptr || count < 2) {
    return;
  }
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"PolylineF", m_state->now).Number(count).Pen();
    return;
  }
  m_target->PolylineF(m_state->now, xy, count);
}

void CDC::Polygon(const POINT* points, int count) {
  if (points == nullptr || count < 2) {
    return;
  }
  if (m_state->log != nullptr) {
    CallLog::Line line(*m_state->log, L"Polygon", m_state->now);
    for (int i = 0; i < count; ++i) {
      line.Point(points[i].x, points[i].y);
    }
    line.Pen().Brush(m_state->now.brush);
    return;
  }
  m_target->Polygon(m_state->now, points, count);
}

void CDC::Rectangle(const RECT& rect) {
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"Rectangle", m_state->now).Rect(rect).Pen().Brush(m_state->now.brush);
    return;
  }
  m_target->DrawShape(m_state->now, Shape::rectangle, rect, {});
}

void CDC::RoundRect(const RECT& rect, int cornerWidth, int cornerHeight) {
  if (m_state->log != nullptr) {
    CallLog::Line line(*m_state->log, L"RoundRect", m_state->now);
    line.Rect(rect).Number(cornerWidth).Number(cornerHeight).Pen().Brush(m_state->now.brush);
    return;
  }
  m_target->DrawShape(m_state->now, Shape::roundRectangle, rect, {CSize(cornerWidth, cornerHeight), {}, {}});
}

void CDC::Ellipse(const RECT& rect) {
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"Ellipse", m_state->now).Rect(rect).Pen().Brush(m_state->now.brush);
    return;
  }
  m_target->DrawShape(m_state->now, Shape::ellipse, rect, {});
}

void CDC::Arc(const RECT& rect, POINT start, POINT end) {
  if (m_state->log != nullptr) {
    CallLog::Line line(*m_state->log, L"Arc", m_state->now);
    line.Rect(rect).Point(start.x, start.y).Point(end.x, end.y).Pen();
    return;
  }
  m_target->DrawShape(m_state->now, Shape::arc, rect, {{}, start, end});
}

void CDC::Pie(const RECT& rect, POINT start, POINT end) {
  if (m_state->log != nullptr) {
    CallLog::Line line(*m_state->log, L"Pie", m_state->now);
    line.Rect(rect).Point(start.x, start.y).Point(end.x, end.y).Pen().Brush(m_state->now.brush);
    return;
  }
  m_target->DrawShape(m_state->now, Shape::pie, rect, {{}, start, end});
}

// --- Fills

void CDC::FillSolidRect(const RECT& rect, COLORREF colour) {
  m_state->now.backColour = colour;
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"FillSolidRect", m_state->now).Rect(rect).Colour(colour);
    return;
  }
  m_target->Fill(m_state->now, rect, colour);
}

void CDC::FillRect(const RECT& rect, const CBrush* brush) {
  if (brush == nullptr || brush->GetKind() == CBrush::Kind::none) {
    return;
  }
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"FillRect", m_state->now).Rect(rect).Brush(brush);
  } else if (brush->GetKind() == CBrush::Kind::solid) {
    m_target->Fill(m_state->now, rect, brush->GetColor());
  } else {
    m_target->FillHatched(m_state->now, rect, *brush);
  }
}

void CDC::FrameRect(const RECT& rect, COLORREF colour) {
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"FrameRect", m_state->now).Rect(rect).Colour(colour);
    return;
  }
  FillEdges(rect, colour, colour);
}

void CDC::Draw3dRect(const RECT& rect, COLORREF topLeft, COLORREF bottomRight) {
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"Draw3dRect", m_state->now).Rect(rect).Colour(topLeft).Colour(bottomRight);
    return;
  }
  FillEdges(rect, topLeft, bottomRight);
}

void CDC::FillEdges(const RECT& rect, COLORREF topLeft, COLORREF bottomRight) {
  if (rect.right <= rect.left || rect.bottom <= rect.top) {
    return;
  }
  const DrawAttributes& now = m_state->now;
  m_target->Fill(now, CRect(rect.left, rect.top, rect.right - 1, rect.top + 1), topLeft);
  m_target->Fill(now, CRect(rect.left, rect.top, rect.left + 1, rect.bottom - 1), topLeft);
  m_target->Fill(now, CRect(rect.right - 1, rect.top, rect.right, rect.bottom), bottomRight);
  m_target->Fill(now, CRect(rect.left, rect.bottom - 1, rect.right, rect.bottom), bottomRight);
}

void CDC::InvertRect(const RECT& rect) {
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"InvertRect", m_state->now).Rect(rect);
    return;
  }
  m_target->Invert(m_state->now, rect);
}

void CDC::DrawFocusRect(const RECT& rect) {
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"DrawFocusRect", m_state->now).Rect(rect);
    return;
  }
  m_target->FocusRect(m_state->now, rect);
}

void CDC::SetPixel(int x, int y, COLORREF colour) {
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"SetPixel", m_state->now).Point(x, y).Colour(colour);
    return;
  }
  m_target->Fill(m_state->now, RectAt(x, y, CSize(1, 1)), colour);
}

COLORREF CDC::GetPixel(int x, int y) const {
  return m_target->ReadPixel(m_state->now, x, y);
}

// --- Bitmaps

void CDC::DrawBitmap(const CBitmap& bitmap, int x, int y) {
  StretchBitmap(bitmap, RectAt(x, y, bitmap.GetSize()));
}

void CDC::StretchBitmap(const CBitmap& bitmap, const RECT& to) {
  if (!bitmap.IsCreated()) {
    return;
  }
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"DrawBitmap", m_state->now).Rect(to);
    return;
  }
  m_target->Bitmap(m_state->now, *bitmap.Data(), to);
}

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY,
                 DWORD operation) {
  if (source == nullptr || width <= 0 || height <= 0 || (operation != SRCCOPY && operation != SRCINVERT)) {
    return FALSE;
  }
  const CRect to = RectAt(x, y, CSize(width, height));
  if (m_state->log != nullptr) {
    CallLog::Line(*m_state->log, L"BitBlt", m_state->now).Rect(to).Number(sourceX).Number(sourceY);
    return TRUE;
  }
  const CPoint origin = source->GetViewportOrg();
  const CPoint from(Saturated(std::int64_t{sourceX} + origin.x), Saturated(std::int64_t{sourceY} + origin.y));
  return m_target->Copy(m_state->now, to, *source->m_target, from, operation == SRCINVERT) ? TRUE : FALSE;
}
