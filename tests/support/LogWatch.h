#pragma once

#include <string>
#include <vector>

/// Every line that the library writes to the status output, and every warning of the toolkit, is gathered
/// while a test runs. A line that the test did not announce fails it, and so does an announced one that never
/// came.
namespace coregui::test {

/// Announces one line that holds `part`.
void ExpectLog(std::wstring part);
/// Takes out and returns the lines gathered so far that nobody announced.
std::vector<std::wstring> TakeLog();

/// Takes a line in; from any thread.
void NoteLogLine(std::wstring line);
/// What is wrong with the log, in words; empty when nothing is. Forgets all lines and announcements.
std::string CloseLog();
/// Sends the status output and the toolkit's messages here.
void InstallLogWatch();

}  // namespace coregui::test
