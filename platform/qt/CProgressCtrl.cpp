#include "platform/CProgressCtrl.h"

#include <QProgressBar>
#include <algorithm>
#include <utility>

#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"

BOOL CProgressCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  return Create(L"PROGRESS", L"", style, rect, parent, id);
}

std::unique_ptr<coregui::NativeWindow> CProgressCtrl::MakeNative(const CREATESTRUCT& create) {
  coregui::EnsureApplication();
  auto bar = std::make_unique<QProgressBar>();
  bar->setTextVisible(false);
  bar->setRange(m_lower, m_upper);
  bar->setValue(std::clamp(m_position, m_lower, m_upper));
  return std::make_unique<coregui::ControlWindow>(*this, create, std::move(bar));
}

void CProgressCtrl::Show() {
  auto* bar = qobject_cast<QProgressBar*>(coregui::WidgetOf(this));
  if (bar == nullptr) return;
  bar->setRange(m_lower, m_upper);
  bar->setValue(std::clamp(m_position, m_lower, m_upper));
}

void CProgressCtrl::SetRange32(int lower, int upper) {
  m_lower = lower;
  m_upper = std::max(lower, upper);
  Show();
}

void CProgressCtrl::GetRange(int& lower, int& upper) const {
  lower = m_lower;
  upper = m_upper;
}

int CProgressCtrl::SetPos(int position) {
  const int old = std::exchange(m_position, position);
  Show();
  return old;
}

int CProgressCtrl::SetStep(int step) {
  return std::exchange(m_step, step);
}

int CProgressCtrl::StepIt() {
  const long long next = static_cast<long long>(m_position) + m_step;
  return SetPos(next > m_upper ? m_lower : static_cast<int>(std::max<long long>(next, m_lower)));
}
