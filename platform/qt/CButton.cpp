#include "platform/CButton.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <functional>
#include <utility>

#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"

namespace {

using coregui::ControlWindow;
using coregui::ToQt;

constexpr DWORD kKindMask = 0xF;

/// Any kind of button but the group's frame.
class ButtonWindow : public ControlWindow {
 public:
  ButtonWindow(CWnd& window, const CREATESTRUCT& create, std::function<void()> pressed)
      : ControlWindow(window, create, MakeWidget(create.style & kKindMask)),
        m_pressed(std::move(pressed)),
        m_kind(create.style & kKindMask) {
    Button().setText(ToQt(create.name));
    if (m_kind == BS_AUTORADIOBUTTON) JoinGroup(create);
    connect(&Button(), &QAbstractButton::clicked, this, [this] { NoteClick(); });
  }

  QAbstractButton& Button() const { return static_cast<QAbstractButton&>(*GetWidget()); }
  void SetText(const CString& text) override {
    if (GetWidget() != nullptr) Button().setText(ToQt(text));
  }
  void StyleChanged() override {
    if (auto* push = qobject_cast<QPushButton*>(GetWidget())) {
      push->setDefault((Window().GetStyle() & kKindMask) == BS_DEFPUSHBUTTON);
    }
  }
  int Check() const {
    const auto* box = qobject_cast<const QCheckBox*>(GetWidget());
    if (box != nullptr)
      return box->checkState() == Qt::PartiallyChecked ? BST_INDETERMINATE : box->isChecked();
    return Button().isChecked() ? BST_CHECKED : BST_UNCHECKED;
  }
  void SetCheck(int state) {
    const bool keep = std::exchange(m_state, state) == state && Check() == state;
    if (keep) return;
    if (auto* box = qobject_cast<QCheckBox*>(GetWidget())) {
      box->setCheckState(state == BST_INDETERMINATE ? Qt::PartiallyChecked
                         : state == BST_CHECKED     ? Qt::Checked
                                                    : Qt::Unchecked);
    } else if (state == BST_UNCHECKED && m_group != nullptr) {
      m_group->setExclusive(false);  // none of the group may be on, by code
      Button().setChecked(false);
      m_group->setExclusive(true);
    } else {
      Button().setChecked(state != BST_UNCHECKED);
    }
  }

 protected:
  UINT DialogCode(UINT /*key*/) const override {
    if (m_kind == BS_AUTORADIOBUTTON) return DLGC_WANTARROWS;  // they choose as well
    return m_kind == BS_PUSHBUTTON || m_kind == BS_DEFPUSHBUTTON ? DLGC_BUTTON : 0;
  }

 private:
  static std::unique_ptr<QWidget> MakeWidget(DWORD kind) {
    switch (kind) {
      case BS_CHECKBOX:
      case BS_AUTOCHECKBOX:
      case BS_AUTO3STATE: {
        auto box = std::make_unique<QCheckBox>();
        box->setTristate(kind == BS_AUTO3STATE);
        return box;
      }
      case BS_AUTORADIOBUTTON: {
        auto button = std::make_unique<QRadioButton>();
        button->setAutoExclusive(false);  // the group does it
        return button;
      }
      default: {
        auto button = std::make_unique<QPushButton>();
        button->setAutoDefault(false);
        button->setDefault(kind == BS_DEFPUSHBUTTON);
        return button;
      }
    }
  }

  /// The group of the radio button created before, unless this one starts its own.
  void JoinGroup(const CREATESTRUCT& create) {
    const CWnd* parent = Window().GetParent();
    const ButtonWindow* before = nullptr;
    unsigned sequence = 0;
    if (parent != nullptr && (create.style & WS_GROUP) == 0) {
      for (const CWnd* sibling : parent->State().family.children) {
        const auto* radio = coregui::NativeOf<ButtonWindow>(*sibling);
        if (radio == nullptr || radio->m_group == nullptr || sibling->State().family.sequence < sequence)
          continue;
        before = radio;
        sequence = sibling->State().family.sequence;
      }
    }
    m_group = before == nullptr ? std::make_shared<QButtonGroup>() : before->m_group;
    m_group->addButton(&Button());
  }

  void NoteClick() {
    if (m_kind == BS_CHECKBOX) SetBack();
    m_state = Check();
    if (Window().HasWindow()) m_pressed();
  }

  /// A box that the program checks shows what the program set.
  void SetBack() { static_cast<QCheckBox&>(Button()).setChecked(m_state != BST_UNCHECKED); }

  std::function<void()> m_pressed;
  DWORD m_kind;  ///< BS_ value it was made with; a dialog changes the style's default bit
  std::shared_ptr<QButtonGroup> m_group;
  int m_state = BST_UNCHECKED;
};

/// The frame around a group: it lies below its siblings and takes no clicks.
class GroupWindow : public ControlWindow {
 public:
  GroupWindow(CWnd& window, const CREATESTRUCT& create)
      : ControlWindow(window, create, std::make_unique<QGroupBox>(ToQt(create.name))) {
    GetWidget()->setAttribute(Qt::WA_TransparentForMouseEvents);
    GetWidget()->lower();
  }
  void SetText(const CString& text) override {
    if (GetWidget() != nullptr) static_cast<QGroupBox*>(GetWidget())->setTitle(ToQt(text));
  }
};

}  // namespace

BOOL CButton::Create(const wchar_t* text, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  return Create(L"BUTTON", text, style, rect, parent, id);
}

std::unique_ptr<coregui::NativeWindow> CButton::MakeNative(const CREATESTRUCT& create) {
  coregui::EnsureApplication();
  if ((create.style & kKindMask) == BS_GROUPBOX) return std::make_unique<GroupWindow>(*this, create);
  return std::make_unique<ButtonWindow>(*this, create, [this] { OnPressed(); });
}

void CButton::OnPressed() {
  NotifyParent(BN_CLICKED);
}

int CButton::GetCheck() const {
  const auto* button = coregui::NativeOf<ButtonWindow>(*this);
  return button == nullptr ? BST_UNCHECKED : button->Check();
}

void CButton::SetCheck(int state) {
  if (auto* button = coregui::NativeOf<ButtonWindow>(*this)) button->SetCheck(state);
}

void CButton::Click() {
  if (auto* button = coregui::NativeOf<ButtonWindow>(*this)) button->Button().click();
}

void CButton::SetDefault(BOOL on) {
  auto* button = coregui::NativeOf<ButtonWindow>(*this);
  if (auto* push = button == nullptr ? nullptr : qobject_cast<QPushButton*>(button->GetWidget())) {
    push->setDefault(on != FALSE);
  }
}
