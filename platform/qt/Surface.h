#pragma once

#include <QImage>
#include <QPainter>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "platform/DotGrid.h"
#include "platform/Geometry.h"
#include "platform/qt/DamageBands.h"
#include "platform/qt/SlidingRows.h"

namespace coregui {

/// The pixels of one window or bitmap, at its scale: what contexts draw on and exposures copy from.
/// Drawing writes straight into the rows; where the toolkit's painter is needed, all contexts share one.
///
/// A surface that nobody has drawn on but with fills of all of it (a window that its children cover) is one
/// colour, and its memory is not touched.
class Surface {
 public:
  /// `size` in logical pixels. White at first.
  Surface(CSize size, const DotGrid& grid);
  /// Takes over a picture that has the dots of so many pixels.
  Surface(QImage image, CSize size, const DotGrid& grid);
  ~Surface();
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  /// Keeps what is in the common part, unless the scale changes; the rest is white (or the one colour that
  /// the surface has). The memory never shrinks: a context that was made before may still draw where it
  /// could. A new grid needs new targets.
  void Resize(CSize size, const DotGrid& grid);
  CSize Size() const { return m_size; }
  double Scale() const { return m_grid.Scale(); }
  const DotGrid& Grid() const { return m_grid; }
  CSize Dots() const { return m_dots; }

  std::uint32_t* Row(int y) {
    if (m_isOneColour) FillMemory();
    return m_bits + static_cast<std::ptrdiff_t>(y) * m_stride;
  }
  const std::uint32_t* Row(int y) const {
    if (m_isOneColour) FillMemory();
    return m_bits + static_cast<std::ptrdiff_t>(y) * m_stride;
  }
  std::ptrdiff_t Stride() const { return m_stride; }  ///< from row to row, in dots
  /// Makes a surface of one colour one of this colour. False when it is not, or `dots` are not all of it.
  bool Recolour(const CRect& dots, std::uint32_t colour);

  /// The shared painter, in dots, opened when first asked for; EndPainter closes it (exposures and the end of
  /// the last context do).
  QPainter& Painter();
  void EndPainter();

  /// Moves the pixels of `rect` by (dx, dy) inside `clip`, all in logical pixels. At a fractional scale a
  /// distance that is no whole number of dots cannot be moved: false, and nothing happens.
  bool MovePixels(const CRect& rect, int dx, int dy, const CRect& clip);
  /// Fills `to`, in dots, with what lies (dx, dy) before it. Both are inside the surface.
  void MoveDots(const CRect& to, int dx, int dy);
  /// Copies a part (logical pixels) to an exposure whose coordinates are logical pixels of the window.
  void Expose(QPainter& exposure, const CRect& rect);
  /// The same dot for dot, `rect` in dots, to memory whose rows are `stride` dots apart.
  void CopyDots(std::uint32_t* to, std::ptrdiff_t stride, const CRect& rect);
  /// A copy of the picture with its scale set, for reading and saving.
  QImage Snapshot() const;
  const QImage& Image() const;

  /// Notes that dots changed. The first note after TakeDamage calls `onDamage`, for the native window to ask
  /// for an exposure.
  void Damage(const CRect& dots) {
    if (m_damage.Add(dots) && onDamage) onDamage();
  }
  /// What changed since the last call, as logical pixels rounded outwards.
  std::vector<CRect> TakeDamage();
  bool HasDamage() const { return !m_damage.IsEmpty(); }
  /// All of the surface is shown as it is now.
  void ForgetDamage() { m_damage.Take(); }
  std::function<void()> onDamage;
  /// Dots were moved as in MoveDots. True when what shows the surface moves them too, so that they need no
  /// exposure.
  std::function<bool(const CRect& to, int dx, int dy)> onMove;

  /// Contexts at work; the painter closes with the last one.
  void Enter() { ++m_contexts; }
  void Leave();

 private:
  void Attach();
  bool Grow(CSize dots);
  void FillMemory() const;
  bool SlideRows(const CRect& to, int dy);
  void ExposeDots(QPainter& exposure, const CRect& rect);

  CSize m_size;
  DotGrid m_grid;
  CSize m_dots;                       ///< in use
  std::optional<SlidingRows> m_rows;  ///< none for a picture that was taken over
  QImage m_image;                     ///< a picture, or a view of the rows; at least as large as in use
  std::uint32_t* m_bits = nullptr;    ///< of the first dot
  std::ptrdiff_t m_stride = 0;        ///< in dots
  std::uint32_t m_colour = 0xFFFFFFFFU;
  mutable bool m_isOneColour = false;  ///< `m_colour` all over: the memory is not filled yet
  std::optional<QPainter> m_painter;
  DamageBands m_damage;
  int m_contexts = 0;
};

}  // namespace coregui
