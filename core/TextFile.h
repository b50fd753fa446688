#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "core/Export.h"

/// An open file. Opaque; made by coreFileOpen, ended by coreFileClose.
struct CoreFile;

/// Opens a file, by a mode of the C runtime: "rt" or "rb" to read, "w+t" to write from scratch, "r+t" to read
/// and write what exists ("r", "w", "w+", "r+" and their "b" forms mean the same; no line end is translated).
/// Null, with errno saying why, for a file that cannot be opened, a folder, or another mode.
COREGUI_API CoreFile* coreFileOpen(const wchar_t* path, const wchar_t* mode);

/// Reads the next line without its end, at most `maxCharacters` of it. What is longer is left out and
/// reported to the status output with its place, as are NUL characters; see coregui::TextReader for line ends
/// and encodings. False, with an empty `line`, at the end of the file.
COREGUI_API bool coreFileTxtRead(CoreFile* file, std::wstring& line, int maxCharacters);

/// Writes a text and a line end, in UTF-8, at the place that reading or writing has come to. The line is
/// handed to the system at once, so that false (a full disk, a file open for reading only, one in UTF-16) is
/// known at this very line; for many lines at a time there is coregui::TextWriter.
COREGUI_API bool coreFileTxtWrite(CoreFile* file, const wchar_t* text);

/// The length in bytes; 0 for null.
COREGUI_API std::uint64_t coreFileLength(CoreFile* file);

/// Closes the file and frees its record; null is allowed. False when the system reports a late failure to
/// write.
COREGUI_API bool coreFileClose(CoreFile* file);

/// True for an existing file. A folder is none.
COREGUI_API bool coreFileExist(const wchar_t* path);

namespace coregui {

struct CoreFileCloser {
  void operator()(CoreFile* file) const { coreFileClose(file); }
};

/// An open file that closes itself.
using CoreFilePtr = std::unique_ptr<CoreFile, CoreFileCloser>;

}  // namespace coregui
