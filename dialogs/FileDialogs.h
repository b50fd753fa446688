#pragma once

#include "core/Export.h"
#include "platform/CFileDialog.h"
#include "platform/CString.h"
#include "platform/Types.h"

class CWnd;

/// Asks for a file, starting at `path`. True when one was chosen; `path` then names it, else it is unchanged.
///
/// `text1` and `text2` say which files are shown: the name of their kind and their extension (L"Survey",
/// L"csv"; an extension is also added to a name to save that has none); or, when `text1` holds a '|', it is
/// all pairs of a name and its patterns (L"Survey (*.csv)|*.csv|All|*.*||") and `text2` the extension alone.
/// Null or empty: all files. `open`: to open one, otherwise to save one. `flags`: OFN_ values.
COREGUI_API bool coreFileDialog(const wchar_t* title, CString& path, const wchar_t* text1,
                                const wchar_t* text2, bool open, DWORD flags, CWnd* parent = nullptr);

/// Finds a required file that is not where it was recorded. When a file of the name in `path` lies in the
/// folder of `searchIn` (a path; its folder ends with a separator), `path` becomes that at once. Otherwise
/// the user is asked whether to look for it, and may choose a file (`text1`, `text2` as in coreFileDialog).
/// False, with `path` unchanged, when none was found.
COREGUI_API bool coreGetNewFilePath(CString& path, const wchar_t* text1, const wchar_t* text2,
                                    const wchar_t* searchIn, CWnd* parent);

/// Asks for a folder of the file system, starting in `initialFolder` (null: none in particular). True when
/// one was chosen; `folder` then names it, else it is unchanged. No folders can be made.
COREGUI_API bool coreGetFolder(CString& folder, const wchar_t* title, CWnd* parent,
                               const wchar_t* initialFolder);
