#pragma once

#include "core/Export.h"
#include "platform/Types.h"

namespace coregui {

/// For the windows' side: a real key, button or modifier is down or up from here on.
COREGUI_API void NoteKeyState(UINT key, bool down);
/// All keys up and untoggled.
COREGUI_API void ResetKeyState();

}  // namespace coregui
