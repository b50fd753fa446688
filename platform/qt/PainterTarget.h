#pragma once

#include <QPainter>

#include "platform/DrawTarget.h"

namespace coregui {

class FontData;
class FontFace;

/// Draws everything with the toolkit's painter: pages to print, and on rasters what has no faster way.
class PainterTarget : public DrawTarget {
 public:
  void Polyline(const DrawAttributes& with, const POINT* points, int count) override;
  void PolylineF(const DrawAttributes& with, const double* xy, int count) override;
  void Polygon(const DrawAttributes& with, const POINT* points, int count) override;
  void DrawShape(const DrawAttributes& with, Shape shape, const CRect& rect,
                 const ShapeDetail& detail) override;
  void Fill(const DrawAttributes& with, const CRect& rect, COLORREF colour) override;
  void FillHatched(const DrawAttributes& with, const CRect& rect, const CBrush& brush) override;
  void Invert(const DrawAttributes& with, const CRect& rect) override;
  void FocusRect(const DrawAttributes& with, const CRect& rect) override;
  COLORREF ReadPixel(const DrawAttributes& with, int x, int y) const override;
  int TextWidth(const DrawAttributes& with, const wchar_t* text, int length) override;
  TEXTMETRIC Metrics(const DrawAttributes& with) override;
  void Text(const DrawAttributes& with, int x, int y, const wchar_t* text, int length) override;
  void Bitmap(const DrawAttributes& with, const BitmapData& bitmap, const CRect& to) override;
  bool Copy(const DrawAttributes& with, const CRect& to, DrawTarget& source, CPoint from,
            bool exclusiveOr) override;

 protected:
  explicit PainterTarget(const DotGrid& grid) : DrawTarget(grid) {}
  /// The painter in dots, open for the next call under a clip; null when there is no page.
  virtual QPainter* OpenPainter(const Clip& clip) = 0;
  /// Whether a hard line of one dot fills the dot right of and below its coordinates. Where there are no
  /// dots, a line lies around its middle.
  virtual bool HasWholeDots() const { return true; }
  /// The painter with clip, raster mode and smoothness of the call; null when nothing would show.
  QPainter* Begin(const DrawAttributes& with);
  /// Called after each call that drew, with the part of the device that may have changed.
  virtual void Drawn(const CRect&) {}
  FontFace& Face(const DrawAttributes& with);
  void TextByPainter(const DrawAttributes& with, int x, int y, const wchar_t* text, int length);

 private:
  QPointF DotPoint(const DrawAttributes& with, double x, double y) const;
  QPolygonF DotPoints(const DrawAttributes& with, const POINT* points, int count) const;
  QPen PenOf(const DrawAttributes& with) const;
  QBrush BrushOf(const CBrush& brush) const;

  std::shared_ptr<FontFace> m_face;      ///< of the font that was used last
  std::shared_ptr<FontData> m_faceFont;  ///< kept so that its address stays its own
};

/// A clip in the toolkit's form.
QRegion RegionOf(const Clip& clip);

/// A colour of ours in the toolkit's order, opaque.
constexpr std::uint32_t Opaque(COLORREF colour) {
  return 0xFF000000U | ((colour & 0xFFU) << 16U) | (colour & 0xFF00U) | ((colour >> 16U) & 0xFFU);
}

}  // namespace coregui
