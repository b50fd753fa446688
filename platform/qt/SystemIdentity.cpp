#include <QByteArray>
#include <QString>
#include <QSysInfo>

#include "platform/MachineIdentity.h"
#include "platform/System.h"

DWORD GetMachineSerial() {
  static const DWORD serial = coregui::SerialFromIdentity(QSysInfo::machineUniqueId().toStdString(),
                                                          QSysInfo::machineHostName().toStdString());
  return serial;
}
