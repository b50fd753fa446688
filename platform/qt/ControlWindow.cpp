#include "platform/qt/ControlWindow.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QFont>

#include "platform/CFont.h"
#include "platform/qt/FontFace.h"
#include "platform/qt/LabelWidget.h"

namespace coregui {
namespace {

/// Lets the area itself handle an event of its viewport.
struct ViewportAccess : QAbstractScrollArea {
  static bool Give(QAbstractScrollArea& area, QEvent& event) {
    return (area.*&ViewportAccess::viewportEvent)(&event);
  }
};

}  // namespace

ControlWindow::ControlWindow(CWnd& window, const CREATESTRUCT& create, std::unique_ptr<QWidget> widget)
    : QtWindow(window, create, std::move(widget)) {
  LabelWidget::NameNew(*GetWidget());
}

void ControlWindow::SetFont(const CFont* font) {
  if (GetWidget() == nullptr) return;
  constexpr int kDotsPerInch = 96;
  GetWidget()->setFont(font == nullptr || !font->IsCreated()
                           ? QFont()
                           : FontFace::For(font->Data(), kDotsPerInch, 1.0)->Font());
}

UINT ControlWindow::DialogCode(UINT /*key*/) const {
  return DLGC_WANTARROWS;
}

bool ControlWindow::DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  if (message == WM_GETDLGCODE) {
    result = DialogCode(static_cast<UINT>(wParam));
    return true;
  }
  return QtWindow::DefaultMessage(message, wParam, lParam, result);
}

void ControlWindow::Notify(int code) {
  CWnd* parent = Window().GetParent();
  if (parent == nullptr || !Window().HasWindow()) return;
  parent->SendMessage(WM_COMMAND, MAKEWPARAM(Window().GetDlgCtrlID(), code),
                      reinterpret_cast<LPARAM>(Window().GetSafeHwnd()));
}

void ControlWindow::WatchViewport(QAbstractScrollArea& area) {
  Watch(area.viewport());
}

void ControlWindow::Deliver(QWidget& receiver, QEvent& event) {
  auto* area = qobject_cast<QAbstractScrollArea*>(receiver.parentWidget());
  const bool ofViewport = area != nullptr && area->viewport() == &receiver;
  if (!ofViewport || !ViewportAccess::Give(*area, event)) QtWindow::Deliver(receiver, event);
}

}  // namespace coregui
