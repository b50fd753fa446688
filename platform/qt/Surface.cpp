#include "platform/qt/Surface.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "platform/qt/PictureMemory.h"

namespace coregui {

namespace {

CSize SizeOf(const QImage& image) {
  return {image.width(), image.height()};
}

CSize DotsOf(CSize size, const DotGrid& grid) {
  constexpr LONG largest = 32767;
  const CRect dots = grid.Dots(CRect(CPoint(), size));
  return {std::clamp<LONG>(dots.right, 1, largest), std::clamp<LONG>(dots.bottom, 1, largest)};
}

}  // namespace

Surface::Surface(CSize size, const DotGrid& grid)
    : m_size(size), m_grid(grid), m_dots(DotsOf(size, grid)), m_isOneColour(true) {
  if (!Grow(m_dots)) {
    m_dots = CSize(1, 1);
    Grow(m_dots);
  }
}

Surface::Surface(QImage image, CSize size, const DotGrid& grid)
    : m_size(size), m_grid(grid), m_dots(SizeOf(image)), m_image(std::move(image)) {
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

void Surface::Resize(CSize size, const DotGrid& grid) {
  if (size == m_size && grid == m_grid) {
    return;
  }
  EndPainter();
  CSize dots = DotsOf(size, grid);
  if (dots.cx > m_image.width() || dots.cy > m_image.height()) {
    Grow(dots);
  }
  // Without memory the surface stays as large as it is.
  dots = CSize(std::min<LONG>(dots.cx, m_image.width()), std::min<LONG>(dots.cy, m_image.height()));
  const CSize kept =
      grid.Scale() == Scale() ? CSize(std::min(dots.cx, m_dots.cx), std::min(dots.cy, m_dots.cy)) : CSize();
  for (int y = 0; !m_isOneColour && y < dots.cy; ++y) {
    std::fill(Row(y) + (y < kept.cy ? kept.cx : 0), Row(y) + dots.cx, 0xFFFFFFFFU);
  }
  m_size = size;
  m_grid = grid;
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
  const double dotsX = dx * Scale();
  const double dotsY = dy * Scale();
  if (dotsX != std::floor(dotsX) || dotsY != std::floor(dotsY)) {
    return false;
  }
  // What is far beyond any picture is cut off where sums are safe.
  constexpr double limit = 1 << 29;
  const int moveX = static_cast<int>(std::clamp(dotsX, -limit, limit));
  const int moveY = static_cast<int>(std::clamp(dotsY, -limit, limit));
  const CRect device(CPoint(), Dots());
  CRect from;
  CRect to;
  CRect within;
  if (!from.IntersectRect(m_grid.Dots(rect), device) || !within.IntersectRect(m_grid.Dots(clip), device)) {
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
  if (!m_grid.IsWhole() && exposure.deviceTransform().m11() == Scale()) {
    ExposeDots(exposure, rect);
  } else if (m_isOneColour) {
    exposure.fillRect(target, QColor::fromRgb(m_colour));
  } else {
    exposure.drawImage(target, m_image, QRectF(target.topLeft() * Scale(), target.size() * Scale()));
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

/// Dot upon dot: the window's corner is at the dot nearest to it.
void Surface::ExposeDots(QPainter& exposure, const CRect& rect) {
  exposure.save();
  const QPointF corner = exposure.deviceTransform().map(QPointF());
  const QTransform toDots = exposure.deviceTransform().inverted() * exposure.worldTransform();
  exposure.setWorldTransform(QTransform::fromTranslate(std::round(corner.x()), std::round(corner.y())) *
                             toDots);
  CRect dots = m_grid.Dots(rect);
  dots.IntersectRect(dots, CRect(CPoint(), m_dots));
  const QRect part(dots.left, dots.top, dots.Width(), dots.Height());
  const auto copy = [&](const QRect& to, const QRect& from) {
    m_isOneColour ? exposure.fillRect(to, QColor::fromRgb(m_colour)) : exposure.drawImage(to, m_image, from);
  };
  copy(part, part);
  if (corner.isNull()) {
    // A picture of the window alone may be a dot larger than the window is in its place.
    for (const QPoint by : {QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
      const QRect last =
          part & QRect((m_dots.cx - 1) * by.x(), (m_dots.cy - 1) * by.y(), m_dots.cx, m_dots.cy);
      copy(last.translated(by), last);
    }
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
  copy.setDevicePixelRatio(Scale());
  return copy;
}

std::vector<CRect> Surface::TakeDamage() {
  std::vector<CRect> pieces = m_damage.Take();
  const auto before = [](const DotAxis& axis, LONG dot) {
    return static_cast<LONG>(std::floor(axis.PixelsTo(dot)));
  };
  const auto after = [](const DotAxis& axis, LONG dot) {
    return static_cast<LONG>(std::ceil(axis.PixelsTo(dot)));
  };
  for (CRect& piece : pieces) {
    piece = CRect(before(m_grid.x, piece.left), before(m_grid.y, piece.top), after(m_grid.x, piece.right),
                  after(m_grid.y, piece.bottom));
  }
  return pieces;
}

}  // namespace coregui
