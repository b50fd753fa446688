#include "dialogs/CSingleInputDlg.h"

#include "platform/DialogLayout.h"
#include "platform/System.h"

namespace {

constexpr int kWidth = 300;
constexpr int kEditHeight = 24;
constexpr int kLineHeight = 16;

/// Runs the dialog of a value with what all kinds share.
bool Ask(CSingleInputDlg& dialog, const wchar_t* caption, const wchar_t* prompt) {
  dialog.caption = caption;
  dialog.prompt = prompt;
  return dialog.DoModal() == IDOK;
}

}  // namespace

CSingleInputDlg::CSingleInputDlg(std::int32_t kind, CWnd* parent) : CCADBaseDialog(L"", parent), type(kind) {}

CEdit& CSingleInputDlg::Edit() {
  if (type == kWhole) return m_whole;
  if (type == kReal) return m_real;
  return m_text;
}

BOOL CSingleInputDlg::OnInitDialog() {
  CCADBaseDialog::OnInitDialog();
  SetWindowText(caption);
  MakeControls();
  FillEdit();
  Edit().SetSel(0, -1);
  return TRUE;
}

void CSingleInputDlg::MakeControls() {
  coregui::DialogLayout layout(kWidth);
  constexpr DWORD kShown = WS_CHILD | WS_VISIBLE;
  constexpr DWORD kStop = kShown | WS_TABSTOP;
  m_prompt.Create(prompt, kShown, layout.TextRow(*this, prompt, kLineHeight), this, kPromptId);
  Edit().Create(kStop | WS_BORDER | ES_AUTOHSCROLL, layout.Row(kEditHeight), this, kEditId);
  CString name = prompt;
  name.Remove(L'&');
  Edit().SetAccessibleName(name);
  if (type == kWhole || type == kReal) m_problem.Create(L"", kShown, layout.Row(kLineHeight), this);
  const auto buttons = layout.Buttons(2);
  m_ok.Create(L"OK", kStop | BS_DEFPUSHBUTTON, buttons[0], this, IDOK);
  m_cancel.Create(L"Cancel", kStop, buttons[1], this, IDCANCEL);
  SetClientSize(layout.Size());
}

void CSingleInputDlg::FillEdit() {
  if (type == kWhole) {
    m_whole.SetParameters(minInt, maxInt, L"%d");
    m_whole.SetValue(intValue);
  } else if (type == kReal) {
    m_real.SetParameters(minDouble, maxDouble, format);
    m_real.SetValue(doubleValue);
  } else {
    m_text.SetWindowText(stringValue);
  }
}

void CSingleInputDlg::OnOK() {
  if (type == kWhole) {
    intValue = m_whole.GetValue();
  } else if (type == kReal) {
    doubleValue = m_real.GetValue();
  } else {
    stringValue = m_text.GetWindowTextString();
  }
  CCADBaseDialog::OnOK();
}

const coregui::MessageTable& CSingleInputDlg::GetMessageTable() const {
  return Messages();
}

const coregui::MessageTable& CSingleInputDlg::Messages() {
  static const coregui::MessageTable table =
      coregui::MessageTable(CCADBaseDialog::Messages())
          .OnCommand(static_cast<int>(kEditId), EN_CHANGE, &CSingleInputDlg::TellProblem);
  return table;
}

void CSingleInputDlg::TellProblem() {
  if (m_problem.HasWindow()) m_problem.SetWindowText(static_cast<CNumericEdit&>(Edit()).GetProblem());
}

bool coreGetStringValue(CWnd* parent, const wchar_t* caption, const wchar_t* prompt, CString& value) {
  CSingleInputDlg dialog(CSingleInputDlg::kText, parent);
  dialog.stringValue = value;
  if (!Ask(dialog, caption, prompt)) return false;
  value = dialog.stringValue;
  return true;
}

bool coreGetIntValue(CWnd* parent, const wchar_t* caption, const wchar_t* prompt, int& value, int minimum,
                     int maximum) {
  CSingleInputDlg dialog(CSingleInputDlg::kWhole, parent);
  dialog.intValue = value;
  dialog.minInt = minimum;
  dialog.maxInt = maximum;
  if (!Ask(dialog, caption, prompt)) return false;
  value = dialog.intValue;
  return true;
}

bool coreGetDoubleValue(CWnd* parent, const wchar_t* caption, const wchar_t* prompt, double& value,
                        double minimum, double maximum, const wchar_t* format) {
  CSingleInputDlg dialog(CSingleInputDlg::kReal, parent);
  dialog.doubleValue = value;
  dialog.minDouble = minimum;
  dialog.maxDouble = maximum;
  dialog.format = format;
  if (!Ask(dialog, caption, prompt)) return false;
  value = dialog.doubleValue;
  return true;
}
