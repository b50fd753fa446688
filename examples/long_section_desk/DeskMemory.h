#pragma once

#include <optional>
#include <string>
#include <vector>

#include "DeskLayout.h"
#include "PrintChoice.h"
#include "coregui/coregui.h"

/// What the desk remembers from run to run, in the program's profile.
namespace desk {

/// Where the window stood.
struct DeskPlace {
  CRect rect;  ///< of the client area, on the screen
  bool maximised = false;
};

/// Nothing when none was kept. What lies outside today's screen is moved and shrunk onto it.
std::optional<DeskPlace> RecallPlace();
void KeepPlace(const DeskPlace& place);

void RecallShares(DeskLayout& layout);
void KeepShares(const DeskLayout& layout);

PrintChoice RecallPrintChoice();
void KeepPrintChoice(const PrintChoice& choice);

/// The surveys opened last, the latest first; nine at most.
std::vector<std::wstring> RecallSurveys();
/// Puts a survey in front of the others; not one whose name is no UTF-8, which the profile cannot hold.
void KeepSurvey(const std::wstring& path);
void ForgetSurvey(const std::wstring& path);

}  // namespace desk
