#include "platform/ControlMark.h"

#include <QAction>
#include <QLineEdit>
#include <QPalette>
#include <QStyle>

#include "platform/CString.h"
#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"

namespace coregui {
namespace {

constexpr const char* kSignName = "coregui-mark";

QColor Mixed(const QColor& ground, const QColor& sign, qreal part) {
  const auto mix = [part](int a, int b) { return static_cast<int>(a + (b - a) * part); };
  return {mix(ground.red(), sign.red()), mix(ground.green(), sign.green()), mix(ground.blue(), sign.blue())};
}

void ShowSign(QLineEdit& edit, bool on) {
  auto* sign = edit.findChild<QAction*>(kSignName);
  if (sign == nullptr && on) {
    sign =
        edit.addAction(edit.style()->standardIcon(QStyle::SP_MessageBoxWarning), QLineEdit::TrailingPosition);
    sign->setObjectName(kSignName);
  }
  if (sign != nullptr) sign->setVisible(on);
}

}  // namespace

void MarkControl(CWnd& control, const wchar_t* reason) {
  QWidget* widget = WidgetOf(&control);
  if (widget == nullptr) return;
  const QString text = ToQt(CString(reason));
  const bool on = !text.isEmpty();
  QPalette palette;  // the application's, so that a change of theme is followed
  if (on) {
    constexpr qreal kPart = 0.3;
    const QColor ground = palette.color(QPalette::Base);
    palette.setColor(QPalette::Base, Mixed(ground, QColor(220, 0, 0), kPart));
  }
  widget->setPalette(on ? palette : QPalette());
  widget->setToolTip(text);
  widget->setAccessibleDescription(text);
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) ShowSign(*edit, on);
}

}  // namespace coregui
