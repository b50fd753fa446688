#include "platform/qt/late/PageDevices.h"

#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSvgGenerator>

namespace {

class ToolkitDevices : public coregui::PageDevices {
 public:
  Printer OpenPrinter(const QString& name, const QPageLayout& layout) const override {
    const QPrinterInfo info =
        name.isEmpty() ? QPrinterInfo::defaultPrinter() : QPrinterInfo::printerInfo(name);
    if (info.isNull()) return {};
    auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    printer->setFullPage(true);
    printer->setPageLayout(layout);
    const int dotsPerInch = printer->resolution();
    return {std::move(printer), dotsPerInch};
  }
  void SetTitle(QPaintDevice& printer, const QString& title) const override {
    static_cast<QPrinter&>(printer).setDocName(title);
  }
  void Abort(QPaintDevice& printer) const override { static_cast<QPrinter&>(printer).abort(); }
  std::unique_ptr<QPaintDevice> MakeSvg(QIODevice& out, const QRect& dots, int dotsPerInch) const override {
    auto generator = std::make_unique<QSvgGenerator>();
    generator->setOutputDevice(&out);
    generator->setResolution(dotsPerInch);
    generator->setSize(dots.size());
    generator->setViewBox(dots);
    return generator;
  }
};

}  // namespace

extern "C" Q_DECL_EXPORT const coregui::PageDevices* coregui_page_devices() {
  static const ToolkitDevices devices;
  return &devices;
}
