#include "core/TextWriter.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <utility>

#include "core/Utf8.h"

namespace coregui {

namespace {

/// Where a path leads when links are followed; the path itself when nothing is there yet.
std::string FollowLinks(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
  return real ? std::string(real.get()) : path;
}

/// The access rights that the new file gets: those of the file it replaces, or of any new file.
bool FindRights(const std::string& path, mode_t& rights) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    if (errno != ENOENT || path.empty()) return false;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    rights = 0666U & ~mask;
    return true;
  }
  rights = status.st_mode & 0777U;
  if (!S_ISREG(status.st_mode)) {
    errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
    return false;
  }
  return ::access(path.c_str(), W_OK) == 0;
}

}  // namespace

bool TextWriter::Open(const wchar_t* path) {
  Discard();
  m_path = FollowLinks(ToFileName(path == nullptr ? L"" : path));
  mode_t rights = 0;
  if (!FindRights(m_path, rights)) return false;
  std::string name = m_path.substr(0, m_path.rfind('/') + 1) + ".save-XXXXXX";
  const int descriptor = ::mkstemp(name.data());
  if (descriptor < 0) return false;
  m_temporary = std::move(name);
  m_failure = 0;
  m_stream.reset(::fdopen(descriptor, "wb"));
  if (m_stream && ::fchmod(descriptor, rights) == 0) return true;
  const int reason = errno;
  if (!m_stream) ::close(descriptor);
  Discard();
  errno = reason;
  return false;
}

bool TextWriter::WriteLine(std::wstring_view text) {
  if (!m_stream) {
    errno = EBADF;
    return false;
  }
  const std::string bytes = ToUtf8(text) + '\n';
  if (std::fwrite(bytes.data(), 1, bytes.size(), m_stream.get()) == bytes.size()) return true;
  if (m_failure == 0) m_failure = errno;
  return false;
}

bool TextWriter::Commit() {
  if (!m_stream) {
    errno = EBADF;
    return false;
  }
  std::FILE* stream = m_stream.get();
  if (m_failure == 0 && (std::fflush(stream) != 0 || ::fsync(::fileno(stream)) != 0)) m_failure = errno;
  if (std::fclose(m_stream.release()) != 0 && m_failure == 0) m_failure = errno;
  if (m_failure == 0 && std::rename(m_temporary.c_str(), m_path.c_str()) != 0) m_failure = errno;
  if (m_failure == 0) m_temporary.clear();
  const int reason = m_failure;
  Discard();
  errno = reason;
  return reason == 0;
}

void TextWriter::Discard() {
  m_stream.reset();
  if (!m_temporary.empty()) ::unlink(m_temporary.c_str());
  m_temporary.clear();
}

}  // namespace coregui
