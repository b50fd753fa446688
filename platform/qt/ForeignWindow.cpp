#include "platform/qt/ForeignWindow.h"

#include <QWidget>
#include <memory>
#include <unordered_map>

#include "platform/WindowState.h"
#include "platform/qt/QtWindow.h"
#include "platform/qt/interop.h"

namespace coregui {
namespace {

using ForeignWindows = std::unordered_map<const QObject*, std::unique_ptr<CWnd>>;

ForeignWindows& Windows() {
  static auto& windows = *new ForeignWindows;  // never destroyed: see WindowRegistry.cpp
  return windows;
}

}  // namespace

ForeignWindow::ForeignWindow(QWidget& widget) : m_widget(widget) {}

ForeignWindow::~ForeignWindow() {
  CWnd::DestroyWindow();
}

std::unique_ptr<NativeWindow> ForeignWindow::MakeNative(const CREATESTRUCT& /*create*/) {
  return std::make_unique<QtWindow>(*this, m_widget);
}

CWnd* ForeignWindow::For(QWidget& widget) {
  const auto known = Windows().find(&widget);
  if (known != Windows().end()) {
    return known->second.get();
  }
  std::unique_ptr<ForeignWindow> window(new ForeignWindow(widget));
  const QPoint at = widget.mapToGlobal(QPoint(0, 0));
  const CRect rect(CPoint(at.x(), at.y()), CSize(widget.width(), widget.height()));
  window->Create(L"", widget.windowTitle().toStdWString().c_str(), WS_OVERLAPPED, rect, nullptr, 0);
  window->State().look.style |= WS_VISIBLE;
  QObject::connect(&widget, &QObject::destroyed, [](QObject* gone) {
    // Out of the map first: the end of the window may come back here.
    const auto node = Windows().extract(gone);
  });
  return Windows().emplace(&widget, std::move(window)).first->second.get();
}

QWidget* WidgetOf(const CWnd* window) {
  return window == nullptr || window->State().native == nullptr
             ? nullptr
             : static_cast<QWidget*>(window->State().native->Widget());
}

QWidget* WidgetOf(HWND window) {
  return WidgetOf(CWnd::FromHandle(window));
}

CWnd* WindowOf(QWidget* widget) {
  if (widget == nullptr) {
    return nullptr;
  }
  const QtWindow* own = QtWindow::Of(widget);
  return own != nullptr ? &own->Window() : ForeignWindow::For(*widget);
}

HWND HandleOf(QWidget* widget) {
  const CWnd* window = WindowOf(widget);
  return window == nullptr ? nullptr : window->GetSafeHwnd();
}

}  // namespace coregui
