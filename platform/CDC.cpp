#include "platform/CDC.h"

#include <utility>

#include "platform/CallLog.h"
#include "platform/DrawTarget.h"

using coregui::CallLog;
using coregui::DrawAttributes;
using coregui::Saturated;
using coregui::Shape;

namespace {

// A rectangle whose far edges stop at the end of the number range.
CRect RectAt(LONG x, LONG y, CSize size) {
  return {x, y, Saturated(std::int64_t{x} + size.cx), Saturated(std::int64_t{y} + size.cy)};
}

}  // namespace

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
