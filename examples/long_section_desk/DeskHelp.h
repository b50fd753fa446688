#pragma once

namespace desk {

/// What F1 shows: the keys, and what the mouse does.
const wchar_t* HelpText();

}  // namespace desk
