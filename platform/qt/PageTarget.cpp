#include "platform/qt/PageTarget.h"

#include <QFile>
#include <QFileInfo>
#include <QPageLayout>
#include <QPdfWriter>
#include <cmath>

#include "platform/qt/Application.h"
#include "platform/qt/PageModule.h"

namespace coregui {

namespace {

constexpr double millimetresPerInch = 25.4;

QPageLayout LayoutOf(const PrintPage& page) {
  const QPageSize size(QSizeF(page.width, page.height), QPageSize::Millimeter, QString(),
                       QPageSize::ExactMatch);
  return {size, QPageLayout::Portrait, QMarginsF()};
}

bool CanWrite(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly);
}

}  // namespace

PageTarget::PageTarget(PrintOutput output, QString where, const PrintPage& page)
    : PainterTarget(1.0), m_output(output), m_where(std::move(where)), m_page(page) {
  EnsureApplication();
  if (m_output == PrintOutput::printer) {
    MakePrinter();
  }
  const auto dots = [this](double millimetres) {
    return static_cast<LONG>(std::lround(millimetres / millimetresPerInch * m_page.dotsPerInch));
  };
  m_dots = CSize(dots(m_page.width), dots(m_page.height));
}

PageTarget::~PageTarget() {
  if (m_inDocument) {
    EndDoc();
  }
}

int PageTarget::Capability(int index) const {
  switch (index) {
    case HORZRES:
      return m_dots.cx;
    case VERTRES:
      return m_dots.cy;
    case LOGPIXELSX:
    case LOGPIXELSY:
      return m_page.dotsPerInch;
    default:
      return 0;
  }
}

bool PageTarget::MakePrinter() {
  const PageDevices* devices = LoadPageDevices();
  if (devices == nullptr) {
    return false;
  }
  PageDevices::Printer printer = devices->OpenPrinter(m_where, LayoutOf(m_page));
  if (printer.device == nullptr) {
    return false;
  }
  m_page.dotsPerInch = printer.dotsPerInch;
  m_device = std::move(printer.device);
  return true;
}

QString PageTarget::FileOfSheet(int sheet) const {
  if (m_output != PrintOutput::svg || sheet == 1) {
    return m_where;
  }
  const QFileInfo info(m_where);
  const QString suffix = info.suffix().isEmpty() ? QString() : "." + info.suffix();
  return info.path() + "/" + info.completeBaseName() + "-" + QString::number(sheet) + suffix;
}

bool PageTarget::MakeDevice() {
  switch (m_output) {
    case PrintOutput::printer: {
      if (m_device == nullptr && !MakePrinter()) {
        return false;
      }
      LoadPageDevices()->SetTitle(*m_device, m_title);
      return true;
    }
    case PrintOutput::pdf: {
      auto writer = std::make_unique<QPdfWriter>(m_where);
      writer->setPageLayout(LayoutOf(m_page));
      writer->setResolution(m_page.dotsPerInch);
      writer->setTitle(m_title);
      m_device = std::move(writer);
      return true;
    }
    case PrintOutput::svg:
      return true;  // each sheet is a file of its own
  }
  return false;
}

bool PageTarget::BeginPainter() {
  m_painter = std::make_unique<QPainter>();
  if (m_painter->begin(m_device.get())) {
    return true;
  }
  m_painter.reset();
  m_failed = true;
  return false;
}

bool PageTarget::StartDoc(const QString& title) {
  if (m_inDocument || (m_output != PrintOutput::printer && !CanWrite(m_where))) {
    return false;
  }
  m_title = title;
  m_sheets = 0;
  m_failed = false;
  m_inDocument = MakeDevice();
  return m_inDocument;
}

QPainter* PageTarget::OpenPainter(const Clip& clip) {
  if (!m_inPage) {
    return nullptr;
  }
  return m_svg == nullptr ? m_painter.get() : m_svg->PainterFor(RegionOf(clip));
}

bool PageTarget::NextSheet() {
  if (m_output == PrintOutput::svg) {
    m_svg = std::make_unique<SvgSheet>(FileOfSheet(m_sheets + 1), m_page, m_dots, m_title);
    return m_svg->IsOpen();
  }
  if (m_painter == nullptr) {
    return (m_device != nullptr || MakeDevice()) && BeginPainter();
  }
  return static_cast<QPagedPaintDevice&>(*m_device).newPage();
}

bool PageTarget::StartPage() {
  if (!m_inDocument || m_inPage) {
    return false;
  }
  m_inPage = NextSheet();
  m_failed = m_failed || !m_inPage;
  m_sheets += m_inPage ? 1 : 0;
  return m_inPage;
}

bool PageTarget::EndPage() {
  if (!m_inPage) {
    return false;
  }
  m_inPage = false;
  if (m_svg == nullptr) {
    return true;
  }
  const bool good = m_svg->Finish();
  m_svg.reset();
  m_failed = m_failed || !good;
  return good;
}

bool PageTarget::EndDoc() {
  if (!m_inDocument) {
    return false;
  }
  EndPage();
  if (m_painter != nullptr && !m_painter->end()) {
    m_failed = true;
  }
  m_painter.reset();
  m_device.reset();
  m_inDocument = false;
  return !m_failed && m_sheets > 0;
}

void PageTarget::AbortDoc() {
  if (!m_inDocument) {
    return;
  }
  if (m_output == PrintOutput::printer) {
    LoadPageDevices()->Abort(*m_device);
  }
  const int sheets = std::max(1, m_sheets);
  EndDoc();
  if (m_output != PrintOutput::printer) {
    for (int sheet = 1; sheet <= sheets; ++sheet) {
      QFile::remove(FileOfSheet(sheet));
    }
  }
}

}  // namespace coregui
