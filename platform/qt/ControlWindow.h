#pragma once

#include <QString>
#include <memory>

#include "platform/CWnd.h"
#include "platform/WindowState.h"
#include "platform/qt/QtWindow.h"
#include "platform/qt/interop.h"

class QAbstractScrollArea;

namespace coregui {

inline QString ToQt(const CString& text) {
  return QString::fromStdWString(text.Str());
}
inline QString ToQt(const wchar_t* text) {
  return text == nullptr ? QString() : QString::fromWCharArray(text);
}
inline CString FromQt(const QString& text) {
  return {text.toStdWString()};
}

/// A control over a widget of the toolkit.
class ControlWindow : public QtWindow {
 public:
  ControlWindow(CWnd& window, const CREATESTRUCT& create, std::unique_ptr<QWidget> widget);

  void SetFont(const CFont* font) override;
  bool DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

 protected:
  /// The keys that the control keeps from its dialog (DLGC_ values), `key` being at hand.
  virtual UINT DialogCode(UINT key) const;
  /// Sends the parent a notification of this control.
  void Notify(int code);
  /// The part of an item view or editor that gets the mouse.
  void WatchViewport(QAbstractScrollArea& area);
  void Deliver(QWidget& receiver, QEvent& event) override;
};

/// The native side of a control, null when it has none or the toolkit destroyed its widget.
template <class Native>
Native* NativeOf(const CWnd& window) {
  auto* native = dynamic_cast<Native*>(window.State().native.get());
  return native == nullptr || native->GetWidget() == nullptr ? nullptr : native;
}

}  // namespace coregui
