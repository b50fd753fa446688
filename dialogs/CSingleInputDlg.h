#pragma once

#include <cfloat>
#include <climits>
#include <cstdint>

#include "controls/CFloatEdit.h"
#include "controls/CIntEdit.h"
#include "platform/CButton.h"
#include "platform/CCADBaseDialog.h"
#include "platform/CStatic.h"

/// Asks for one value: a prompt above one edit field, OK and Cancel. Set the public members, run DoModal, and
/// after IDOK read the value of the dialog's type. The dialog checks no range: the numeric edits keep it, and
/// a line below the field tells while the text is not taken as it stands.
class COREGUI_API CSingleInputDlg : public CCADBaseDialog {
 public:
  static constexpr int kTemplateId = 1501;
  static constexpr UINT kEditId = 1505;
  static constexpr UINT kPromptId = 1506;

  // Kinds of values.
  static constexpr std::int32_t kText = 0;
  static constexpr std::int32_t kWhole = 1;
  static constexpr std::int32_t kReal = 2;

  explicit CSingleInputDlg(std::int32_t kind, CWnd* parent = nullptr);

  const std::int32_t type;      ///< the kind of value; any other number asks for a text
  double minDouble = -DBL_MAX;  ///< range of a real value
  double maxDouble = DBL_MAX;
  /// Range of a whole value.
  /// Kept: the lowest whole number of all is not in the range until it is asked for.
  std::int32_t minInt = -INT_MAX;
  std::int32_t maxInt = INT_MAX;
  CString prompt = L"Enter Value";
  CString caption = L"Input";
  CString format = L"%.0f";  ///< how a real value is shown, see coregui::NumberFormat
  double doubleValue = 0;
  std::int32_t intValue = 0;
  CString stringValue;

  const coregui::MessageTable& GetMessageTable() const override;

 protected:
  BOOL OnInitDialog() override;
  void OnOK() override;
  static const coregui::MessageTable& Messages();

 private:
  void MakeControls();
  void FillEdit();
  CEdit& Edit();
  void TellProblem();

  CStatic m_prompt;
  CEdit m_text;
  CIntEdit m_whole;
  CFloatEdit m_real;
  CStatic m_problem;
  CButton m_ok;
  CButton m_cancel;
};

/// Ask for a value in a dialog with this caption and prompt; `value` is what it starts with. True when the
/// user pressed OK: `value` then holds the new one. Otherwise it is unchanged.
COREGUI_API bool coreGetStringValue(CWnd* parent, const wchar_t* caption, const wchar_t* prompt,
                                    CString& value);
/// A whole number from `minimum` to `maximum`.
COREGUI_API bool coreGetIntValue(CWnd* parent, const wchar_t* caption, const wchar_t* prompt, int& value,
                                 int minimum, int maximum);
/// A real number from `minimum` to `maximum`, shown by a printf format ("%.3f").
COREGUI_API bool coreGetDoubleValue(CWnd* parent, const wchar_t* caption, const wchar_t* prompt,
                                    double& value, double minimum, double maximum, const wchar_t* format);
