#include "platform/qt/Surface.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "platform/qt/PictureMemory.h"

namespace coregui {

namespace {

// Rounds; what is far beyond any picture is cut off where sums are safe.
int Rounded(double value) {
  constexpr double limit = 1 << 29;
  return static_cast<int>(std::floor(std::clamp(value, -limit, limit) + 0.5));
}

bool IsWhole(double scale) {
  return scale == std::floor(scale);
}

CSize SizeOf(const QImage& image) {
  return {image.width(), image.height()};
}

CSize DotsOf(CSize size, double scale) {
  constexpr int largest = 32767;
  return {std::clamp(Rounded(size.cx * scale), 1, largest), std::clamp(Rounded(size.cy * scale), 1, largest)};
}

}  // namespace

Surface::Surface(CSize size, double scale)
    : m_size(size), m_scale(scale), m_dots(DotsOf(size, scale)), m_isOneColour(true) {
  if (!Grow(m_dots)) {
    m_dots = CSize(1, 1);
    Grow(m_dots);
  }
}

Surface::Surface(QImage image, double scale)
    : m_size(Rounded(image.width() / scale), Rounded(image.height() / scale)),
      m_scale(scale),
      m_dots(SizeOf(image)),
      m_image(std::move(image)) {
  Attach();
}

Surface::~Surface() {
  EndPainter();
}

void Surface::Attach() {
  if (m_rows.has_value()) {
    const int bytes = static_cast<int>(m_rows->Stride()) * static_cast<int>(sizeof(std::uint32_t));
    m_image = QImage(reinterpret_cast<uchar*>(m_rows->First()), m_rows->Room().cx, m_rows->Room().cy, bytes,
                     QImage::Format_RGB32);
  }
  m_bits = reinterpret_cast<std::uint32_t*>(m_image.bits());
  m_stride = m_image.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(std::uint32_t));
}

/// Makes room for so many dots and keeps the picture; false without memory.
bool Surface::Grow(CSize dots) {
  SlidingRows rows(
      CSize(std::max<LONG>(dots.cx, m_image.width()), std::max<LONG>(dots.cy, m_image.height())));
  if (rows.IsEmpty()) {
    return false;
  }
  const std::size_t kept = sizeof(std::uint32_t) * static_cast<std::size_t>(std::min(m_dots.cx, dots.cx));
  for (int y = 0; !m_isOneColour && y < std::min(m_dots.cy, dots.cy); ++y) {
    std::memcpy(rows.First() + y * rows.Stride(), Row(y), kept);
  }
  m_rows = std::move(rows);
  Attach();
  return true;
}

void Surface::FillMemory() const {
  m_isOneColour = false;
  ExpectFill(m_bits, static_cast<std::size_t>(m_stride * m_dots.cy) * sizeof(std::uint32_t));
  std::fill_n(m_bits, m_stride * m_dots.cy, m_colour);
}

bool Surface::Recolour(const CRect& dots, std::uint32_t colour) {
  if (!m_isOneColour || !(dots == CRect(CPoint(), m_dots))) {
    return false;
  }
  m_colour = colour;
  return true;
}

void Surface::Resize(CSize size, double scale) {
  if (size == m_size && scale == m_scale) {
    return;
  }
  EndPainter();
  CSize dots = DotsOf(size, scale);
  if (dots.cx > m_image.width() || dots.cy > m_image.height()) {
    Grow(dots);
  }
  // Without memory the surface stays as large as it is.
  dots = CSize(std::min<LONG>(dots.cx, m_image.width()), std::min<LONG>(dots.cy, m_image.height()));
  const CSize kept =
      scale == m_scale ? CSize(std::min(dots.cx, m_dots.cx), std::min(dots.cy, m_dots.cy)) : CSize();
  for (int y = 0; !m_isOneColour && y < dots.cy; ++y) {
    std::fill(Row(y) + (y < kept.cy ? kept.cx : 0), Row(y) + dots.cx, 0xFFFFFFFFU);
  }
  m_size = size;
  m_scale = scale;
  m_dots = dots;
  Damage(CRect(CPoint(), dots));
}

QPainter& Surface::Painter() {
  if (m_isOneColour) {
    FillMemory();
  }
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
  MoveDots(to, moveX, moveY);
  return true;
}

void Surface::MoveDots(const CRect& to, int dx, int dy) {
  if (m_isOneColour || (dx == 0 && dy == 0)) {
    return;
  }
  if (dx != 0 || !SlideRows(to, dy)) {
    const std::size_t bytes = sizeof(std::uint32_t) * static_cast<std::size_t>(to.Width());
    for (int i = 0; i < to.Height(); ++i) {
      const int y = dy <= 0 ? to.top + i : to.bottom - 1 - i;
      std::memmove(Row(y) + to.left, Row(y - dy) + to.left - dx, bytes);
    }
  }
  if (!onMove || !onMove(to, dx, dy)) {
    Damage(to);
  }
}

/// Moves by sliding the whole picture, and puts back the rows that are to stay where they were. False where
/// those are too many.
bool Surface::SlideRows(const CRect& to, int dy) {
  const bool wide = to.left == 0 && to.right == m_dots.cx;
  if (!wide || to.Height() < m_dots.cy / 2 || !m_rows.has_value() || !m_rows->CanSlide(dy)) {
    return false;
  }
  EndPainter();
  m_rows->Slide(-dy);
  Attach();
  const std::size_t bytes = sizeof(std::uint32_t) * static_cast<std::size_t>(m_dots.cx);
  // What was row y lies at row y + dy now. Downwards of it first, so that none is overwritten before it was
  // read.
  for (int i = 0; i < m_dots.cy; ++i) {
    const int y = dy < 0 ? m_dots.cy - 1 - i : i;
    if (y < to.top || y >= to.bottom) std::memcpy(Row(y), Row(y + dy), bytes);
  }
  return true;
}

void Surface::Expose(QPainter& exposure, const CRect& rect) {
  EndPainter();
  const QRectF target(rect.left, rect.top, rect.Width(), rect.Height());
  if (m_isOneColour) {
    exposure.fillRect(target, QColor::fromRgb(m_colour));
  } else if (IsWhole(m_scale) || exposure.deviceTransform().m11() != m_scale) {
    exposure.drawImage(target, m_image, QRectF(target.topLeft() * m_scale, target.size() * m_scale));
  } else {
    ExposeFraction(exposure, target);
  }
}

void Surface::CopyDots(std::uint32_t* to, std::ptrdiff_t stride, const CRect& rect) {
  EndPainter();
  const auto width = static_cast<std::size_t>(rect.Width());
  for (int y = rect.top; y < rect.bottom; ++y, to += stride) {
    if (m_isOneColour) {
      std::fill_n(to, width, m_colour);
    } else {
      std::memcpy(to, Row(y) + rect.left, width * sizeof(std::uint32_t));
    }
  }
}

/// Dot upon dot: a window's corner that lies between dots of the screen is moved to the nearest.
void Surface::ExposeFraction(QPainter& exposure, const QRectF& rect) {
  exposure.save();
  const QPointF corner = exposure.deviceTransform().map(QPointF());
  const QTransform toDots = exposure.deviceTransform().inverted() * exposure.worldTransform();
  exposure.setWorldTransform(QTransform::fromTranslate(std::round(corner.x()), std::round(corner.y())) *
                             toDots);
  const QRect all(0, 0, m_dots.cx, m_dots.cy);
  const QRect dots = QRectF(rect.topLeft() * m_scale, rect.size() * m_scale).toAlignedRect() & all;
  exposure.drawImage(dots, m_image, dots);
  // The screen may give the window a dot more than its own size comes to.
  if (dots.right() == all.right()) {
    const QRect last(all.right(), dots.top(), 1, dots.height());
    exposure.drawImage(last.translated(1, 0), m_image, last);
  }
  if (dots.bottom() == all.bottom()) {
    const QRect last(dots.left(), all.bottom(), dots.width(), 1);
    exposure.drawImage(last.translated(0, 1), m_image, last);
  }
  exposure.restore();
}

const QImage& Surface::Image() const {
  if (m_isOneColour) {
    FillMemory();
  }
  return m_image;
}

QImage Surface::Snapshot() const {
  QImage copy = Image().copy(0, 0, m_dots.cx, m_dots.cy);
  copy.setDevicePixelRatio(m_scale);
  return copy;
}

std::vector<CRect> Surface::TakeDamage() {
  std::vector<CRect> pieces = m_damage.Take();
  // Between dots the toolkit rounds the parts of a window otherwise than the window.
  const int margin = IsWhole(m_scale) ? 0 : 1;
  for (CRect& piece : pieces) {
    piece = CRect(static_cast<LONG>(std::floor(piece.left / m_scale)),
                  static_cast<LONG>(std::floor(piece.top / m_scale)),
                  static_cast<LONG>(std::ceil(piece.right / m_scale)),
                  static_cast<LONG>(std::ceil(piece.bottom / m_scale)));
    piece.InflateRect(margin, margin);
  }
  return pieces;
}

}  // namespace coregui
