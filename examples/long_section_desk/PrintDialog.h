#pragma once

#include <functional>

#include "PrintChoice.h"
#include "coregui/coregui.h"

namespace desk {

/// Asks how the section is to be printed. `sheets` says how many sheets a choice takes, 0 when it cannot be
/// printed so; the dialog shows the number at once.
class PrintDialog : public CCADBaseDialog {
 public:
  enum : UINT {
    kOnePage = 201,
    kToScale,
    kHorizontal,
    kVertical,
    kOverlap,
    kPaper,
    kSheets,
  };

  PrintDialog(const PrintChoice& choice, std::function<int(const PrintChoice&)> sheets, CWnd* parent);
  const PrintChoice& Choice() const { return m_choice; }

  const coregui::MessageTable& GetMessageTable() const override;

 protected:
  BOOL OnInitDialog() override;
  void OnOK() override;

 private:
  CStatic& AddLabel(const wchar_t* text, CRect place, UINT id = 0xFFFF);
  void AddNumber(coregui::DialogLayout& layout, CFloatEdit& edit, UINT id, const wchar_t* label,
                 const wchar_t* name, double least, double most, double value);
  void TakeChoice();
  void HandleChange();

  PrintChoice m_choice;
  std::function<int(const PrintChoice&)> m_sheetsOf;
  CButton m_onePage;
  CButton m_toScale;
  CFloatEdit m_horizontal;
  CFloatEdit m_vertical;
  CFloatEdit m_overlap;
  CComboBox m_paper;
  CStatic* m_sheets = nullptr;  ///< one of the labels
  std::vector<std::unique_ptr<CStatic>> m_labels;
  CButton m_ok;
  CButton m_cancel;
  bool m_ready = false;  ///< the controls are made
};

}  // namespace desk
