#pragma once

#include <QLabel>

namespace coregui {

/// The toolkit's label. It names the control that is created right behind it: the label's access key leads to
/// that control, and a screen reader speaks the label for it. Without such a control no access key is shown.
class LabelWidget : public QLabel {
 public:
  /// Plain text in which '&' marks the access key.
  void ShowText(const QString& text);

  /// Has the label that stands before `control` in its parent, if any, name it. Not for buttons, which bear
  /// their own names.
  static void NameNew(QWidget& control);

 private:
  void Update();

  QString m_text;
};

}  // namespace coregui
