#include "grid/data/CGridCell.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "grid/data/NumberText.h"
#include "platform/Locale.h"
#include "platform/OleDate.h"
#include "platform/System.h"

namespace {

constexpr long DEFAULT_FLAGS = CELLPROP_DATATYPE | CELLPROP_TEXTCOLOR | CELLPROP_BACKCOLOR |
                               CELLPROP_HTEXTCOLOR | CELLPROP_HBACKCOLOR | CELLPROP_ALIGNMENT |
                               CELLPROP_DEFAULTMARK;
constexpr long VALUE = CELLPROP_TEXT | CELLPROP_DATATYPE;
constexpr std::int64_t CURRENCY_UNIT = 10000;

bool IsNumeric(short type) {
  return type == CELLDATA_NUMBER || type == CELLDATA_TIME || type == CELLDATA_CURRENCY;
}

/// The date of a text; without one the number that stands for the failure. Returns whether there is one.
bool ReadDate(const wchar_t* text, double& date) {
  const DateResult result = VarDateFromStr(text, &date);
  if (result == DateResult::ok) return true;
  date = result == DateResult::typeMismatch ? 0.0 : -1.0;
  return false;
}

/// Truncates towards zero; what does not fit becomes the nearest limit, and what is no number 0.
template <typename Integer>
Integer Truncate(double number) {
  using Limits = std::numeric_limits<Integer>;
  if (std::isnan(number)) return 0;
  if (number <= static_cast<double>(Limits::min())) return Limits::min();
  if (number >= static_cast<double>(Limits::max())) return Limits::max();
  return static_cast<Integer>(number);
}

void BreakDownDate(bool valid, double date, int* second, int* minute, int* hour, int* day, int* month,
                   int* year) {
  SYSTEMTIME time;
  const bool real = valid && VariantTimeToSystemTime(date, &time);
  *second = real ? time.wSecond : -1;
  *minute = real ? time.wMinute : -1;
  *hour = real ? time.wHour : -1;
  *day = real ? time.wDay : -1;
  *month = real ? time.wMonth : -1;
  *year = real ? time.wYear : -1;
}

}  // namespace

CGridCell::CGridCell() {
  SetDefaultInfo();
}

CGridCell::~CGridCell() = default;

int CGridCell::SetDefaultInfo() {
  m_look.flags = static_cast<DWORD>(DEFAULT_FLAGS);
  m_text.Clear();
  m_label.Empty();
  m_mask.Empty();
  m_look.format = nullptr;
  m_look.style = nullptr;
  m_initial.reset();
  m_number = 0.0;
  m_look.decimals = 0;
  m_look.dataType = CELLDATA_TEXT;
  m_param = -1;
  m_look.readOnly = 0;
  m_look.textColor = GetSysColor(COLOR_WINDOWTEXT);
  m_look.backColor = GetSysColor(COLOR_WINDOW);
  m_look.highlightTextColor = GetSysColor(COLOR_HIGHLIGHTTEXT);
  m_look.highlightBackColor = GetSysColor(COLOR_HIGHLIGHT);
  m_look.alignment = 1;
  return 0;
}

int CGridCell::ClearAll() {
  SetDefaultInfo();
  m_look.cellType = -1;
  m_look.cellTypeEx = -1;
  m_look.border = 0;
  m_look.borderPen = nullptr;
  m_look.font = nullptr;
  m_look.bitmap = nullptr;
  m_join = {};
  return 0;
}

int CGridCell::SetText(const wchar_t* text) {
  m_text.Assign(text == nullptr ? L"" : text);  // which may be a part of this very text
  m_look.dataType = CELLDATA_TEXT;
  if (m_text.IsEmpty()) {
    Unmark(CELLPROP_TEXT);
  } else {
    Mark(VALUE);
  }
  return 0;
}

int CGridCell::AppendText(const wchar_t* text) {
  if (!Has(CELLPROP_TEXT)) return 1;
  if (text != nullptr) m_text.Append(text);
  Mark(VALUE);
  m_look.dataType = CELLDATA_TEXT;
  return 0;
}

const wchar_t* CGridCell::GetText() const {
  if (!Has(CELLPROP_TEXT)) return nullptr;
  if (GetDataType() == CELLDATA_NUMBER) {
    const coregui::NumberForm form{Has(CELLPROP_DECIMALS), m_look.decimals, !Has(CELLPROP_NOLOCALEFORMAT)};
    coregui::WriteNumber(m_number, form, m_text);
  }
  return m_text.Characters();
}

int CGridCell::GetText(CString* text) const {
  const wchar_t* const own = GetText();
  if (own == nullptr) return 1;
  *text = CString(m_text.View());
  return 0;
}

int CGridCell::GetTextLength() const {
  return Has(CELLPROP_TEXT) ? static_cast<int>(m_text.Size()) : 0;
}

int CGridCell::SetNumber(double number) {
  m_text.Clear();
  Mark(VALUE);
  m_look.dataType = CELLDATA_NUMBER;
  m_number = number;
  return 0;
}

double CGridCell::GetNumber() const {
  if (!Has(CELLPROP_TEXT)) return 0.0;
  return IsNumeric(GetDataType()) ? m_number : coregui::ReadNumber(m_text.View());
}

int CGridCell::GetNumber(double* number) const {
  if (!Has(CELLPROP_TEXT)) return 1;
  *number = GetNumber();
  return 0;
}

int CGridCell::GetNumber(float* number) const {
  if (!Has(CELLPROP_TEXT)) return 1;
  *number = static_cast<float>(GetNumber());
  return 0;
}

int CGridCell::GetNumber(long* number) const {
  if (!Has(CELLPROP_TEXT)) return 1;
  *number = Truncate<std::int32_t>(GetNumber());
  return 0;
}

int CGridCell::GetNumber(int* number) const {
  if (!Has(CELLPROP_TEXT)) return 1;
  *number = Truncate<std::int32_t>(GetNumber());
  return 0;
}

int CGridCell::SetNumberDecimals(int decimals) {
  m_look.decimals = decimals;
  Mark(CELLPROP_DECIMALS);
  return 0;
}

int CGridCell::GetNumberDecimals() const {
  return Has(CELLPROP_DECIMALS) ? m_look.decimals : 0;
}

int CGridCell::SetBool(int value) {
  m_text.Assign(value != 0 ? L"1" : L"0");
  Mark(VALUE);
  m_look.dataType = CELLDATA_BOOL;
  return 0;
}

int CGridCell::GetBool() const {
  if (Has(CELLPROP_TEXT) && GetNumber() > 0) return 1;
  // Kept: without the property the stored text still counts; only T and t begin a truth, so "Yes" is false.
  if (m_text.IsEmpty()) return 0;
  const wchar_t first = m_text.View().front();
  return first == L'T' || first == L't' ? 1 : 0;
}

int CGridCell::SetTime(short second, short minute, short hour, short day, short month, short year) {
  SYSTEMTIME time;
  time.wSecond = second;
  time.wMinute = minute;
  time.wHour = hour;
  time.wDay = day;
  time.wMonth = month;
  time.wYear = year;
  DATE date = 0.0;
  const bool real = SystemTimeToVariantTime(time, &date);
  m_text.Assign(real ? VarDateToStr(date).Str() : std::wstring());
  Mark(VALUE);
  m_look.dataType = CELLDATA_TIME;
  m_number = real ? date : 0.0;
  return 0;
}

int CGridCell::GetTime(int* second, int* minute, int* hour, int* day, int* month, int* year) const {
  // Kept: the label's bit, not the type, decides whether the number holds the date.
  double date = m_number;
  const bool valid = Has(CELLPROP_LABEL) || ReadDate(m_text.Characters(), date);
  BreakDownDate(valid, date, second, minute, hour, day, month, year);
  return 0;
}

int CGridCell::SetDataType(short type) {
  if (type == m_look.dataType && Has(CELLPROP_DATATYPE)) return 0;
  if (Has(CELLPROP_TEXT)) ConvertValue(type);
  m_look.dataType = type;
  Mark(CELLPROP_DATATYPE);
  return 0;
}

void CGridCell::ConvertValue(short type) {
  if (type == CELLDATA_NUMBER) {
    GetText();
    m_number = coregui::ReadNumber(m_text.View());
    m_text.Clear();
  } else if (type == CELLDATA_TIME) {
    ReadDate(GetText(), m_number);
  } else if (type == CELLDATA_CURRENCY && GetDataType() == CELLDATA_NUMBER) {
    coregui::WriteNumber(m_number, {true, 2, false}, m_text);
  } else if (type == CELLDATA_CURRENCY) {
    std::int64_t amount = 0;
    // Kept: integer division drops the fraction, so that 12.75 becomes 12.
    if (!coregui::ParseCurrency(GetText(), amount)) amount = 0;
    const std::int64_t whole = amount / CURRENCY_UNIT;
    m_number = static_cast<double>(whole);
  }
}

short CGridCell::GetDataType() const {
  return Has(CELLPROP_DATATYPE) ? m_look.dataType : CELLDATA_TEXT;
}

int CGridCell::ClearDisplayText() {
  const short type = GetDataType();
  m_number = 0.0;
  m_text.Clear();
  m_look.dataType = CELLDATA_TEXT;
  Unmark(CELLPROP_TEXT);
  return SetDataType(type);
}

int CGridCell::StringToNumber(const CString* text, double* number) {
  *number = coregui::ReadNumber(text->Str());
  return 0;
}

int CGridCell::StringToBool(const CString* text, int* value) {
  // Kept: not the inverse of GetBool; whatever does not begin like a falsehood is true, an empty text too.
  const wchar_t first = text->IsEmpty() ? L'\0' : (*text)[0];
  *value = first == L'0' || first == L'F' || first == L'f' ? 0 : 1;
  return 0;
}

int CGridCell::StringToTime(const CString* text, int* second, int* minute, int* hour, int* day, int* month,
                            int* year) {
  double date = 0.0;
  const bool valid = ReadDate(*text, date);
  if (valid) BreakDownDate(true, date, second, minute, hour, day, month, year);
  return valid ? 0 : 1;
}
