#include "dialogs/CFileCopyProgressDlg.h"

#include <cerrno>
#include <cmath>

#include "core/SizeText.h"
#include "core/TextFile.h"
#include "dialogs/MessageFunctions.h"
#include "platform/CWinApp.h"
#include "platform/DialogLayout.h"
#include "platform/System.h"

using coregui::CopyAnswer;
using coregui::CopyProgress;
using coregui::CopyReason;

namespace {

constexpr UINT kPause = 500;  // milliseconds before the copy and behind it
constexpr int kWidth = 340;
constexpr int kTextHeight = 32;
constexpr int kBarHeight = 18;
constexpr int kLineHeight = 16;

std::uint64_t SizeOf(const wchar_t* path) {
  const coregui::CoreFilePtr file(coreFileOpen(path, L"rb"));
  return coreFileLength(file.get());
}

}  // namespace

CFileCopyProgressDlg::CFileCopyProgressDlg(const wchar_t* from, const wchar_t* to, const wchar_t* what,
                                           CWnd* parent)
    : CCADBaseDialog(L"Copying", parent),
      source(from),
      destination(to),
      description(what),
      totalSize(SizeOf(from)) {}

BOOL CFileCopyProgressDlg::OnInitDialog() {
  CCADBaseDialog::OnInitDialog();
  constexpr DWORD kShown = WS_CHILD | WS_VISIBLE;
  coregui::DialogLayout layout(kWidth);
  m_description.Create(L"", kShown, layout.TextRow(*this, description, kTextHeight), this, kDescriptionId);
  CString shown = description;
  shown.Replace(L"&", L"&&");  // a file's name has no access key
  m_description.SetWindowText(shown);
  m_bar.Create(kShown, layout.Row(kBarHeight), this, kBarId);
  m_bar.SetAccessibleName(description);
  m_amount.Create(coreGetSizeString(totalSize).c_str(), kShown | SS_RIGHT, layout.Row(kLineHeight), this,
                  kAmountId);
  SetClientSize(layout.Size());
  startTimer = SetTimer(kStartTimer, kPause);
  return TRUE;
}

BOOL CFileCopyProgressDlg::PreTranslateMessage(MSG* message) {
  if (message->message == WM_KEYDOWN && (message->wParam == VK_RETURN || message->wParam == VK_ESCAPE)) {
    message->wParam = VK_TAB;
  }
  return CCADBaseDialog::PreTranslateMessage(message);
}

const coregui::MessageTable& CFileCopyProgressDlg::GetMessageTable() const {
  return Messages();
}

const coregui::MessageTable& CFileCopyProgressDlg::Messages() {
  static const coregui::MessageTable table =
      coregui::MessageTable(CCADBaseDialog::Messages()).On<WM_TIMER>(&CFileCopyProgressDlg::HandleTimer);
  return table;
}

void CFileCopyProgressDlg::HandleTimer(UINT id) {
  if (id == kStartTimer) {
    KillTimer(startTimer);
    Copy();
    closeTimer = SetTimer(kCloseTimer, kPause);
  } else if (id == kCloseTimer) {
    KillTimer(closeTimer);
    EndDialog(succeeded ? IDOK : IDCANCEL);
  }
}

void CFileCopyProgressDlg::Copy() {
  m_bar.SetRange32(0, kBarEnd);
  m_bar.SetStep(1);
  const bool cancel = false;
  succeeded = coregui::CopyFileWithProgress(
      source, destination,
      [this](const CopyProgress& progress) {
        if (progress.reason == CopyReason::chunkFinished) Show(progress);
        return CopyAnswer::proceed;
      },
      &cancel);
  m_error = succeeded ? 0 : GetLastError();
}

void CFileCopyProgressDlg::Show(const CopyProgress& progress) {
  Pump();
  m_bar.SetPos(BarPosition(progress.total, progress.transferred));
  const CString amount =
      CString(coreGetSizeString(progress.transferred)) + L"/" + coreGetSizeString(progress.total).c_str();
  if (amount != m_amount.GetWindowTextString()) m_amount.SetWindowText(amount);
}

void CFileCopyProgressDlg::Pump() {
  // The program may be told to quit meanwhile. The copy goes on to its end, with no more events handled, so
  // that no half file is left.
  if (!m_quitting) m_quitting = !CWinApp::PumpPending();
}

int CFileCopyProgressDlg::BarPosition(std::uint64_t total, std::uint64_t transferred) {
  // Kept: the end is one past the bar's range, so that it is full also where rounding would fall short.
  if (transferred >= total) return kBarEnd + 1;
  return static_cast<int>(
      std::ceil(static_cast<double>(transferred) / static_cast<double>(total) * double{kBarEnd}));
}

bool coreCopyFilesWithProgress(const wchar_t* source, const wchar_t* destination,
                               const wchar_t* description) {
  const CWinApp* application = CWinApp::Get();
  CWnd* owner = application == nullptr ? nullptr : application->GetMainWnd();
  DWORD error = 0;
  {
    CFileCopyProgressDlg dialog(source, destination, description, owner);
    const bool ended = dialog.DoModal() == IDOK;
    error = dialog.GetError();
    // A program that quits ends the dialog before its second timer; the copy itself may be complete.
    if (ended || error == 0) return true;
  }
  SetLastError(error);
  ShowLastErrorMessage(owner, L"File Copy Error");
  return false;
}
