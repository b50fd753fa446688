#pragma once

namespace coregui {

/// The desktop's beep; nothing without an application.
void PlayBeep();

}  // namespace coregui
