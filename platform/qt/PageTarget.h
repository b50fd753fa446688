#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "platform/CPrinterDC.h"
#include "platform/qt/PainterTarget.h"
#include "platform/qt/SvgSheet.h"

class QPaintDevice;

namespace coregui {

/// The pages behind a CPrinterDC. All dots are the device's own: the scale is 1.
class PageTarget final : public PainterTarget {
 public:
  PageTarget(PrintOutput output, QString where, const PrintPage& page);
  ~PageTarget() override;

  CSize Dots() const override { return m_dots; }
  int Capability(int index) const override;
  int DotsPerInch() const override { return m_page.dotsPerInch; }

  bool StartDoc(const QString& title);
  bool StartPage();
  bool EndPage();
  bool EndDoc();
  void AbortDoc();

 protected:
  QPainter* OpenPainter(const Clip& clip) override;
  bool HasWholeDots() const override { return false; }

 private:
  bool MakeDevice();
  bool MakePrinter();
  bool BeginPainter();
  bool NextSheet();
  QString FileOfSheet(int sheet) const;

  PrintOutput m_output;
  QString m_where;
  PrintPage m_page;
  CSize m_dots;
  QString m_title;
  std::unique_ptr<QPaintDevice> m_device;
  std::unique_ptr<QPainter> m_painter;  ///< ends before the device goes
  std::unique_ptr<SvgSheet> m_svg;      ///< the page, instead of device and painter
  int m_sheets = 0;
  bool m_inDocument = false;
  bool m_inPage = false;
  bool m_failed = false;
};

}  // namespace coregui
