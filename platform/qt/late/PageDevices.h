#pragma once

#include <QString>
#include <memory>

class QIODevice;
class QPageLayout;
class QPaintDevice;
class QRect;

namespace coregui {

/// The page devices of the toolkit's libraries for printers and SVG files, in a module of their own.
class PageDevices {
 public:
  struct Printer {
    std::unique_ptr<QPaintDevice> device;  ///< a QPagedPaintDevice; null: there is no such printer
    int dotsPerInch = 0;
  };

  virtual ~PageDevices() = default;
  /// The printer of this name; the standard one without a name.
  virtual Printer OpenPrinter(const QString& name, const QPageLayout& layout) const = 0;
  virtual void SetTitle(QPaintDevice& printer, const QString& title) const = 0;
  virtual void Abort(QPaintDevice& printer) const = 0;
  /// Writes what is painted on it in `dots` to `out`, which outlives it.
  virtual std::unique_ptr<QPaintDevice> MakeSvg(QIODevice& out, const QRect& dots, int dotsPerInch) const = 0;
};

}  // namespace coregui

/// What the module has; it lives as long as the program.
extern "C" const coregui::PageDevices* coregui_page_devices();
