#include "controls/CSmartEdit.h"

#include <algorithm>
#include <cmath>

#include "controls/Chainage.h"
#include "controls/NumberFormat.h"
#include "controls/NumberInput.h"
#include "platform/ControlMark.h"
#include "platform/WindowRef.h"

void CSmartEdit::SetKind(Kind kind) {
  m_kind = kind;
  if (IsMarked()) Validate();
}

void CSmartEdit::SetRange(double least, double most) {
  m_least = std::min(least, most);
  m_most = std::max(least, most);
  if (IsMarked()) Validate();
}

bool CSmartEdit::Parse(double& value) const {
  const CString text = GetWindowTextString();
  double parsed = 0;
  if (m_kind == Kind::text) return false;
  if (m_kind == Kind::chainage) return coregui::ParseChainage(text, value);
  if (!coregui::ParseNumberInput(text, parsed)) return false;
  if (m_kind == Kind::integer && parsed != std::floor(parsed)) return false;
  value = parsed;
  return true;
}

CString CSmartEdit::TextOf(double value) const {
  if (m_kind == Kind::chainage) return coregui::FormatChainage(value, m_decimals);
  // No format: as many digits as the number needs.
  return coregui::NumberFormat(coregui::NumberFormat::Kind::real, L"").Text(value);
}

CString CSmartEdit::KindFault() const {
  switch (m_kind) {
    case Kind::integer:
      return L"This is not a whole number.";
    case Kind::chainage:
      return L"This is not a chainage, as " + TextOf(1234.5) + L".";
    default:
      return L"This is not a number.";
  }
}

CString CSmartEdit::FindFault() const {
  if (GetWindowTextString().Trim().IsEmpty()) {
    return m_required ? CString(L"Something must be entered here.") : CString();
  }
  double value = 0;
  if (m_kind == Kind::text) return {};
  if (!Parse(value)) return KindFault();
  if (value < m_least) return L"The smallest value is " + TextOf(m_least) + L".";
  if (value > m_most) return L"The largest value is " + TextOf(m_most) + L".";
  return {};
}

void CSmartEdit::Mark(const CString& reason) {
  m_markedText = GetWindowTextString();
  if (reason == m_reason) return;
  m_reason = reason;
  coregui::MarkControl(*this, m_reason);
}

bool CSmartEdit::Validate() {
  Mark(FindFault());
  return !IsMarked();
}

bool CSmartEdit::GetNumber(double& value) const {
  double number = 0;
  if (!Parse(number) || number < m_least || number > m_most) return false;
  value = number;
  return true;
}

void CSmartEdit::SetNumber(double value) {
  SetWindowText(TextOf(value));
}

const coregui::MessageTable& CSmartEdit::GetMessageTable() const {
  static const coregui::MessageTable table =
      coregui::MessageTable(CAdvEdit::Messages()).On<WM_KILLFOCUS>(&CSmartEdit::OnKillFocus);
  return table;
}

LRESULT CSmartEdit::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  const coregui::WindowRef self(this);
  const LRESULT result = CAdvEdit::WindowProc(message, wParam, lParam);
  if (self && HasWindow() && IsMarked() && GetWindowTextString() != m_markedText) Validate();
  return result;
}

void CSmartEdit::OnKillFocus(CWnd* /*next*/) {
  const coregui::WindowRef self(this);
  Default();
  if (!self || !HasWindow()) return;
  double value = 0;
  if (Validate() && Parse(value) && GetModify() != FALSE) {
    const CString text = TextOf(value);
    if (text != GetWindowTextString()) {
      SetSel(0, -1);
      ReplaceSel(text, TRUE);
    }
  }
  if (self && HasWindow()) NotifyParent(kChecked);
}
