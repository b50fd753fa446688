#include "DialogList.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace gallery {

namespace {

/// A new folder for files of this run, removed at its end.
class Scratch {
 public:
  Scratch() {
    std::error_code error;
    m_folder =
        std::filesystem::temp_directory_path(error) / ("coregui-gallery-" + std::to_string(GetTickCount64()));
    std::filesystem::create_directories(m_folder, error);
  }
  ~Scratch() {
    std::error_code error;
    std::filesystem::remove_all(m_folder, error);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  /// The path of a file that holds this text.
  CString File(const char* name, const std::string& text) const {
    std::ofstream(m_folder / name) << text;
    return Path(name);
  }
  CString Path(const char* name) const { return CString::FromUtf8((m_folder / name).string()); }

 private:
  std::filesystem::path m_folder;
};

void ShowCheck(CWnd& owner) {
  UINT checked = 0;
  CustomMessageAndCheck(L"The survey has 12 points outside the corridor.", L"Survey", 0x30,
                        L"Do not show this again", checked, &owner);
}

void ShowButtons(CWnd& owner) {
  coregui::SetButtonText(901, L"&Replace");
  coregui::SetButtonText(902, L"&Keep both");
  const _MsgBoxButtons buttons[] = {{1, 901}, {3, 902}, {2, IDCANCEL}};
  CustomButtonsMessage(L"A layer of this name exists already.", L"Layers", 0x20, 3, buttons, &owner);
}

void ShowLastError(CWnd& owner) {
  SetLastError(2);
  ShowLastErrorMessage(&owner, L"Open survey.csv");
}

void AskText(CWnd& owner) {
  CString value = L"Ring road";
  coreGetStringValue(&owner, L"Road", L"Name of the road", value);
}

void AskWhole(CWnd& owner) {
  int value = 3;
  coreGetIntValue(&owner, L"Print", L"Number of copies", value, 1, 99);
}

void AskReal(CWnd& owner) {
  double value = 10.0;
  coreGetDoubleValue(&owner, L"Long-section", L"Vertical exaggeration", value, 1.0, 50.0, L"%.1f");
}

void CopyFile(CWnd& /*owner*/) {
  const Scratch scratch;
  const CString from = scratch.File("survey.csv", std::string(3'000'000, '7'));
  coreCopyFilesWithProgress(from, scratch.Path("survey.bak"), L"Making a backup of survey.csv");
}

void ShowLock(CWnd& owner) {
  const Scratch scratch;
  const CString data = scratch.File("survey.csv", "0,100\n");
  scratch.File("survey.lck", "j.miller,1A2B3C4D");
  coreCheckLockStatus(data, L"lck", false, &owner);
}

void ChooseFile(CWnd& owner) {
  CString path;
  coreFileDialog(L"Open a survey", path, L"Survey", L"csv", true, 0, &owner);
}

void ChooseFolder(CWnd& owner) {
  CString folder;
  coreGetFolder(folder, L"Choose the folder of the project", &owner, nullptr);
}

void FindMissing(CWnd& owner) {
  CString path = L"/nowhere/road.csv";
  coreGetNewFilePath(path, L"Survey", L"csv", L"/nowhere/", &owner);
}

}  // namespace

const std::vector<DialogEntry>& Dialogs() {
  static const std::vector<DialogEntry> dialogs = {
      {L"&Error", [](CWnd& owner) { ErrorMessage(L"The survey could not be read.", &owner); }},
      {L"&Warning", [](CWnd& owner) { WarningMessage(L"Two points have the same chainage.", &owner); }},
      {L"&Information", [](CWnd& owner) { InfoMessage(L"The section was printed.", &owner); }},
      {L"&Confirmation", [](CWnd& owner) { ConfirmMessage(L"Delete the selected rows?", &owner); }},
      {L"&Stop question", [](CWnd& owner) { ConfirmMessage(L"Close without saving?", &owner, true); }},
      {L"Chec&k box", ShowCheck},
      {L"Own &buttons", ShowButtons},
      {L"S&ystem error", ShowLastError},
      {L"&Text value", AskText},
      {L"W&hole value", AskWhole},
      {L"&Real value", AskReal},
      {L"Co&py a file", CopyFile},
      {L"&Lock of a file", ShowLock},
      {L"&File", ChooseFile},
      {L"Fol&der", ChooseFolder},
      {L"&Missing file", FindMissing}};
  return dialogs;
}

}  // namespace gallery
