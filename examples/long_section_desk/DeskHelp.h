#pragma once

namespace desk {

inline constexpr wchar_t kDeskName[] = L"Long-section desk";

/// What F1 shows: the keys, and what the mouse does.
const wchar_t* HelpText();

}  // namespace desk
