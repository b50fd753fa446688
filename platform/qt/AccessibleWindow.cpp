#include "platform/qt/AccessibleWindow.h"

#include <QAccessibleWidget>
#include <memory>

#include "platform/CWnd.h"
#include "platform/qt/QtWindow.h"

namespace coregui {
namespace {

class AccessibleWindow : public QAccessibleWidget {
 public:
  explicit AccessibleWindow(QWidget& widget) : QAccessibleWidget(&widget) {}

  /// A window with a caption is one, or a dialog when it stands in front of others; a part that has a name is
  /// something to look at, one without a name only holds others.
  QAccessible::Role role() const override {
    const QtWindow* window = QtWindow::Of(widget());
    if (window != nullptr && (window->Window().GetStyle() & WS_CHILD) == 0) {
      return (window->Window().GetStyle() & WS_POPUP) != 0 ? QAccessible::Dialog : QAccessible::Window;
    }
    return widget()->accessibleName().isEmpty() ? QAccessible::Pane : QAccessible::Canvas;
  }

  /// The focus lies in a part without a name where a control is made of several windows: the control's name
  /// is what a person is told.
  QString text(QAccessible::Text kind) const override {
    QString own = QAccessibleWidget::text(kind);
    if (kind != QAccessible::Name || !own.isEmpty() || !widget()->hasFocus()) {
      return own;
    }
    const QWidget* holder = widget();
    while (holder->accessibleName().isEmpty() && !holder->isWindow()) {
      holder = holder->parentWidget();
    }
    return holder->accessibleName();
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = state.focusable || widget()->hasFocus();
    return state;
  }
};

/// Asked as soon as a widget is made, when its window is not yet whole.
QAccessibleInterface* Describe(const QString& /*className*/, QObject* object) {
  if (object->metaObject() != &QWidget::staticMetaObject) {
    return nullptr;  // a control's own widget
  }
  auto& widget = static_cast<QWidget&>(*object);
  const QtWindow* window = QtWindow::Of(&widget);
  if (window == nullptr || window->GetWidget() != &widget) {
    return nullptr;
  }
  return std::make_unique<AccessibleWindow>(widget).release();  // the toolkit's from here on
}

}  // namespace

void DescribePaintedWindows() {
  QAccessible::installFactory(&Describe);  // takes the same one once
}

}  // namespace coregui
