#include "platform/Sound.h"

#include <QApplication>

namespace coregui {

void PlayBeep() {
  if (QCoreApplication::instance() != nullptr) QApplication::beep();
}

}  // namespace coregui
