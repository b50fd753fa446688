#pragma once

#include "core/Export.h"
#include "platform/Types.h"

// Files that a person drags from another program, such as the desktop's file manager, onto a window.

/// Extended style: the window takes files that are dropped on it or on what lies in it.
inline constexpr DWORD WS_EX_ACCEPTFILES = 0x00000010;

/// Files were dropped; wParam: HDROP, for DragQueryFile. The window gives it back with DragFinish. The
/// message is queued: the program that the files come from does not wait for what becomes of them.
inline constexpr UINT WM_DROPFILES = 0x0233;

/// Files of one drop, opaque.
struct coregui_dropped_files;
using HDROP = const coregui_dropped_files*;

/// Whether a window takes files: sets or removes WS_EX_ACCEPTFILES. Neither a disabled window nor one that a
/// modal one stands in front of takes any. They are copied or looked at: the program that they come from
/// keeps them. Nothing for a window that is gone.
COREGUI_API void DragAcceptFiles(HWND window, BOOL accept);

/// As `index` of a file: how many there are.
inline constexpr UINT DRAG_COUNT = 0xFFFFFFFF;

/// Copies the path of a file, 0 for the first, into `path`, which has room for `size` characters, the ending
/// zero among them; a longer one is cut off. Gives the characters copied, without the zero. With a null
/// `path` gives the characters that the path has; with DRAG_COUNT the number of files. 0 for a drop that was
/// given back or a file that is not there.
COREGUI_API UINT DragQueryFile(HDROP drop, UINT index, wchar_t* path, UINT size);

/// Gives a drop back: its files are not known any more.
COREGUI_API void DragFinish(HDROP drop);
