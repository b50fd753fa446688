#include "dialogs/LockFile.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include "core/Fields.h"
#include "core/Paths.h"
#include "core/Status.h"
#include "core/TextFile.h"
#include "core/Utf8.h"
#include "dialogs/MessageFunctions.h"
#include "platform/System.h"

namespace {

constexpr int kLongestPath = 260;
constexpr int kLongestName = 260;
constexpr int kLongestLine = 260;
constexpr int kMostRead = 1024;
constexpr int kLongestHolder = 256;
constexpr int kLongestSerial = 50;

/// Who asks, or who a lock file names.
struct LockIdentity {
  CString user;
  CString serial;
};

LockIdentity Caller() {
  const char* name = std::getenv("USERNAME");
  CString user = CString::FromUtf8(name == nullptr ? "" : name).Left(kLongestName);
  if (user.IsEmpty()) user = L"Unknown User";
  return {user, CString::Formatted(L"%X", GetMachineSerial())};
}

std::wstring LockPath(const wchar_t* dataFile, const wchar_t* lockExtension) {
  const CString path(dataFile);
  if (path.GetLength() > kLongestPath) {
    coreStatusOut(CString::Formatted(L"%s: only %d characters of the path name its lock file",
                                     path.GetString(), kLongestPath));
  }
  return coreChangeFileExt(path.Left(kLongestPath), lockExtension);
}

void Remove(const std::wstring& path, std::error_code& error) {
  std::filesystem::remove(coregui::ToFileName(path), error);
}

/// False when not every byte of the lock could be written; what there is of it is removed again.
bool Create(const std::wstring& path, const LockIdentity& caller) {
  coregui::CoreFilePtr file(coreFileOpen(path.c_str(), L"w+t"));
  if (file == nullptr) return false;
  const CString line = CString::Formatted(L"%s,%s", caller.user.GetString(), caller.serial.GetString());
  const bool written = coreFileTxtWrite(file.get(), line.Left(kLongestLine));
  if (coreFileClose(file.release()) && written) return true;
  std::error_code ignored;  // the failure to write is what counts
  Remove(path, ignored);
  return false;
}

bool Read(const std::wstring& path, LockIdentity& holder) {
  const coregui::CoreFilePtr file(coreFileOpen(path.c_str(), L"r+t"));
  if (file == nullptr) return false;
  std::wstring line;
  coreFileTxtRead(file.get(), line, kMostRead);
  holder.user = coreGetField(line.c_str(), 1, L',', L"", kLongestHolder);
  holder.serial = coreGetField(line.c_str(), 2, L',', L"0", kLongestSerial);
  return true;
}

/// Kept: with a serial, the user's name does not count, so that whoever works on the same machine goes on
/// where the last one stopped.
bool IsOwn(const LockIdentity& holder, const LockIdentity& caller) {
  return holder.serial == L"0" ? holder.user == caller.user : holder.serial == caller.serial;
}

/// Kept: the wording, which programs look for in the status output.
constexpr const wchar_t* kCannotRead = L"... Enable to read lock file";

}  // namespace

bool coreCheckLockStatus(const wchar_t* dataFile, const wchar_t* lockExtension, bool checkOnly,
                         CWnd* parent) {
  const LockIdentity caller = Caller();
  const std::wstring path = LockPath(dataFile, lockExtension);
  if (!coreFileExist(path.c_str())) {
    if (checkOnly || Create(path, caller)) return true;
    coreStatusOut(L"... Unable to create lock file");
    return false;
  }
  LockIdentity holder;
  if (!Read(path, holder)) {
    coreStatusOut(kCannotRead);
    return false;
  }
  if (IsOwn(holder, caller)) return true;
  if (!checkOnly) {
    ErrorMessage(CString::Formatted(L"Data file %s\nis marked as read-only.\nIn use by %s", dataFile,
                                    holder.user.GetString()),
                 parent);
  }
  return false;
}

bool coreReleaseLock(const wchar_t* dataFile, const wchar_t* lockExtension) {
  const std::wstring path = LockPath(dataFile, lockExtension);
  if (!coreFileExist(path.c_str())) return true;
  LockIdentity holder;
  if (!Read(path, holder)) {
    coreStatusOut(kCannotRead);
    return false;
  }
  if (!IsOwn(holder, Caller())) return false;
  std::error_code error;
  Remove(path, error);
  if (error) {
    coreStatusOut(CString::Formatted(L"%s: the lock file cannot be removed: %s", path.c_str(),
                                     GetErrorText(static_cast<DWORD>(error.value())).GetString()));
  }
  return !error;
}

bool coreGetLockHolder(const wchar_t* dataFile, const wchar_t* lockExtension, CString& user, bool* isOwn) {
  const std::wstring path = LockPath(dataFile, lockExtension);
  LockIdentity holder;
  if (!coreFileExist(path.c_str()) || !Read(path, holder)) return false;
  user = holder.user;
  if (isOwn != nullptr) *isOwn = IsOwn(holder, Caller());
  return true;
}
