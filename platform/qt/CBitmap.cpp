#include "platform/CBitmap.h"

#include <QImage>
#include <cmath>
#include <new>
#include <utility>

#include "platform/CDC.h"
#include "platform/DrawTarget.h"
#include "platform/qt/BitmapData.h"

namespace {

std::shared_ptr<coregui::BitmapData> DataOf(QImage image, CSize size, const coregui::DotGrid& grid) {
  return std::make_shared<coregui::BitmapData>(
      std::make_shared<coregui::Surface>(std::move(image), size, grid));
}

/// How many pixels so many dots come to.
LONG Pixels(int dots, double scale) {
  return static_cast<LONG>(std::floor(dots / scale + 0.5));
}

}  // namespace

CBitmap::CBitmap() = default;
CBitmap::~CBitmap() = default;

BOOL CBitmap::CreateCompatibleBitmap(const CDC* like, int width, int height) {
  m_data.reset();
  const coregui::DotGrid grid = like != nullptr ? like->Target()->Grid() : coregui::DotGrid(1.0);
  const double scale = grid.Scale();
  constexpr double largest = 32767;
  constexpr double mostDots = 1 << 27;  // half a gigabyte
  if (width < 1 || height < 1 || width * scale > largest || height * scale > largest ||
      width * scale * height * scale > mostDots) {
    return FALSE;
  }
  const CSize size(width, height);
  const CSize dots = grid.Dots(CRect(CPoint(), size)).Size();
  QImage image(dots.cx, dots.cy, QImage::Format_RGB32);
  if (image.isNull()) {
    return FALSE;
  }
  image.fill(Qt::black);
  m_data = DataOf(std::move(image), size, grid);
  return TRUE;
}

bool CBitmap::IsCompatible(const CDC& with) const {
  return m_data != nullptr && m_data->surface->Grid() == with.Target()->Grid();
}

BOOL CBitmap::CreateFromPixels(int width, int height, const std::vector<DWORD>& pixels, double scale) {
  m_data.reset();
  if (width < 1 || height < 1 || !(scale > 0) ||
      pixels.size() < static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {
    return FALSE;
  }
  QImage image(width, height, QImage::Format_ARGB32);
  if (image.isNull()) {
    return FALSE;
  }
  for (int y = 0; y < height; ++y) {
    std::copy_n(pixels.data() + static_cast<std::ptrdiff_t>(y) * width, width,
                reinterpret_cast<DWORD*>(image.scanLine(y)));
  }
  image.convertTo(QImage::Format_ARGB32_Premultiplied);
  m_data = DataOf(std::move(image), CSize(Pixels(width, scale), Pixels(height, scale)), scale);
  return TRUE;
}

BOOL CBitmap::LoadFile(const wchar_t* path) {
  m_data.reset();
  QImage image(QString::fromWCharArray(path));
  if (image.isNull()) {
    return FALSE;
  }
  image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
  const CSize size(image.width(), image.height());
  m_data = DataOf(std::move(image), size, 1.0);
  return TRUE;
}

BOOL CBitmap::SaveFile(const wchar_t* path) const {
  return m_data != nullptr && m_data->surface->Snapshot().save(QString::fromWCharArray(path), "PNG") ? TRUE
                                                                                                     : FALSE;
}

void CBitmap::DeleteObject() {
  m_data.reset();
}

CSize CBitmap::GetSize() const {
  return m_data != nullptr ? m_data->surface->Size() : CSize();
}

COLORREF CBitmap::GetPixel(int x, int y) const {
  if (m_data == nullptr || !m_data->surface->Image().valid(x, y)) {
    return 0xFFFFFFFF;
  }
  const QRgb dot = m_data->surface->Image().pixel(x, y);
  return RGB(qRed(dot), qGreen(dot), qBlue(dot));
}
