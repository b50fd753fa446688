#pragma once

#include <memory>

#include "core/Export.h"
#include "platform/CObject.h"
#include "platform/Geometry.h"

namespace coregui {
class FontData;
class BitmapData;
}  // namespace coregui

/// What a device context selects: pens, brushes, fonts, bitmaps. Plain owned objects; a context borrows them.
class COREGUI_API CGdiObject : public CObject {
 public:
  CGdiObject(const CGdiObject&) = delete;
  CGdiObject& operator=(const CGdiObject&) = delete;

 protected:
  CGdiObject() = default;
};

// Pen styles.
inline constexpr int PS_SOLID = 0;
inline constexpr int PS_DASH = 1;
inline constexpr int PS_DOT = 2;
inline constexpr int PS_DASHDOT = 3;
inline constexpr int PS_DASHDOTDOT = 4;
inline constexpr int PS_NULL = 5;

/// Draws outlines. The width is in logical pixels; 0 is one device dot. Lines of up to one pixel have dashes
/// of 18 pixels with gaps of 6 (and so on by style), those of wider pens go by the width.
class COREGUI_API CPen : public CGdiObject {
 public:
  CPen() = default;
  CPen(int style, int width, COLORREF colour) : m_style(style), m_width(width), m_colour(colour) {}
  BOOL CreatePen(int style, int width, COLORREF colour) {
    m_style = style;
    m_width = width;
    m_colour = colour;
    return TRUE;
  }
  int GetStyle() const { return m_style; }
  int GetWidth() const { return m_width; }
  COLORREF GetColor() const { return m_colour; }
  /// Gives a wider pen the dashes of a thin one, with so many logical pixels in place of one: for what stands
  /// for a thin line on paper. 0, as at first, for dashes that go by the width.
  void SetDashUnit(double pixels) { m_dashUnit = pixels; }
  double GetDashUnit() const { return m_width <= 1 && m_dashUnit == 0.0 ? 1.0 : m_dashUnit; }

 private:
  int m_style = PS_SOLID;
  int m_width = 1;
  COLORREF m_colour = 0;
  double m_dashUnit = 0.0;
};

// Hatch styles.
inline constexpr int HS_HORIZONTAL = 0;
inline constexpr int HS_VERTICAL = 1;
inline constexpr int HS_FDIAGONAL = 2;  ///< falls to the right
inline constexpr int HS_BDIAGONAL = 3;  ///< rises to the right
inline constexpr int HS_CROSS = 4;
inline constexpr int HS_DIAGCROSS = 5;

/// Fills areas: solid, hatched or not at all.
class COREGUI_API CBrush : public CGdiObject {
 public:
  enum class Kind { solid, hatched, none };
  CBrush() = default;
  explicit CBrush(COLORREF colour) : m_kind(Kind::solid), m_colour(colour) {}
  CBrush(int hatch, COLORREF colour) : m_kind(Kind::hatched), m_hatch(hatch), m_colour(colour) {}
  BOOL CreateSolidBrush(COLORREF colour) {
    m_kind = Kind::solid;
    m_colour = colour;
    return TRUE;
  }
  Kind GetKind() const { return m_kind; }
  int GetHatch() const { return m_hatch; }
  COLORREF GetColor() const { return m_colour; }

 private:
  Kind m_kind = Kind::none;
  int m_hatch = 0;
  COLORREF m_colour = 0;
};
