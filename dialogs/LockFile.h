#pragma once

#include "core/Export.h"
#include "platform/CString.h"

class CWnd;

// Lock files: a small text file beside a data file, with the same base name and another extension, says who
// has the data file in use. It holds one line, "user,serial": the user's name (the environment variable
// "USERNAME", or "Unknown User") and the machine's serial in upper-case hexadecimal. The lock is advisory,
// for programs that ask here. Test and creation are two steps, so that two programs that come at the same
// moment may both take it; the later one's name stays.
//
// A lock belongs to everybody on the machine that its serial names, whatever the user; only one without a
// serial (no comma, or "0") belongs to the user whose name it holds, in the same case.

/// Tests the lock of a data file, and takes it when there is none. True when the caller may use the file.
/// With `checkOnly`, nothing is created and nothing is shown: true when the lock is free or the caller's own.
///
/// A lock of someone else is told in an error box with `parent` as its owner; one that cannot be created or
/// read, in the status output. Of `dataFile`, the full path, at most 260 characters are used.
COREGUI_API bool coreCheckLockStatus(const wchar_t* dataFile, const wchar_t* lockExtension, bool checkOnly,
                                     CWnd* parent);

/// Gives the lock up when the data file is closed: removes the lock file if it is the caller's own. True when
/// no lock is left; false, with the file as it was, for someone else's, and, with a status line, for one that
/// cannot be read or removed.
COREGUI_API bool coreReleaseLock(const wchar_t* dataFile, const wchar_t* lockExtension);

/// Sets `user` to the name in the lock file (it may be empty) and `isOwn`, where given, to whether the lock
/// is the caller's. False, with nothing set, when there is no lock file or it cannot be read; nothing is
/// shown.
COREGUI_API bool coreGetLockHolder(const wchar_t* dataFile, const wchar_t* lockExtension, CString& user,
                                   bool* isOwn = nullptr);
