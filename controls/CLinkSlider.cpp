#include "controls/CLinkSlider.h"

#include <algorithm>
#include <cmath>

#include "controls/CFloatEdit.h"
#include "platform/EditWatch.h"

void CLinkSlider::SetLink(CFloatEdit* edit, double first, double last, int steps) {
  const bool known = edit != nullptr && GetLink() == edit;
  m_edit = coregui::WindowRef(edit);
  m_first = first;
  m_last = last;
  m_steps = std::max(1, steps);
  SetRange(0, m_steps);
  SetLineSize(1);
  SetPageSize(std::max(1, m_steps / 10));
  if (edit == nullptr) return;
  if (!known) {
    coregui::WatchEdit(*edit, [self = coregui::WindowRef(this), edit] {
      auto* slider = dynamic_cast<CLinkSlider*>(self.Get());
      if (slider != nullptr && slider->GetLink() == edit) slider->Follow();
    });
  }
  Follow();
}

CFloatEdit* CLinkSlider::GetLink() const {
  return dynamic_cast<CFloatEdit*>(m_edit.Get());
}

void CLinkSlider::Follow() {
  const CFloatEdit* edit = GetLink();
  if (m_moving || edit == nullptr || m_first == m_last) return;
  const double share = (edit->GetValue() - m_first) / (m_last - m_first);
  SetPos(static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * m_steps)));
}

void CLinkSlider::OnMoved(int position) {
  CFloatEdit* edit = GetLink();
  if (edit == nullptr) return;
  const coregui::WindowRef self(this);
  m_moving = true;
  edit->SetValue(m_first + (m_last - m_first) * position / m_steps);
  if (self) m_moving = false;
}
