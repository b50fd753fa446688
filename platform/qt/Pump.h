#pragma once

#include <QObject>
#include <QPointer>
#include <vector>

#include "platform/qt/QtWindow.h"

namespace coregui {

/// The library's place in the toolkit's event loop: delivers posted messages, sends WM_PAINT when nothing
/// else waits, has changed surfaces shown, and tells the windows of a new theme.
class Pump : public QObject {
 public:
  /// The one pump; needs an application.
  static Pump& Get();
  void WakeForMessages();
  void WakeForPaint();
  void QueueExposure(QtWindow* window);

  bool event(QEvent* event) override;
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  explicit Pump(QObject* application);
  void Show();

  bool m_messages = false;
  bool m_paint = false;
  bool m_theme = false;
  std::vector<QPointer<QtWindow>> m_exposures;
};

}  // namespace coregui
