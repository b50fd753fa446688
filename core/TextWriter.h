#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "core/Export.h"

namespace coregui {

/// Writes a whole text file, in UTF-8, so that what stood there before is never lost: the lines go to a new
/// file in the same folder, which takes the old one's place (and its access rights) in Commit, when
/// everything is on the disk. Until then, and after any failure, the old file is untouched. Every failure
/// leaves its reason in errno.
class COREGUI_API TextWriter {
 public:
  TextWriter() = default;
  /// Without Commit, nothing was written.
  ~TextWriter() { Discard(); }
  TextWriter(const TextWriter&) = delete;
  TextWriter& operator=(const TextWriter&) = delete;

  /// Starts a file. False for a folder, for a file that may not be written to, and where no new file can be
  /// made.
  bool Open(const wchar_t* path);
  /// Writes a text and a line end. Lines are gathered: a full disk may show later, in Commit at the latest.
  bool WriteLine(std::wstring_view text);
  /// Puts the new file in place and ends the writing. False, with the old file as it was, when anything has
  /// failed.
  bool Commit();
  /// Ends the writing and leaves the old file.
  void Discard();

 private:
  struct StreamCloser {
    void operator()(std::FILE* stream) const { std::fclose(stream); }
  };

  std::unique_ptr<std::FILE, StreamCloser> m_stream;
  std::string m_path;       ///< of the file in the end, UTF-8, links followed
  std::string m_temporary;  ///< of the new file; empty when there is none
  int m_failure = 0;        ///< errno of the first failed write
};

}  // namespace coregui
