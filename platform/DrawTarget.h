#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

#include "platform/CDC.h"
#include "platform/DotGrid.h"
#include "platform/Region.h"

namespace coregui {

class CallLog;

/// The nearest coordinate there is.
constexpr LONG Saturated(std::int64_t value) {
  constexpr std::int64_t low = std::numeric_limits<LONG>::min();
  constexpr std::int64_t high = std::numeric_limits<LONG>::max();
  return static_cast<LONG>(value < low ? low : (value > high ? high : value));
}

/// What drawing is confined to, in device dots: a box, or the part of a region inside it.
struct Clip {
  CRect box;
  std::shared_ptr<const Region> region;  ///< null: the whole box

  /// Calls `draw` with each rectangle of the part of `rect` that is inside. The rectangles do not overlap.
  template <typename Draw>
  void ForEach(const CRect& rect, Draw draw) const {
    CRect common;
    if (!common.IntersectRect(rect, box)) {
      return;
    }
    if (region == nullptr) {
      draw(common);
      return;
    }
    for (const CRect& piece : region->Rects()) {
      CRect part;
      if (part.IntersectRect(piece, common)) {
        draw(part);
      }
    }
  }
};

/// What a context draws with: one level of SaveDC. The objects are borrowed from the caller of SelectObject.
struct DrawAttributes {
  CPen* pen = nullptr;
  CBrush* brush = nullptr;
  CFont* font = nullptr;  ///< null: the system's font
  COLORREF textColour = 0;
  COLORREF backColour = 0x00FFFFFF;
  int backMode = OPAQUE;
  int rop = R2_COPYPEN;
  UINT align = TA_LEFT | TA_TOP;
  bool smooth = false;
  CPoint origin;    ///< added to every coordinate, logical pixels
  CPoint position;  ///< of MoveTo
  Clip clip;
};

/// The state of one context.
struct DrawState {
  DrawAttributes now;
  Clip base;  ///< what SelectClipRect(nullptr) goes back to
  std::vector<DrawAttributes> saved;
  CallLog* log = nullptr;  ///< borrowed from the target; null where calls are drawn
};

/// The well-known shapes inside a rectangle.
enum class Shape { rectangle, roundRectangle, ellipse, arc, pie };

struct ShapeDetail {
  CSize corner;  ///< of a round rectangle
  CPoint start;  ///< rays of an arc or pie
  CPoint end;
};

/// A device behind a context. Coordinates that come in are the caller's logical pixels, without the origin;
/// what is drawn and clipped is in the device's dots. Edges are rounded to dots, so rectangles that touch in
/// logical pixels touch in dots.
class DrawTarget {
 public:
  virtual ~DrawTarget() = default;
  DrawTarget(const DrawTarget&) = delete;
  DrawTarget& operator=(const DrawTarget&) = delete;

  double Scale() const { return m_grid.Scale(); }
  const DotGrid& Grid() const { return m_grid; }
  /// The whole device, in dots.
  virtual CSize Dots() const = 0;
  virtual int Capability(int index) const = 0;
  virtual CallLog* Log() { return nullptr; }
  /// Logical dots per inch, for point sizes.
  virtual int DotsPerInch() const { return 96; }

  /// `rop` and pen; an open line leaves out its last point.
  virtual void Polyline(const DrawAttributes& with, const POINT* points, int count) = 0;
  virtual void PolylineF(const DrawAttributes& with, const double* xy, int count) = 0;
  virtual void Polygon(const DrawAttributes& with, const POINT* points, int count) = 0;
  virtual void DrawShape(const DrawAttributes& with, Shape shape, const CRect& rect,
                         const ShapeDetail& detail) = 0;

  /// Plain fills and dots, whatever the raster mode.
  virtual void Fill(const DrawAttributes& with, const CRect& rect, COLORREF colour) = 0;
  virtual void FillHatched(const DrawAttributes& with, const CRect& rect, const CBrush& brush) = 0;
  virtual void Invert(const DrawAttributes& with, const CRect& rect) = 0;
  virtual void FocusRect(const DrawAttributes& with, const CRect& rect) = 0;
  virtual COLORREF ReadPixel(const DrawAttributes& with, int x, int y) const = 0;

  /// The advance of a single line, in logical pixels, saturating.
  virtual int TextWidth(const DrawAttributes& with, const wchar_t* text, int length) = 0;
  /// How many leading characters take at most `width` logical pixels.
  virtual int FitText(const DrawAttributes& with, const wchar_t* text, int length, int width);
  virtual TEXTMETRIC Metrics(const DrawAttributes& with) = 0;
  /// The text's cell has its top left corner at (x, y); a font with an escapement turns around it.
  virtual void Text(const DrawAttributes& with, int x, int y, const wchar_t* text, int length) = 0;

  virtual void Bitmap(const DrawAttributes& with, const BitmapData& bitmap, const CRect& to) = 0;
  /// False when the source cannot be read.
  virtual bool Copy(const DrawAttributes& with, const CRect& to, DrawTarget& source, CPoint from,
                    bool exclusiveOr) = 0;

  CRect DotRect(const DrawAttributes& with, const RECT& rect) const {
    const std::int64_t x = with.origin.x;
    const std::int64_t y = with.origin.y;
    return {m_grid.x.Dot(rect.left + x), m_grid.y.Dot(rect.top + y), m_grid.x.Dot(rect.right + x),
            m_grid.y.Dot(rect.bottom + y)};
  }
  /// How many dots thick a pen of so many logical pixels is: at least 1.
  int DotWidth(int logical) const {
    const double width = std::floor(std::fabs(static_cast<double>(logical)) * Scale() + 0.5);
    return width < 1.0 ? 1 : (width > 1e6 ? 1000000 : static_cast<int>(width));
  }
  /// Logical pixels that hold so many dots.
  int LogicalSize(std::int64_t dots) const;

 protected:
  explicit DrawTarget(const DotGrid& grid) : m_grid(grid) {}

 private:
  DotGrid m_grid;
};

}  // namespace coregui
