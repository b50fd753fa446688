#include "platform/qt/LabelWidget.h"

#include <QAbstractButton>

namespace coregui {
namespace {

QString WithoutMark(const QString& text) {
  QString shown;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && i + 1 < text.size()) ++i;
    shown += text[i];
  }
  return shown;
}

}  // namespace

void LabelWidget::ShowText(const QString& text) {
  m_text = text;
  Update();
}

/// The toolkit underlines an access key only where there is a control to lead to; elsewhere it would show
/// '&'.
void LabelWidget::Update() {
  setText(buddy() == nullptr ? WithoutMark(m_text) : m_text);
}

void LabelWidget::NameNew(QWidget& control) {
  if (control.parentWidget() == nullptr || qobject_cast<QAbstractButton*>(&control) != nullptr) return;
  const QObjectList& siblings = control.parentWidget()->children();  // in the order of their creation
  const qsizetype at = siblings.lastIndexOf(&control);
  auto* label = at < 1 ? nullptr : dynamic_cast<LabelWidget*>(siblings[at - 1]);
  if (label == nullptr || dynamic_cast<LabelWidget*>(&control) != nullptr) return;
  label->setBuddy(&control);
  label->Update();
  connect(&control, &QObject::destroyed, label, [label] {
    label->setBuddy(nullptr);
    label->Update();
  });
}

}  // namespace coregui
