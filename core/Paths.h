#pragma once

#include <string>

#include "core/Export.h"

// Parts of file paths. Both '/' and '\' separate folders, since recorded paths come from either kind of
// system. A null pointer counts as the empty text.

/// The path with another extension, given with or without its dot; an empty one takes the extension away.
/// The extension is what follows the last dot of the file name, unless that dot is the name's first
/// character.
COREGUI_API std::wstring coreChangeFileExt(const wchar_t* path, const wchar_t* extension);

/// The path with another file name, extension included.
COREGUI_API std::wstring coreChangeFileName(const wchar_t* path, const wchar_t* fileName);

/// The folder with its trailing separator, so that a file name can be appended; empty when the path has none.
COREGUI_API std::wstring coreExtractFilePath(const wchar_t* path);

/// The file name with its extension.
COREGUI_API std::wstring coreExtractFileName(const wchar_t* path);
