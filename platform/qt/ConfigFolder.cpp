#include "platform/ConfigFolder.h"

#include <QStandardPaths>

namespace coregui {

CString ConfigFolder() {
  return {QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdWString()};
}

}  // namespace coregui
