#include "PrintDialog.h"

namespace desk {

namespace {

constexpr int kWidth = 330;  // lengths at 96 dots per inch
constexpr int kRow = 24;
constexpr int kLine = 22;
constexpr int kLabel = 190;
constexpr int kLabelDown = 4;
constexpr DWORD kShown = WS_CHILD | WS_VISIBLE;
constexpr DWORD kStop = kShown | WS_TABSTOP;

std::wstring SheetsText(const PrintChoice& choice, int sheets) {
  if (sheets == 0) {
    return L"This cannot be printed: more than 10,000 sheets, or no room.";
  }
  const std::wstring paper = kPapers[static_cast<std::size_t>(choice.paper)].name;
  return std::to_wstring(sheets) + (sheets == 1 ? L" sheet " : L" sheets ") + paper + L", landscape";
}

}  // namespace

PrintDialog::PrintDialog(const PrintChoice& choice, std::function<int(const PrintChoice&)> sheets,
                         CWnd* parent)
    : CCADBaseDialog(L"Print the long-section", parent), m_choice(choice), m_sheetsOf(std::move(sheets)) {}

/// Its text stands on the line of the field beside it.
CStatic& PrintDialog::AddLabel(const wchar_t* text, CRect place, UINT id) {
  place.top += ScaleByDpi(kLabelDown);
  CStatic& label = *m_labels.emplace_back(std::make_unique<CStatic>());
  label.Create(text, kShown, place, this, id);
  return label;
}

void PrintDialog::AddNumber(coregui::DialogLayout& layout, CFloatEdit& edit, UINT id, const wchar_t* label,
                            const wchar_t* name, double least, double most, double value) {
  const std::vector<CRect> places = layout.Columns(kRow, {kLabel, 0});
  AddLabel(label, places[0]);
  edit.Create(kStop | WS_BORDER | ES_AUTOHSCROLL, places[1], this, id);
  edit.SetParameters(least, most, L"%g");
  edit.SetValue(value);
  edit.SetAccessibleName(name);
}

BOOL PrintDialog::OnInitDialog() {
  CCADBaseDialog::OnInitDialog();
  coregui::DialogLayout layout(kWidth);
  m_onePage.Create(L"The &whole section on one page", kStop | WS_GROUP | BS_AUTORADIOBUTTON, layout.Row(kRow),
                   this, kOnePage);
  m_toScale.Create(L"To &scale, on as many sheets as it takes", kShown | BS_AUTORADIOBUTTON, layout.Row(kRow),
                   this, kToScale);
  (m_choice.toScale ? m_toScale : m_onePage).SetCheck(BST_CHECKED);
  layout.Gap(4);
  AddNumber(layout, m_horizontal, kHorizontal, L"Along the chainage  1 :", L"Scale along the chainage, 1 to",
            kLeastScale, kLargestScale, m_choice.horizontal);
  AddNumber(layout, m_vertical, kVertical, L"Levels  1 :", L"Scale of the levels, 1 to", kLeastScale,
            kLargestScale, m_choice.vertical);
  AddNumber(layout, m_overlap, kOverlap, L"Overlap of the sheets, mm",
            L"Overlap of the sheets in millimetres", 0.0, kMostOverlap, m_choice.overlap);
  const std::vector<CRect> places = layout.Columns(kRow, {kLabel, 0});
  AddLabel(L"Paper", places[0]);
  m_paper.Create(kStop | CBS_DROPDOWNLIST, places[1], this, kPaper);
  m_paper.SetAccessibleName(L"Paper");
  for (const Paper& paper : kPapers) {
    m_paper.AddString(paper.name);
  }
  m_paper.SetCurSel(m_choice.paper);
  layout.Gap(4);
  m_sheets = &AddLabel(L"", layout.Row(kLine), kSheets);
  const std::vector<CRect> buttons = layout.Buttons(2);
  m_ok.Create(L"&Print...", kStop | BS_DEFPUSHBUTTON, buttons[0], this, IDOK);
  m_cancel.Create(L"Cancel", kStop, buttons[1], this, IDCANCEL);
  SetClientSize(layout.Size());
  m_ready = true;
  HandleChange();
  (m_choice.toScale ? m_toScale : m_onePage).SetFocus();
  return FALSE;
}

void PrintDialog::TakeChoice() {
  m_choice.toScale = m_toScale.GetCheck() == BST_CHECKED;
  m_choice.horizontal = m_horizontal.GetValue();
  m_choice.vertical = m_vertical.GetValue();
  m_choice.overlap = m_overlap.GetValue();
  m_choice.paper = std::max(m_paper.GetCurSel(), 0);
}

void PrintDialog::HandleChange() {
  if (!m_ready) {
    return;
  }
  TakeChoice();
  for (CWnd* edit : std::initializer_list<CWnd*>{&m_horizontal, &m_vertical, &m_overlap}) {
    edit->EnableWindow(m_choice.toScale);
  }
  const int sheets = m_sheetsOf(m_choice);
  m_sheets->SetWindowText(SheetsText(m_choice, sheets).c_str());
  m_ok.EnableWindow(sheets > 0);
}

void PrintDialog::OnOK() {
  TakeChoice();
  if (m_sheetsOf(m_choice) > 0) {
    CCADBaseDialog::OnOK();
  }
}

const coregui::MessageTable& PrintDialog::GetMessageTable() const {
  static const coregui::MessageTable table =
      coregui::MessageTable(CCADBaseDialog::Messages())
          .OnCommand(kOnePage, BN_CLICKED, &PrintDialog::HandleChange)
          .OnCommand(kToScale, BN_CLICKED, &PrintDialog::HandleChange)
          .OnCommand(kHorizontal, EN_CHANGE, &PrintDialog::HandleChange)
          .OnCommand(kVertical, EN_CHANGE, &PrintDialog::HandleChange)
          .OnCommand(kOverlap, EN_CHANGE, &PrintDialog::HandleChange)
          .OnCommand(kPaper, CBN_SELCHANGE, &PrintDialog::HandleChange);
  return table;
}

}  // namespace desk
