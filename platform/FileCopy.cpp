#include "platform/FileCopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "core/Utf8.h"
#include "platform/CString.h"

namespace fs = std::filesystem;

namespace coregui {
namespace {

constexpr std::size_t kChunk = 1U << 18U;

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

/// The pattern of a temporary file's name, no longer than file systems take.
std::string NameBeside(const fs::path& destination) {
  constexpr std::size_t kMostBytes = 240;
  return (destination.parent_path() / (destination.filename().string().substr(0, kMostBytes) + ".XXXXXX"))
      .string();
}

/// A new file beside the destination, removed unless it takes its place.
class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& destination)
      : m_name(NameBeside(destination)), m_file(mkstemp(m_name.data())) {
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

/// Lets the disk catch up from time to time, so that a large copy's progress is true and its end not a long
/// standstill in which no progress is reported. A slow disk catches up more often: no wait is to be felt.
class DiskPace {
 public:
  explicit DiskPace(int file) : m_file(file) {}
  /// So many further bytes are written. False when the disk cannot take what was written.
  bool Note(std::size_t count) {
    m_pending += count;
    if (m_pending < m_every) return true;
    m_pending = 0;
    using std::chrono::steady_clock;
    const steady_clock::time_point begin = steady_clock::now();
    if (fdatasync(m_file) != 0) return false;
    const auto waited = steady_clock::now() - begin;
    if (waited > kTooLong) m_every = std::max(kLeast, m_every / 2);
    if (waited < kShort) m_every = std::min(kMost, m_every * 2);
    return true;
  }

 private:
  static constexpr std::chrono::milliseconds kTooLong{120};
  static constexpr std::chrono::milliseconds kShort{30};
  static constexpr std::size_t kLeast = std::size_t{1} << 20U;  // a disk's mere delay is not to govern
  static constexpr std::size_t kMost = std::size_t{1} << 26U;

  int m_file;
  std::size_t m_every = kLeast;
  std::size_t m_pending = 0;
};

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
    // Taking a file's place needs no right to write it: what is protected would be lost.
    if (faccessat(AT_FDCWD, destination.c_str(), W_OK, AT_EACCESS) != 0) return false;
  }
  const CString path = CString::FromUtf8(destination.string());
  return GetFreeDiskSpace(path) >= static_cast<std::uint64_t>(source.st_size) || Fail(ENOSPC);
}

bool CopyBytes(int from, int to, CopyProgress state, const std::function<bool(const CopyProgress&)>& report) {
  std::vector<char> chunk(kChunk);
  DiskPace pace(to);
  if (!report(state)) return Fail(ECANCELED);
  state.reason = CopyReason::chunkFinished;
  for (;;) {
    const ssize_t got = ReadChunk(from, chunk);
    if (got < 0) return false;
    if (got == 0 && state.transferred > 0) return true;
    const auto count = static_cast<std::size_t>(got);
    if (!WriteAll(to, chunk.data(), count) || !pace.Note(count)) return false;
    state.transferred += count;
    if (!report(state)) return Fail(ECANCELED);
    if (got == 0) return true;
  }
}

}  // namespace

bool CopyFileWithProgress(const wchar_t* source, const wchar_t* destination,
                          const std::function<CopyAnswer(const CopyProgress&)>& progress,
                          const bool* cancel) {
  // Not blocking: a pipe would otherwise be waited for before it is refused.
  const Descriptor from(open(ToFileName(CString(source).Str()).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat info {};
  if (!from.IsOpen() || fstat(from.Get(), &info) != 0) return false;
  std::error_code none;
  fs::path target(ToFileName(CString(destination).Str()));
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
  // Some file systems keep neither rights nor times; the copy is good all the same.
  (void)fchmod(to, info.st_mode & 07777U);
  (void)futimens(to, times);
  return fsync(to) == 0 && temporary.TakePlaceOf(target);
}

std::uint64_t GetFreeDiskSpace(const wchar_t* path) {
  std::error_code error;
  const fs::path folder = fs::absolute(ToFileName(CString(path).Str()), error).parent_path();
  const fs::space_info space = fs::space(folder, error);
  return error ? std::numeric_limits<std::uint64_t>::max() : static_cast<std::uint64_t>(space.available);
}

}  // namespace coregui
