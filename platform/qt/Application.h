#pragma once

class QApplication;

namespace coregui {

/// The program's one toolkit application: the one that the program made itself, or one made here on the first
/// call. Without a display (no DISPLAY, no WAYLAND_DISPLAY, no QT_QPA_PLATFORM) it runs headless.
QApplication& EnsureApplication();

}  // namespace coregui
