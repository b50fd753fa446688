#include <algorithm>
#include <filesystem>

#include "DeskHelp.h"
#include "DeskMemory.h"
#include "DeskWindow.h"
#include "FilePath.h"
#include "PrintDialog.h"
#include "WaitCursor.h"

// What the desk does with files, and what it asks and tells.

namespace desk {

namespace {

constexpr wchar_t kTables[] = L"Tables (*.csv *.txt)|*.csv;*.txt|All files|*||";
constexpr UINT kFirstRecent = 1;

std::wstring FileName(const std::wstring& path) {
  return coreExtractFileName(path.c_str());
}

}  // namespace

void DeskWindow::Tell(const std::wstring& text) {
  m_status.Show(text, true);
  if (m_unattended) {
    coreStatusOut(text.c_str());
  } else {
    ErrorMessage(text.c_str(), this);
  }
}

void DeskWindow::OpenWithDialog() {
  CString path(m_path);
  if (coreFileDialog(L"Open a survey", path, kTables, L"csv", true, OFN_FILEMUSTEXIST, this)) {
    Open(path.Str());
  }
}

void DeskWindow::OpenRecent() {
  const std::vector<std::wstring> surveys = RecallSurveys();
  CMenu menu;
  menu.CreatePopupMenu();
  UINT id = kFirstRecent;
  for (const std::wstring& survey : surveys) {
    CString shown(survey);
    shown.Replace(L"&", L"&&");
    menu.AppendMenu(MF_STRING, id, CString::Formatted(L"&%u  ", id) + shown);
    ++id;
  }
  if (surveys.empty()) {
    menu.AppendMenu(MF_STRING | MF_GRAYED, id, L"No survey was opened yet");
  }
  const CPoint at = m_commands.MenuPlace(111);
  const int chosen = menu.TrackPopupMenu(TPM_RETURNCMD, at.x, at.y, this);
  if (chosen >= static_cast<int>(kFirstRecent)) {
    const std::wstring& survey = surveys[static_cast<std::size_t>(chosen) - kFirstRecent];
    if (!Open(survey) && !coreFileExist(survey.c_str())) {
      ForgetSurvey(survey);
    }
  }
}

void DeskWindow::ReadAgain() {
  Open(std::wstring(m_path));
}

bool DeskWindow::SaveCopy(const std::wstring& path) {
  SurveyLock other;
  other.Look(path);
  if (other.GetState() == SurveyLock::State::others && !m_lock.IsFor(path)) {
    Tell(path + L" is not written: " + other.Text() + L".");
    return false;
  }
  const std::wstring what = L"Copying " + FileName(m_path) + L" to " + FileName(path);
  if (!coreCopyFilesWithProgress(m_path.c_str(), path.c_str(), what.c_str())) {
    m_status.Show(path + L" could not be written.", true);
    return false;
  }
  m_status.Show(path + L" is written.");
  return true;
}

void DeskWindow::SaveCopyWithDialog() {
  const std::filesystem::path survey = ToPath(m_path);
  const std::wstring extension = FromPath(survey.extension());
  CString path(FromPath(survey.parent_path() / survey.stem()) + L" copy" + extension);
  if (coreFileDialog(L"Save a copy", path, kTables, extension.empty() ? L"" : extension.c_str() + 1, false,
                     OFN_OVERWRITEPROMPT, this)) {
    SaveCopy(path.Str());
  }
}

bool DeskWindow::PrintToPdf(const std::wstring& path, const PrintChoice& choice) {
  const WaitCursor wait;
  CPrinterDC dc(PrintOutput::pdf, path.c_str(), choice.Page());
  if (!m_section.HasData() || !dc.StartDoc(FileName(m_path).c_str())) {
    return false;
  }
  if (!m_section.PrintSheets(dc, choice)) {
    dc.AbortDoc();
    return false;
  }
  return dc.EndDoc();
}

void DeskWindow::PrintWithDialog() {
  PrintDialog dialog(
      RecallPrintChoice(), [this](const PrintChoice& choice) { return m_section.CountSheets(choice); }, this);
  if (dialog.DoModal() != IDOK) {
    return;
  }
  KeepPrintChoice(dialog.Choice());
  CString path(coreChangeFileExt(m_path.c_str(), L"pdf"));
  if (!coreFileDialog(L"Print to PDF", path, L"PDF", L"pdf", false, OFN_OVERWRITEPROMPT, this)) {
    return;
  }
  if (PrintToPdf(path.Str(), dialog.Choice())) {
    m_status.Show(path.Str() + L" is written.");
  } else {
    Tell(path.Str() + L" could not be written.");
  }
}

void DeskWindow::AskChainage() {
  const std::vector<PNT_2D_record>& points = m_data.ground.GetPoints();
  const long now = m_data.PointOfRow(m_grid.GetCurrentRow());
  double chainage = points[static_cast<std::size_t>(std::max(now, 0L))].x;
  if (coreGetDoubleValue(this, L"Go to", L"Chainage in metres", chainage, points.front().x, points.back().x,
                         L"%.3f")) {
    GoToChainage(chainage);
  }
}

void DeskWindow::AskExaggeration() {
  double times = m_section.GetExaggeration();
  if (coreGetDoubleValue(this, L"Long-section", L"Vertical exaggeration", times,
                         CommandBar::kLeastExaggeration, CommandBar::kMostExaggeration, L"%g")) {
    m_section.SetExaggeration(times);
  }
  m_commands.ShowExaggeration(m_section.GetExaggeration());
}

void DeskWindow::TakeExaggeration() {
  if (const double times = m_commands.GetExaggeration(); times > 0.0) {
    m_section.SetExaggeration(times);
    m_commands.ShowExaggeration(times);
  } else {
    AskExaggeration();
  }
}

void DeskWindow::ShowHelp() {
  CustomMessage(HelpText(), kDeskName, MB_OK | MB_ICONINFORMATION, this);
}

}  // namespace desk
