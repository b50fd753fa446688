#include "platform/FileCopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "platform/CString.h"

namespace fs = std::filesystem;

namespace coregui {
namespace {

constexpr std::size_t kChunk = 1U << 18U;
/// After so many bytes the disk catches up, so that a large copy's progress is true and its end not a long
/// standstill in which no progress is reported.
constexpr std::uint64_t kFlushEvery = std::uint64_t{1} << 25U;

/// An open file, closed at the end; closing can fail.
class Descriptor {
 public:
  explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Get() const { return m_descriptor; }
  bool IsOpen() const { return m_descriptor >= 0; }
  bool Close() {
    const int open = std::exchange(m_descriptor, -1);
    return open < 0 || close(open) == 0;
  }

 private:
  int m_descriptor;
};

/// A new file beside the destination, removed unless it takes its place.
class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& destination)
      : m_name(destination.string() + ".XXXXXX"), m_file(mkstemp(m_name.data())) {
    m_exists = m_file.IsOpen();
  }
  ~TemporaryFile() {
    if (!m_exists) return;
    const int reason = errno;
    unlink(m_name.c_str());
    errno = reason;
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  Descriptor& File() { return m_file; }
  bool TakePlaceOf(const fs::path& destination) {
    if (!m_file.Close() || std::rename(m_name.c_str(), destination.c_str()) != 0) return false;
    m_exists = false;
    return true;
  }

 private:
  std::string m_name;
  Descriptor m_file;
  bool m_exists;
};

bool Fail(int reason) {
  errno = reason;
  return false;
}

bool WriteAll(int file, const char* bytes, std::size_t count) {
  while (count > 0) {
    const ssize_t written = write(file, bytes, count);
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes += written;
    count -= static_cast<std::size_t>(written);
  }
  return true;
}

ssize_t ReadChunk(int file, std::vector<char>& chunk) {
  ssize_t got = 0;
  do {
    got = read(file, chunk.data(), chunk.size());
  } while (got < 0 && errno == EINTR);
  return got;
}

/// Whether the two can be source and destination of a copy, and the room for it is there.
bool Check(const struct stat& source, const fs::path& destination) {
  if (S_ISDIR(source.st_mode)) return Fail(EISDIR);
  if (!S_ISREG(source.st_mode)) return Fail(EINVAL);
  struct stat there {};
  if (stat(destination.c_str(), &there) == 0) {
    if (S_ISDIR(there.st_mode)) return Fail(EISDIR);
    if (!S_ISREG(there.st_mode)) return Fail(EINVAL);
    if (there.st_dev == source.st_dev && there.st_ino == source.st_ino) return Fail(EINVAL);
  }
  const CString path = CString::FromUtf8(destination.string());
  return GetFreeDiskSpace(path) >= static_cast<std::uint64_t>(source.st_size) || Fail(ENOSPC);
}

bool CopyBytes(int from, int to, CopyProgress state, const std::function<bool(const CopyProgress&)>& report) {
  std::vector<char> chunk(kChunk);
  if (!report(state)) return Fail(ECANCELED);
  state.reason = CopyReason::chunkFinished;
  for (;;) {
    const ssize_t got = ReadChunk(from, chunk);
    if (got < 0 || !WriteAll(to, chunk.data(), static_cast<std::size_t>(std::max<ssize_t>(got, 0))))
      return false;
    if (got == 0 && state.transferred > 0) return true;
    const std::uint64_t before = state.transferred;
    state.transferred += static_cast<std::uint64_t>(got);
    if (before / kFlushEvery != state.transferred / kFlushEvery && fdatasync(to) != 0) return false;
    if (!report(state)) return Fail(ECANCELED);
    if (got == 0) return true;
  }
}

}  // namespace

bool CopyFileWithProgress(const wchar_t* source, const wchar_t* destination,
                          const std::function<CopyAnswer(const CopyProgress&)>& progress,
                          const bool* cancel) {
  const Descriptor from(open(CString(source).ToUtf8().c_str(), O_RDONLY | O_CLOEXEC));
  struct stat info {};
  if (!from.IsOpen() || fstat(from.Get(), &info) != 0) return false;
  std::error_code none;
  fs::path target(CString(destination).ToUtf8());
  if (fs::is_symlink(target, none)) target = fs::weakly_canonical(target, none);
  if (target.empty()) return Fail(ENOENT);
  if (!Check(info, target)) return false;

  TemporaryFile temporary(target);
  if (!temporary.File().IsOpen()) return false;
  const int to = temporary.File().Get();
  const auto report = [&](const CopyProgress& state) {
    if (progress && progress(state) == CopyAnswer::cancel) return false;
    return cancel == nullptr || !*cancel;
  };
  if (!CopyBytes(from.Get(), to, {static_cast<std::uint64_t>(info.st_size), 0, CopyReason::started},
                 report)) {
    return false;
  }
  const timespec times[2] = {info.st_atim, info.st_mtim};
  if (fchmod(to, info.st_mode & 07777U) != 0 || futimens(to, times) != 0 || fsync(to) != 0) return false;
  return temporary.TakePlaceOf(target);
}

std::uint64_t GetFreeDiskSpace(const wchar_t* path) {
  std::error_code error;
  const fs::path folder = fs::absolute(CString(path).ToUtf8(), error).parent_path();
  const fs::space_info space = fs::space(folder, error);
  return error ? std::numeric_limits<std::uint64_t>::max() : static_cast<std::uint64_t>(space.available);
}

}  // namespace coregui
