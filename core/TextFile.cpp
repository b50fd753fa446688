#include "core/TextFile.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <string_view>

#include "core/TextReader.h"
#include "core/Utf8.h"

/// One stream for reading and writing. Only one of the two is under way at a time; the other starts where it
/// stands.
struct CoreFile {
  std::FILE* stream = nullptr;
  std::wstring name;
  coregui::TextReader reader;  ///< attached to the stream when reading first starts
  bool canRead = false;
  bool canWrite = false;
  bool isReading = false;
  bool isAttached = false;

  /// Puts the stream where the last line read has ended, leaving what was read ahead.
  bool StartWriting() {
    if (!isReading) return true;
    isReading = ::fseeko(stream, static_cast<off_t>(reader.Position()), SEEK_SET) != 0;
    return !isReading;
  }

  bool StartReading() {
    if (isReading) return true;
    const off_t position = ::ftello(stream);
    if (position < 0 || std::fflush(stream) != 0) return false;
    if (!isAttached) reader.Attach(stream, name);
    isAttached = true;
    if (position > 0) {
      if (::fseeko(stream, position, SEEK_SET) != 0) return false;
      reader.Restart(static_cast<std::uint64_t>(position));
    }
    isReading = true;
    return true;
  }
};

namespace {

struct OpenMode {
  const char* runtime = nullptr;  ///< null: not a mode we know
  bool canRead = false;
  bool canWrite = false;
};

OpenMode ParseMode(std::wstring_view mode) {
  if (mode.ends_with(L't') || mode.ends_with(L'b')) mode.remove_suffix(1);
  if (mode == L"r") return {"rb", true, false};
  if (mode == L"r+") return {"r+b", true, true};
  if (mode == L"w") return {"wb", false, true};
  if (mode == L"w+") return {"w+b", true, true};
  return {};
}

/// A file that is there must be a regular one: a folder cannot be read, and a pipe might never end. Devices
/// may be written to.
bool IsOpenable(const std::string& name, const OpenMode& mode) {
  struct stat status {};
  if (::stat(name.c_str(), &status) != 0 || S_ISREG(status.st_mode)) return true;
  if (S_ISCHR(status.st_mode) && mode.runtime[0] == 'w') return true;
  errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
  return false;
}

}  // namespace

CoreFile* coreFileOpen(const wchar_t* path, const wchar_t* mode) {
  const OpenMode parsed = ParseMode(mode == nullptr ? L"" : mode);
  if (parsed.runtime == nullptr || path == nullptr) {
    errno = EINVAL;
    return nullptr;
  }
  const std::string name = coregui::ToFileName(path);
  if (!IsOpenable(name, parsed)) return nullptr;
  std::FILE* stream = std::fopen(name.c_str(), parsed.runtime);
  if (stream == nullptr) return nullptr;
  auto file = std::make_unique<CoreFile>();
  file->stream = stream;
  file->canRead = parsed.canRead;
  file->canWrite = parsed.canWrite;
  file->name = path;
  // What exists is looked at now, so that nothing is ever written into a file of another encoding.
  if (parsed.runtime[0] == 'r') file->StartReading();
  return file.release();
}

bool coreFileTxtRead(CoreFile* file, std::wstring& line, int maxCharacters) {
  line.clear();
  if (file == nullptr || !file->canRead || !file->StartReading()) return false;
  return file->reader.ReadLine(line, maxCharacters < 0 ? 0 : static_cast<std::size_t>(maxCharacters));
}

bool coreFileTxtWrite(CoreFile* file, const wchar_t* text) {
  if (file == nullptr || !file->canWrite || file->reader.Encoding() != coregui::TextEncoding::utf8) {
    errno = EINVAL;
    return false;
  }
  if (!file->StartWriting()) return false;
  const std::string bytes = coregui::ToUtf8(text == nullptr ? L"" : text) + '\n';
  return std::fwrite(bytes.data(), 1, bytes.size(), file->stream) == bytes.size() &&
         std::fflush(file->stream) == 0;
}

std::uint64_t coreFileLength(CoreFile* file) {
  struct stat status {};
  if (file == nullptr || ::fstat(::fileno(file->stream), &status) != 0) return 0;
  return static_cast<std::uint64_t>(status.st_size);
}

bool coreFileClose(CoreFile* file) {
  if (file == nullptr) return true;
  const std::unique_ptr<CoreFile> owned(file);
  owned->reader.Close();
  return std::fclose(owned->stream) == 0;
}

bool coreFileExist(const wchar_t* path) {
  struct stat status {};
  return path != nullptr && ::stat(coregui::ToFileName(path).c_str(), &status) == 0 &&
         !S_ISDIR(status.st_mode);
}
