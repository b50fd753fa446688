#pragma once

#include <cerrno>
#include <cstdint>

#include "platform/CCADBaseDialog.h"
#include "platform/CProgressCtrl.h"
#include "platform/CStatic.h"
#include "platform/FileCopy.h"

/// Copies one file while it shows how far the copy has come. DoModal returns IDOK when the copy succeeded,
/// otherwise IDCANCEL.
///
/// The copy starts half a second after the dialog is shown, runs inside the timer's handler with the windows
/// kept alive after every chunk, and its end stays on the screen for half a second. A person cannot stop it:
/// the frame's close button does nothing, Enter and Esc go on to the next control as Tab does.
class COREGUI_API CFileCopyProgressDlg : public CCADBaseDialog {
 public:
  static constexpr int kTemplateId = 1502;
  static constexpr UINT kDescriptionId = 1510;
  static constexpr UINT kBarId = 1511;
  static constexpr UINT kAmountId = 1512;
  static constexpr UINT kStartTimer = 1;
  static constexpr UINT kCloseTimer = 2;
  static constexpr int kBarEnd = 200;

  /// Measures the source; `parent` as for every dialog.
  CFileCopyProgressDlg(const wchar_t* from, const wchar_t* to, const wchar_t* what, CWnd* parent = nullptr);

  CString source;
  CString destination;
  CString description;          ///< the text above the bar
  std::uint64_t totalSize = 0;  ///< of the source, in bytes; 0 when it cannot be opened
  UINT startTimer = 0;          ///< as SetTimer returned it
  UINT closeTimer = 0;
  bool succeeded = true;

  /// Why the copy failed, or ECANCELED when the dialog ended before it; 0 when it succeeded.
  DWORD GetError() const { return m_error; }

  /// Where the bar stands for `transferred` of `total` bytes: 0 to kBarEnd, and one more when all is copied.
  static int BarPosition(std::uint64_t total, std::uint64_t transferred);

  BOOL PreTranslateMessage(MSG* message) override;
  const coregui::MessageTable& GetMessageTable() const override;

 protected:
  BOOL OnInitDialog() override;
  void OnOK() override {}
  void OnCancel() override {}
  static const coregui::MessageTable& Messages();

 private:
  void HandleTimer(UINT id);
  void Copy();
  void Show(const coregui::CopyProgress& progress);
  void Pump();

  CStatic m_description;
  CProgressCtrl m_bar;
  CStatic m_amount;
  DWORD m_error = ECANCELED;
  bool m_quitting = false;
};

/// Copies a file with that dialog, in front of the program's main window. True when the copy succeeded; else
/// an error box has told the system's reason, and what stood at `destination` is still there, untouched.
COREGUI_API bool coreCopyFilesWithProgress(const wchar_t* source, const wchar_t* destination,
                                           const wchar_t* description);
