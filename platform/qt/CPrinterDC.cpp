#include "platform/CPrinterDC.h"

#include "platform/qt/PageTarget.h"

namespace {

QString Text(const wchar_t* text) {
  return text != nullptr ? QString::fromWCharArray(text) : QString();
}

coregui::PageTarget& Page(const CPrinterDC& dc) {
  return static_cast<coregui::PageTarget&>(*dc.Target());
}

}  // namespace

CPrinterDC::CPrinterDC(PrintOutput output, const wchar_t* where, const PrintPage& page)
    : CDC(std::make_shared<coregui::PageTarget>(output, Text(where), page)) {}

CPrinterDC::~CPrinterDC() = default;

bool CPrinterDC::StartDoc(const wchar_t* title) {
  return Page(*this).StartDoc(Text(title));
}
bool CPrinterDC::StartPage() {
  return Page(*this).StartPage();
}
bool CPrinterDC::EndPage() {
  return Page(*this).EndPage();
}
bool CPrinterDC::EndDoc() {
  return Page(*this).EndDoc();
}
void CPrinterDC::AbortDoc() {
  Page(*this).AbortDoc();
}
