#pragma once

#include <QImage>
#include <QPainter>
#include <cstdint>
#include <functional>
#include <optional>

#include "platform/Geometry.h"

namespace coregui {

/// The pixels of one window or bitmap, at its scale: what contexts draw on and exposures copy from.
/// Drawing writes straight into the rows; where the toolkit's painter is needed, all contexts share one.
class Surface {
 public:
  /// `size` in logical pixels, `scale` in dots per logical pixel. White at first.
  Surface(CSize size, double scale);
  /// Takes over a picture; its dots are `scale` per logical pixel.
  Surface(QImage image, double scale);
  ~Surface();
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  /// Keeps what is in the common part, unless the scale changes; the rest is white. The memory never
  /// shrinks: a context that was made before may still draw where it could. A new scale needs new targets.
  void Resize(CSize size, double scale);
  CSize Size() const { return m_size; }
  double Scale() const { return m_scale; }
  CSize Dots() const { return m_dots; }

  std::uint32_t* Row(int y) { return m_bits + static_cast<std::ptrdiff_t>(y) * m_stride; }
  const std::uint32_t* Row(int y) const { return m_bits + static_cast<std::ptrdiff_t>(y) * m_stride; }

  std::ptrdiff_t Stride() const { return m_stride; }  ///< from row to row, in dots

  /// The shared painter, in dots, opened when first asked for; EndPainter closes it (exposures and the end of
  /// the last context do).
  QPainter& Painter();
  void EndPainter();

  /// Moves the pixels of `rect` by (dx, dy) inside `clip`, all in logical pixels. At a fractional scale a
  /// distance that is no whole number of dots cannot be moved: false, and nothing happens.
  bool MovePixels(const CRect& rect, int dx, int dy, const CRect& clip);
  /// Copies a part (logical pixels) to an exposure whose coordinates are logical pixels of the window.
  void Expose(QPainter& exposure, const CRect& rect);
  /// A copy of the picture with its scale set, for reading and saving.
  QImage Snapshot() const;
  const QImage& Image() const { return m_image; }

  /// Notes that dots changed. The first note after TakeDamage calls `onDamage`, for the native window to ask
  /// for an exposure.
  void Damage(const CRect& dots) {
    const bool first = m_damage.IsRectEmpty();
    m_damage.UnionRect(m_damage, dots);
    if (first && onDamage && !m_damage.IsRectEmpty()) {
      onDamage();
    }
  }
  /// What changed since the last call, as logical pixels rounded outwards.
  CRect TakeDamage();
  std::function<void()> onDamage;

  /// Contexts at work; the painter closes with the last one.
  void Enter() { ++m_contexts; }
  void Leave();

 private:
  void Attach();

  CSize m_size;
  double m_scale;
  CSize m_dots;    ///< in use
  QImage m_image;  ///< at least as large
  std::uint32_t* m_bits = nullptr;
  std::ptrdiff_t m_stride = 0;  ///< in dots
  std::optional<QPainter> m_painter;
  CRect m_damage;
  int m_contexts = 0;
};

}  // namespace coregui
