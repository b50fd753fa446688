#pragma once

#include "platform/CWnd.h"

class QWidget;

namespace coregui {

/// Stands for a widget of the program's own. Lives as long as the widget, which owns nothing of it.
class ForeignWindow : public CWnd {
 public:
  /// The one for the widget, made when first asked for.
  static CWnd* For(QWidget& widget);
  ~ForeignWindow() override;

 protected:
  std::unique_ptr<NativeWindow> MakeNative(const CREATESTRUCT& create) override;

 private:
  explicit ForeignWindow(QWidget& widget);

  QWidget& m_widget;
};

}  // namespace coregui
