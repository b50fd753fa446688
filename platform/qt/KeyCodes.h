#pragma once

#include <Qt>
#include <string>

#include "platform/Types.h"

class QKeyEvent;

namespace coregui {

/// The virtual-key code of a key; 0 for one that has none.
UINT VirtualKeyOf(const QKeyEvent& event);
/// The toolkit's key of a virtual-key code; 0 (no key) for one that it has not.
int ToolkitKeyOf(UINT virtualKey);
/// The characters that a key press types, control codes included (Ctrl+V is 22).
std::wstring CharactersOf(const QKeyEvent& event);
/// Takes the modifiers that an event was made with over as the state of their keys.
void NoteModifiers(Qt::KeyboardModifiers modifiers);

}  // namespace coregui
