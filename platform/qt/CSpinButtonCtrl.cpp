#include "platform/CSpinButtonCtrl.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <algorithm>
#include <functional>
#include <utility>

#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"

namespace {

/// The toolkit's spin box without its text.
class Arrows : public QAbstractSpinBox {
 public:
  std::function<void(int)> onStep;

  Arrows() {
    lineEdit()->hide();
    setFrame(false);
  }
  void stepBy(int steps) override {
    if (onStep) onStep(steps);
  }

 protected:
  StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
};

}  // namespace

/// The native side of a spin button.
class CSpinButtonWindow : public coregui::ControlWindow {
 public:
  CSpinButtonWindow(CSpinButtonCtrl& window, const CREATESTRUCT& create)
      : ControlWindow(window, create, std::make_unique<Arrows>()) {
    static_cast<Arrows*>(GetWidget())->onStep = [&window](int steps) { window.Step(steps); };
  }
};

BOOL CSpinButtonCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  return Create(L"SPIN", L"", style, rect, parent, id);
}

std::unique_ptr<coregui::NativeWindow> CSpinButtonCtrl::MakeNative(const CREATESTRUCT& create) {
  coregui::EnsureApplication();
  return std::make_unique<CSpinButtonWindow>(*this, create);
}

void CSpinButtonCtrl::SetBuddy(CWnd* buddy) {
  m_buddy = coregui::WindowRef(buddy);
}

CWnd* CSpinButtonCtrl::GetBuddy() const {
  return m_buddy.Get();
}

void CSpinButtonCtrl::SetRange32(int lower, int upper) {
  m_lower = std::min(lower, upper);
  m_upper = std::max(lower, upper);
  m_position = std::clamp(m_position, m_lower, m_upper);
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const {
  lower = m_lower;
  upper = m_upper;
}

int CSpinButtonCtrl::SetPos32(int position) {
  const int old = std::exchange(m_position, std::clamp(position, m_lower, m_upper));
  CWnd* buddy = m_buddy.Get();
  if (buddy != nullptr && (GetStyle() & UDS_SETBUDDYINT) != 0) {
    buddy->SetWindowText(CString::Formatted(L"%d", m_position));
  }
  return old;
}

int CSpinButtonCtrl::GetPos32() const {
  return m_position;
}

bool CSpinButtonCtrl::OnDeltaPos(int /*position*/, int /*delta*/) {
  return true;
}

void CSpinButtonCtrl::Step(int steps) {
  const coregui::WindowRef self(this);
  if (!OnDeltaPos(m_position, steps) || !self) return;
  const long long wanted = static_cast<long long>(m_position) + steps;
  const bool wraps = (GetStyle() & UDS_WRAP) != 0;
  const long long below = wraps ? m_upper : m_lower;
  const long long above = wraps ? m_lower : m_upper;
  SetPos32(static_cast<int>(wanted < m_lower ? below : wanted > m_upper ? above : wanted));
  for (const int code : {SB_THUMBPOSITION, SB_ENDSCROLL}) {
    CWnd* parent = self ? GetParent() : nullptr;
    if (parent == nullptr) return;
    parent->SendMessage(WM_VSCROLL, MAKEWPARAM(code, m_position), reinterpret_cast<LPARAM>(GetSafeHwnd()));
  }
}
