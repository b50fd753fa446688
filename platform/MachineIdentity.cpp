#include "platform/MachineIdentity.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace coregui {

DWORD SerialFromIdentity(std::string_view machineId, std::string_view hostName) {
  DWORD hash = 2166136261U;
  for (const char c : machineId.empty() ? hostName : machineId) {
    hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  }
  return hash == 0 ? 1 : hash;
}

void SetUpUserName() {
  const char* present = std::getenv("USERNAME");
  if (present != nullptr && *present != '\0') return;
  const passwd* account = getpwuid(geteuid());
  if (account != nullptr && account->pw_name != nullptr) setenv("USERNAME", account->pw_name, 1);
}

}  // namespace coregui
