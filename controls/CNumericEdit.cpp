#include "controls/CNumericEdit.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <tuple>

#include "controls/NumberInput.h"
#include "platform/ControlMark.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

using coregui::NumberFormat;

namespace {

constexpr int kPage = 10;

double Finite(double limit, double instead) {
  constexpr double kMost = std::numeric_limits<double>::max();
  return std::isnan(limit) ? instead : std::clamp(limit, -kMost, kMost);
}

/// Without the dust that adding tenths leaves in the last binary digits.
double WithoutDust(double number) {
  constexpr int kDigits = 12;
  char text[32];
  const auto end = std::to_chars(text, text + sizeof(text), number, std::chars_format::general, kDigits).ptr;
  std::from_chars(text, end, number);
  return number;
}

}  // namespace

CNumericEdit::CNumericEdit(NumberFormat::Kind kind, double least, double most)
    : m_kind(kind), m_format(kind, nullptr), m_least(least), m_most(most), m_shown(m_format.Text(0)) {}

void CNumericEdit::SetRange(double least, double most, const wchar_t* format) {
  const double number = GetNumber();
  constexpr double kMost = std::numeric_limits<double>::max();
  std::tie(m_least, m_most) = std::minmax({Finite(least, -kMost), Finite(most, kMost)});
  m_format = NumberFormat(m_kind, format);
  SetNumber(number);
}

void CNumericEdit::SetNumber(double number) {
  Take(number, false);
}

double CNumericEdit::InRange(double number) const {
  const double sane = std::isnan(number) ? 0 : number;
  return std::clamp(m_kind == NumberFormat::Kind::whole ? std::round(sane) : sane, m_least, m_most);
}

CNumericEdit::Seen CNumericEdit::Look() const {
  const CString text = GetWindowTextString();
  double typed = m_number;
  if (text == m_shown) return {Content::number, m_number, m_number};
  if (!coregui::ParseNumberInput(m_format.WithoutSurroundings(text), typed)) {
    return {Content::notANumber, m_number, m_number};
  }
  const double taken = InRange(typed);
  if (typed < m_least || typed > m_most) return {Content::outside, taken, typed};
  return {taken == typed ? Content::number : Content::notWhole, taken, typed};
}

CString CNumericEdit::GetProblem() const {
  const Seen seen = Look();
  const NumberFormat plain(m_kind, nullptr);
  const CString taken =
      seen.content == Content::outside ? plain.Text(seen.number) : m_format.Text(seen.number);
  switch (seen.content) {
    case Content::outside:
      return CString(seen.typed > m_most ? L"More than " : L"Less than ") + taken + L": " + taken +
             L" is taken";
    case Content::notWhole:
      return L"Not a whole number: " + taken + L" is taken";
    case Content::notANumber:
      return L"Not a number: " + taken + L" stays";
    default:
      return {};
  }
}

double CNumericEdit::GetStep() const {
  if (m_step > 0) return m_step;
  constexpr double kWide = 10;
  const double width = m_most / 2 - m_least / 2;  // half of it: the whole may be no finite number
  if (m_kind == NumberFormat::Kind::whole || width * 2 >= kWide || width <= 0) return 1;
  const double tenth = std::pow(10.0, std::floor(std::log10(width * 2)) - 1);
  return std::max(tenth, std::pow(10.0, -m_format.Decimals()));
}

void CNumericEdit::Take(double number, bool canUndo) {
  m_number = InRange(number);
  m_shown = m_format.Text(m_number);
  const CString text = m_shown;
  const coregui::WindowRef self(this);
  if (canUndo && HasWindow()) {
    SetSel(0, -1);
    ReplaceSel(text, TRUE);
  } else {
    SetWindowText(text);
  }
  if (self) UpdateMark();
}

void CNumericEdit::Commit() {
  if (GetWindowTextString() == m_shown) return;
  const Seen seen = Look();
  if (seen.content != Content::number) MessageBeep(MB_ICONEXCLAMATION_SOUND);
  Take(seen.number, true);
}

bool CNumericEdit::CanStep() const {
  return (GetStyle() & ES_READONLY) == 0 && IsWindowEnabled() != FALSE;
}

void CNumericEdit::Step(int steps) {
  const double from = GetNumber();
  const coregui::WindowRef self(this);
  Take(WithoutDust(from + steps * GetStep()), true);
  if (self && HasWindow()) SetSel(0, -1);
}

void CNumericEdit::UpdateMark() {
  m_markedText = GetWindowTextString();
  coregui::MarkControl(*this, GetProblem());
}

LRESULT CNumericEdit::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  const coregui::WindowRef self(this);
  const LRESULT result = CEdit::WindowProc(message, wParam, lParam);
  if (!self || !HasWindow()) return result;
  if (message == WM_CREATE) SetWindowText(m_shown);
  if (self && GetWindowTextString() != m_markedText) UpdateMark();
  return result;
}

const coregui::MessageTable& CNumericEdit::GetMessageTable() const {
  return Messages();
}

const coregui::MessageTable& CNumericEdit::Messages() {
  static const coregui::MessageTable table = coregui::MessageTable(CEdit::Messages())
                                                 .On<WM_KEYDOWN>(&CNumericEdit::HandleKeyDown)
                                                 .On<WM_MOUSEWHEEL>(&CNumericEdit::HandleWheel)
                                                 .On<WM_KILLFOCUS>(&CNumericEdit::HandleKillFocus)
                                                 .On<WM_SYSCOLORCHANGE>(&CNumericEdit::HandleColours);
  return table;
}

void CNumericEdit::HandleKeyDown(UINT key, UINT /*repeat*/, UINT /*flags*/) {
  const int steps = key == VK_UP      ? 1
                    : key == VK_DOWN  ? -1
                    : key == VK_PRIOR ? kPage
                    : key == VK_NEXT  ? -kPage
                                      : 0;
  if (steps == 0 || !CanStep()) {
    Default();
  } else {
    Step(steps);
  }
}

BOOL CNumericEdit::HandleWheel(UINT flags, short delta, CPoint /*at*/) {
  const int notches = delta / WHEEL_DELTA;
  if (GetFocus() != this || notches == 0 || !CanStep()) return static_cast<BOOL>(Default());
  Step((flags & MK_CONTROL) != 0 ? notches * kPage : notches);
  return TRUE;
}

void CNumericEdit::HandleKillFocus(CWnd* next) {
  const coregui::WindowRef self(this);
  Default();
  // What stands half typed is left alone while the user looks something up in another program.
  if (self && HasWindow() && next != nullptr) Commit();
}

void CNumericEdit::HandleColours() {
  const coregui::WindowRef self(this);
  Default();
  if (self) UpdateMark();
}
