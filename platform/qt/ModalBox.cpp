#include "platform/ModalBox.h"

#include <QApplication>
#include <QDialog>
#include <QPixmap>
#include <vector>

#include "platform/CBitmap.h"
#include "platform/Types.h"

namespace coregui {
namespace {

QWidget* Front() {
  QWidget* box = qApp == nullptr ? nullptr : QApplication::activeModalWidget();
  return box != nullptr && box->isVisible() ? box : nullptr;
}

}  // namespace

bool DrawModalBox(CBitmap& picture) {
  QWidget* box = Front();
  if (box == nullptr) return false;
  const QImage image = box->grab().toImage().convertToFormat(QImage::Format_ARGB32);
  std::vector<DWORD> pixels;
  pixels.reserve(static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height()));
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const DWORD*>(image.constScanLine(y));
    pixels.insert(pixels.end(), row, row + image.width());
  }
  return picture.CreateFromPixels(image.width(), image.height(), pixels, image.devicePixelRatio()) != FALSE;
}

bool CloseModalBox() {
  QWidget* box = Front();
  if (box == nullptr) return false;
  // A box of buttons without a Cancel ignores being closed and rejected.
  if (auto* dialog = qobject_cast<QDialog*>(box)) {
    dialog->done(QDialog::Rejected);
  } else {
    box->close();
  }
  return true;
}

}  // namespace coregui
