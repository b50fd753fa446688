#include "platform/Sound.h"

#include <QApplication>

#include "platform/Toolkit.h"

namespace coregui {

void PlayBeep() {
  if (HasToolkit()) QApplication::beep();
}

}  // namespace coregui
