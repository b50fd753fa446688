#pragma once

#include "core/Export.h"

namespace coregui {

/// Makes the library's controls known by name ("CoreGUI." and the class without its C). May be called again:
/// each call that answered true is undone by one UnregisterLibrary, and the last of these takes the names
/// away. A name that another module took stays that module's; the answer is then false, and nothing was
/// registered.
COREGUI_API bool RegisterLibrary();
/// Undoes one RegisterLibrary. False when none is left to undo.
COREGUI_API bool UnregisterLibrary();
COREGUI_API bool IsLibraryRegistered();

}  // namespace coregui
