#include "platform/CFindReplaceDialog.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <vector>

#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"
#include "platform/qt/interop.h"

/// The native side: the fields and buttons.
class CFindReplaceWindow : public coregui::ControlWindow {
 public:
  using Action = CFindReplaceDialog::Action;

  CFindReplaceWindow(CFindReplaceDialog& window, const CREATESTRUCT& create)
      : ControlWindow(window, create, std::make_unique<QDialog>()), m_dialog(window) {
    auto* grid =
        std::make_unique<QGridLayout>(GetWidget()).release();  // the dialog owns its layout and fields
    find = AddField(*grid, 0, tr("Fi&nd what:"), "find", window.m_find);
    if (window.m_findOnly == FALSE)
      replace = AddField(*grid, 1, tr("Re&place with:"), "replace", window.m_replace);
    word = AddCheck(*grid, 2, tr("Match &whole word only"), "word", FR_WHOLEWORD);
    matchCase = AddCheck(*grid, 3, tr("Match &case"), "case", FR_MATCHCASE);
    if (window.m_findOnly != FALSE) down = AddCheck(*grid, 4, tr("Search &downwards"), "down", FR_DOWN);
    AddButton(*grid, 0, tr("&Find Next"), "findNext", Action::findNext);
    if (window.m_findOnly == FALSE) {
      AddButton(*grid, 1, tr("&Replace"), "replaceOne", Action::replace);
      AddButton(*grid, 2, tr("Replace &All"), "replaceAll", Action::replaceAll);
    }
    AddButton(*grid, window.m_findOnly != FALSE ? 1 : 3, tr("Cancel"), "cancel", Action::close);
    grid->setRowStretch(grid->rowCount(), 1);
    connect(find, &QLineEdit::textChanged, this, [this] { EnableButtons(); });
    EnableButtons();
    find->selectAll();
  }

  QLineEdit* find = nullptr;
  QLineEdit* replace = nullptr;
  QCheckBox* word = nullptr;
  QCheckBox* matchCase = nullptr;
  QCheckBox* down = nullptr;

  bool DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override {
    result = 0;
    if (message == WM_CLOSE || (message == WM_CHAR && wParam == VK_ESCAPE)) {
      m_dialog.Tell(Action::close);
      return true;
    }
    return ControlWindow::DefaultMessage(message, wParam, lParam, result);
  }

 private:
  QLineEdit* AddField(QGridLayout& grid, int row, const QString& label, const char* name,
                      const CString& text) {
    auto* field = std::make_unique<QLineEdit>(coregui::ToQt(text)).release();
    auto* title = std::make_unique<QLabel>(label).release();
    field->setObjectName(name);
    title->setBuddy(field);
    grid.addWidget(title, row, 0);
    grid.addWidget(field, row, 1);
    return field;
  }
  QCheckBox* AddCheck(QGridLayout& grid, int row, const QString& label, const char* name, DWORD flag) {
    auto* box = std::make_unique<QCheckBox>(label).release();
    box->setObjectName(name);
    box->setChecked((m_dialog.m_flags & flag) != 0);
    grid.addWidget(box, row, 0, 1, 2);
    return box;
  }
  void AddButton(QGridLayout& grid, int row, const QString& label, const char* name, Action action) {
    auto* button = std::make_unique<QPushButton>(label).release();
    button->setObjectName(name);
    button->setDefault(action == Action::findNext);
    grid.addWidget(button, row, 2);
    connect(button, &QPushButton::clicked, this, [this, action] { m_dialog.Tell(action); });
    if (action != Action::close) m_needText.push_back(button);
  }
  void EnableButtons() {
    for (QPushButton* button : m_needText) button->setEnabled(!find->text().isEmpty());
  }

  CFindReplaceDialog& m_dialog;
  std::vector<QPushButton*> m_needText;  ///< owned by the dialog
};

UINT RegisterWindowMessage(const wchar_t* name) {
  constexpr UINT kFirst = 0xC000;
  static std::vector<CString> names;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (names[i].CompareNoCase(name) == 0) return kFirst + static_cast<UINT>(i);
  }
  names.emplace_back(name);
  return kFirst + static_cast<UINT>(names.size()) - 1;
}

BOOL CFindReplaceDialog::Create(BOOL findOnly, const wchar_t* find, const wchar_t* replace, DWORD flags,
                                CWnd* owner) {
  m_findOnly = findOnly;
  m_find = find;
  m_replace = replace;
  m_flags = flags;
  constexpr int width = 440;
  if (Create(L"FINDREPLACE", findOnly != FALSE ? L"Find" : L"Replace", WS_POPUP | WS_CAPTION | WS_SYSMENU,
             CRect(0, 0, width, 1), owner, 0) == FALSE) {
    return FALSE;
  }
  const QSize least = coregui::WidgetOf(this)->layout()->sizeHint();
  const CSize size(std::max(width, least.width()), least.height());
  CRect over;
  owner->GetTopLevelParent()->GetWindowRect(&over);
  MoveWindow(over.left + (over.Width() - size.cx) / 2, over.top + (over.Height() - size.cy) / 2, size.cx,
             size.cy);
  return ShowWindow(SW_SHOW), TRUE;
}

void CFindReplaceDialog::SetWholeWordText(const wchar_t* text) {
  if (auto* native = coregui::NativeOf<CFindReplaceWindow>(*this)) {
    native->word->setText(coregui::ToQt(text));
  }
}

std::unique_ptr<coregui::NativeWindow> CFindReplaceDialog::MakeNative(const CREATESTRUCT& create) {
  coregui::EnsureApplication();
  return std::make_unique<CFindReplaceWindow>(*this, create);
}

CFindReplaceDialog* CFindReplaceDialog::GetNotifier(LPARAM lParam) {
  return reinterpret_cast<CFindReplaceDialog*>(lParam);
}

CString CFindReplaceDialog::GetFindString() const {
  const auto* native = coregui::NativeOf<CFindReplaceWindow>(*this);
  return native == nullptr ? m_find : coregui::FromQt(native->find->text());
}

CString CFindReplaceDialog::GetReplaceString() const {
  const auto* native = coregui::NativeOf<CFindReplaceWindow>(*this);
  return native == nullptr || native->replace == nullptr ? m_replace
                                                         : coregui::FromQt(native->replace->text());
}

BOOL CFindReplaceDialog::SearchDown() const {
  const auto* native = coregui::NativeOf<CFindReplaceWindow>(*this);
  return native == nullptr || native->down == nullptr || native->down->isChecked() ? TRUE : FALSE;
}

BOOL CFindReplaceDialog::MatchCase() const {
  const auto* native = coregui::NativeOf<CFindReplaceWindow>(*this);
  return native != nullptr && native->matchCase->isChecked() ? TRUE : FALSE;
}

BOOL CFindReplaceDialog::MatchWholeWord() const {
  const auto* native = coregui::NativeOf<CFindReplaceWindow>(*this);
  return native != nullptr && native->word->isChecked() ? TRUE : FALSE;
}

void CFindReplaceDialog::Tell(Action action) {
  const coregui::WindowRef self(this);
  m_action = action;
  if (CWnd* owner = GetOwner()) {
    owner->SendMessage(RegisterWindowMessage(FINDMSGSTRING), 0, reinterpret_cast<LPARAM>(this));
  }
  if (!self) return;
  m_action = Action::none;
  if (action == Action::close) DestroyWindow();
}
