#include "platform/EditWatch.h"

#include <QLineEdit>
#include <utility>

#include "platform/CEdit.h"
#include "platform/qt/interop.h"

namespace coregui {

void WatchEdit(CEdit& edit, std::function<void()> changed) {
  auto* line = qobject_cast<QLineEdit*>(WidgetOf(&edit));
  if (line == nullptr) return;
  QObject::connect(line, &QLineEdit::textChanged, line, [call = std::move(changed)] { call(); });
}

}  // namespace coregui
