#include "platform/qt/Surface.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace coregui {

namespace {

// Rounds; what is far beyond any picture is cut off where sums are safe.
int Rounded(double value) {
  constexpr double limit = 1 << 29;
  return static_cast<int>(std::floor(std::clamp(value, -limit, limit) + 0.5));
}

CSize DotsOf(CSize size, double scale) {
  constexpr int largest = 32767;
  return {std::clamp(Rounded(size.cx * scale), 1, largest), std::clamp(Rounded(size.cy * scale), 1, largest)};
}

}  // namespace

Surface::Surface(CSize size, double scale) : m_size(size), m_scale(scale), m_dots(DotsOf(size, scale)) {
  m_image = QImage(m_dots.cx, m_dots.cy, QImage::Format_RGB32);
  if (m_image.isNull()) {
    m_dots = CSize(1, 1);
    m_image = QImage(1, 1, QImage::Format_RGB32);
  }
  m_image.fill(Qt::white);
  Attach();
}

Surface::Surface(QImage image, double scale)
    : m_size(Rounded(image.width() / scale), Rounded(image.height() / scale)),
      m_scale(scale),
      m_dots(image.width(), image.height()),
      m_image(std::move(image)) {
  Attach();
}

Surface::~Surface() {
  EndPainter();
}

void Surface::Attach() {
  m_bits = reinterpret_cast<std::uint32_t*>(m_image.bits());
  m_stride = m_image.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(std::uint32_t));
}

void Surface::Resize(CSize size, double scale) {
  if (size == m_size && scale == m_scale) {
    return;
  }
  EndPainter();
  CSize dots = DotsOf(size, scale);
  if (dots.cx > m_image.width() || dots.cy > m_image.height()) {
    QImage grown =
        m_image.copy(0, 0, std::max<int>(dots.cx, m_image.width()), std::max<int>(dots.cy, m_image.height()));
    if (!grown.isNull()) {
      m_image = std::move(grown);
      Attach();
    }
  }
  // Without memory the surface stays as large as it is.
  dots = CSize(std::min<LONG>(dots.cx, m_image.width()), std::min<LONG>(dots.cy, m_image.height()));
  const CSize kept =
      scale == m_scale ? CSize(std::min(dots.cx, m_dots.cx), std::min(dots.cy, m_dots.cy)) : CSize();
  for (int y = 0; y < dots.cy; ++y) {
    std::fill(Row(y) + (y < kept.cy ? kept.cx : 0), Row(y) + dots.cx, 0xFFFFFFFFU);
  }
  m_size = size;
  m_scale = scale;
  m_dots = dots;
  Damage(CRect(CPoint(), dots));
}

QPainter& Surface::Painter() {
  if (!m_painter.has_value()) {
    m_painter.emplace(&m_image);
  }
  return *m_painter;
}

void Surface::EndPainter() {
  m_painter.reset();
}

void Surface::Leave() {
  if (--m_contexts == 0) {
    EndPainter();
  }
}

bool Surface::MovePixels(const CRect& rect, int dx, int dy, const CRect& clip) {
  const double dotsX = dx * m_scale;
  const double dotsY = dy * m_scale;
  if (dotsX != std::floor(dotsX) || dotsY != std::floor(dotsY)) {
    return false;
  }
  const int moveX = Rounded(dotsX);
  const int moveY = Rounded(dotsY);
  const auto inDots = [this](const CRect& r) {
    return CRect(Rounded(r.left * m_scale), Rounded(r.top * m_scale), Rounded(r.right * m_scale),
                 Rounded(r.bottom * m_scale));
  };
  const CRect device(CPoint(), Dots());
  CRect from;
  CRect to;
  CRect within;
  if (!from.IntersectRect(inDots(rect), device) || !within.IntersectRect(inDots(clip), device)) {
    return true;
  }
  to = from;
  to.OffsetRect(moveX, moveY);
  if (!to.IntersectRect(to, within)) {
    return true;
  }
  const std::size_t bytes = sizeof(std::uint32_t) * static_cast<std::size_t>(to.Width());
  const bool upwards = moveY <= 0;
  for (int i = 0; i < to.Height(); ++i) {
    const int y = upwards ? to.top + i : to.bottom - 1 - i;
    std::memmove(Row(y) + to.left, Row(y - moveY) + to.left - moveX, bytes);
  }
  Damage(to);
  return true;
}

void Surface::Expose(QPainter& exposure, const CRect& rect) {
  EndPainter();
  const QRectF target(rect.left, rect.top, rect.Width(), rect.Height());
  const QRectF source(rect.left * m_scale, rect.top * m_scale, rect.Width() * m_scale,
                      rect.Height() * m_scale);
  exposure.drawImage(target, m_image, source);
}

QImage Surface::Snapshot() const {
  QImage copy = m_image.copy(0, 0, m_dots.cx, m_dots.cy);
  copy.setDevicePixelRatio(m_scale);
  return copy;
}

CRect Surface::TakeDamage() {
  const CRect dots = std::exchange(m_damage, CRect());
  return {static_cast<LONG>(std::floor(dots.left / m_scale)),
          static_cast<LONG>(std::floor(dots.top / m_scale)),
          static_cast<LONG>(std::ceil(dots.right / m_scale)),
          static_cast<LONG>(std::ceil(dots.bottom / m_scale))};
}

}  // namespace coregui
