#pragma once

#include <cstdint>
#include <functional>

#include "core/Export.h"

namespace coregui {

/// Why a file copy calls back.
enum class CopyReason {
  chunkFinished = 0,  ///< a further chunk was copied
  started = 1         ///< nothing was copied yet
};

enum class CopyAnswer { proceed, cancel };

/// How far a copy has come, in bytes. The total is the source's length when the copy began.
struct CopyProgress {
  std::uint64_t total = 0;
  std::uint64_t transferred = 0;
  CopyReason reason = CopyReason::started;
};

/// Copies a file: its contents, and its access rights and time of change as far as the file system keeps
/// them. What stood at `destination` is replaced, at the very end and at once, unless it is write-protected:
/// the bytes go to a temporary file beside it, which a failure removes. A link as destination is followed.
/// `progress` (may be empty) is called at the start and after every chunk, for an empty file after its one
/// empty chunk; it may run the message pump. `cancel` (may be null) is looked at before each chunk.
///
/// False on failure with the reason in errno: what the system says; EISDIR or EINVAL for what is no plain
/// file or the source itself; ENOSPC, before anything is written, when the disk has too little room;
/// ECANCELED when it was cancelled.
COREGUI_API bool CopyFileWithProgress(const wchar_t* source, const wchar_t* destination,
                                      const std::function<CopyAnswer(const CopyProgress&)>& progress,
                                      const bool* cancel = nullptr);

/// Bytes that this user may still write in the folder that holds `path`; the largest number when the system
/// does not say.
COREGUI_API std::uint64_t GetFreeDiskSpace(const wchar_t* path);

}  // namespace coregui
