#include "DeskMemory.h"

#include <algorithm>
#include <cmath>

namespace desk {

namespace {

constexpr wchar_t kWindow[] = L"Window";
constexpr wchar_t kPrint[] = L"Print";
constexpr wchar_t kSurveys[] = L"Surveys";
constexpr std::size_t kMostSurveys = 9;
constexpr double kShareUnit = 10000.0;  // shares are kept as whole numbers
constexpr double kScaleUnit = 100.0;
constexpr LONG kLeastWidth = 320;
constexpr LONG kLeastHeight = 240;

coregui::Profile& Profile() {
  return coregui::Profile::Get();
}

double Recall(const wchar_t* section, const wchar_t* entry, double unit, double fallback, double least,
              double most) {
  const int kept = Profile().GetInt(section, entry, static_cast<int>(std::lround(fallback * unit)));
  return std::clamp(kept / unit, least, most);
}

void Keep(const wchar_t* section, const wchar_t* entry, double unit, double value) {
  Profile().WriteInt(section, entry, static_cast<int>(std::lround(value * unit)));
}

CString SurveyEntry(std::size_t index) {
  return CString::Formatted(L"Survey%d", static_cast<int>(index) + 1);
}

/// The first of them; the other entries are taken away.
void WriteSurveys(const std::vector<std::wstring>& surveys) {
  for (std::size_t i = 0; i < kMostSurveys; ++i) {
    Profile().WriteString(kSurveys, SurveyEntry(i), i < surveys.size() ? surveys[i].c_str() : nullptr);
  }
}

}  // namespace

std::optional<DeskPlace> RecallPlace() {
  const LONG width = Profile().GetInt(kWindow, L"Width", 0);
  const LONG height = Profile().GetInt(kWindow, L"Height", 0);
  if (width < kLeastWidth || height < kLeastHeight) {
    return std::nullopt;
  }
  const LONG screenWidth = GetSystemMetrics(SM_CXSCREEN);
  const LONG screenHeight = GetSystemMetrics(SM_CYSCREEN);
  const CSize size(std::min(width, screenWidth), std::min(height, screenHeight));
  const CPoint at(std::clamp<LONG>(Profile().GetInt(kWindow, L"Left", 0), 0, screenWidth - size.cx),
                  std::clamp<LONG>(Profile().GetInt(kWindow, L"Top", 0), 0, screenHeight - size.cy));
  return DeskPlace{CRect(at, size), Profile().GetInt(kWindow, L"Maximised", 0) != 0};
}

void KeepPlace(const DeskPlace& place) {
  Profile().WriteInt(kWindow, L"Left", place.rect.left);
  Profile().WriteInt(kWindow, L"Top", place.rect.top);
  Profile().WriteInt(kWindow, L"Width", place.rect.Width());
  Profile().WriteInt(kWindow, L"Height", place.rect.Height());
  Profile().WriteInt(kWindow, L"Maximised", place.maximised ? 1 : 0);
}

void RecallShares(DeskLayout& layout) {
  layout.gridShare = Recall(kWindow, L"GridShare", kShareUnit, layout.gridShare, DeskLayout::kLeastShare,
                            1.0 - DeskLayout::kLeastShare);
  layout.sectionShare = Recall(kWindow, L"SectionShare", kShareUnit, layout.sectionShare,
                               DeskLayout::kLeastShare, 1.0 - DeskLayout::kLeastShare);
}

void KeepShares(const DeskLayout& layout) {
  Keep(kWindow, L"GridShare", kShareUnit, layout.gridShare);
  Keep(kWindow, L"SectionShare", kShareUnit, layout.sectionShare);
}

PrintChoice RecallPrintChoice() {
  PrintChoice choice;
  choice.toScale = Profile().GetInt(kPrint, L"ToScale", 0) != 0;
  choice.paper = std::clamp(Profile().GetInt(kPrint, L"Paper", choice.paper), 0, kPaperCount - 1);
  choice.horizontal =
      Recall(kPrint, L"Horizontal", kScaleUnit, choice.horizontal, kLeastScale, kLargestScale);
  choice.vertical = Recall(kPrint, L"Vertical", kScaleUnit, choice.vertical, kLeastScale, kLargestScale);
  choice.overlap = Recall(kPrint, L"Overlap", kScaleUnit, choice.overlap, 0.0, kMostOverlap);
  return choice;
}

void KeepPrintChoice(const PrintChoice& choice) {
  Profile().WriteInt(kPrint, L"ToScale", choice.toScale ? 1 : 0);
  Profile().WriteInt(kPrint, L"Paper", choice.paper);
  Keep(kPrint, L"Horizontal", kScaleUnit, choice.horizontal);
  Keep(kPrint, L"Vertical", kScaleUnit, choice.vertical);
  Keep(kPrint, L"Overlap", kScaleUnit, choice.overlap);
}

std::vector<std::wstring> RecallSurveys() {
  std::vector<std::wstring> surveys;
  for (std::size_t i = 0; i < kMostSurveys; ++i) {
    if (const CString path = Profile().GetString(kSurveys, SurveyEntry(i)); !path.IsEmpty()) {
      surveys.push_back(path.Str());
    }
  }
  return surveys;
}

void KeepSurvey(const std::wstring& path) {
  std::vector<std::wstring> surveys = RecallSurveys();
  const bool canBeWritten = CString::FromUtf8(CString(path).ToUtf8()).Str() == path;
  if (!canBeWritten || (!surveys.empty() && surveys.front() == path)) {
    return;
  }
  std::erase(surveys, path);
  surveys.insert(surveys.begin(), path);
  WriteSurveys(surveys);
}

void ForgetSurvey(const std::wstring& path) {
  std::vector<std::wstring> surveys = RecallSurveys();
  std::erase(surveys, path);
  WriteSurveys(surveys);
}

}  // namespace desk
