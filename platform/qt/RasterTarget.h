#pragma once

#include <memory>

#include "platform/qt/PainterTarget.h"
#include "platform/qt/Surface.h"

namespace coregui {

struct LinePen;

/// Draws on a surface. Fills, hard lines, inverted frames, copies and simple text write the dots directly;
/// the rest goes through the surface's painter.
class RasterTarget : public PainterTarget {
 public:
  explicit RasterTarget(std::shared_ptr<Surface> surface);
  ~RasterTarget() override;

  CSize Dots() const override { return m_surface->Dots(); }
  int Capability(int index) const override;
  void Polyline(const DrawAttributes& with, const POINT* points, int count) override;
  void PolylineF(const DrawAttributes& with, const double* xy, int count) override;
  void DrawShape(const DrawAttributes& with, Shape shape, const CRect& rect,
                 const ShapeDetail& detail) override;
  void Fill(const DrawAttributes& with, const CRect& rect, COLORREF colour) override;
  void Invert(const DrawAttributes& with, const CRect& rect) override;
  void FocusRect(const DrawAttributes& with, const CRect& rect) override;
  COLORREF ReadPixel(const DrawAttributes& with, int x, int y) const override;
  int FitText(const DrawAttributes& with, const wchar_t* text, int length, int width) override;
  void Text(const DrawAttributes& with, int x, int y, const wchar_t* text, int length) override;
  void Bitmap(const DrawAttributes& with, const BitmapData& bitmap, const CRect& to) override;
  bool Copy(const DrawAttributes& with, const CRect& to, DrawTarget& source, CPoint from,
            bool exclusiveOr) override;
  const std::shared_ptr<Surface>& Pixels() const { return m_surface; }

 protected:
  QPainter* OpenPainter(const Clip& /*clip*/) override { return &m_surface->Painter(); }
  void Drawn(const CRect& dots) override { m_surface->Damage(dots); }

 private:
  bool DrawsHard(const DrawAttributes& with) const;
  void PutRect(const CRect& dots, std::uint32_t colour, int rop);
  /// The same, noted as damage.
  void FillDots(const CRect& dots, std::uint32_t colour, int rop);
  LinePen HardPen(const DrawAttributes& with) const;
  /// The logical pixels of a row (`level`) or column `at` from `start` to before `end`, as wide as the pen;
  /// returns their dots. Like the two below it leaves the damage to be noted by the caller.
  CRect PutStraight(const DrawAttributes& with, bool level, std::int64_t at, std::int64_t start,
                    std::int64_t end, const LinePen& pen);
  /// Where a solid line goes up and down in one column from point i - 1 on, puts each of its pixels once and
  /// returns the first point that lies elsewhere; `i` when fewer than two parts stay in the column.
  int PutUpAndDown(const DrawAttributes& with, const POINT* points, int i, int count, const LinePen& pen);
  /// One segment; returns the dots among which it lies.
  CRect StraightLine(const DrawAttributes& with, POINT from, POINT to, const LinePen& pen);
  /// A solid line in copy mode; see DrawSmoothLine.
  void SmoothPolylineF(const DrawAttributes& with, const double* xy, int count);
  bool PutGlyphs(const DrawAttributes& with, FontFace& face, CPoint start, const wchar_t* text, int length);

  std::shared_ptr<Surface> m_surface;
};

}  // namespace coregui
