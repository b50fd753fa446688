#pragma once

#include <string>

/// What is the same for every test program, whatever machine and desktop it runs on.
namespace coregui::test {

/// Fixes the display, locale, time zone, scale and the user's folders (a new temporary one, removed at exit).
/// Before the application exists.
void FixEnvironment();
/// Fixes style, palette and fonts of the application.
void FixLook();
/// Puts every setting of the library that is global back to its start.
void ResetGlobalState();
/// The temporary folder that stands for the user's home; tests may write in it. UTF-8, without a final '/'.
const std::string& ScratchFolder();

}  // namespace coregui::test
