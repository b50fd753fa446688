#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>
#include <tuple>

#include "controls/CFloatEdit.h"
#include "controls/CIntEdit.h"
#include "controls/NumberInput.h"
#include "platform/Locale.h"
#include "platform/System.h"
#include "tests/support/ControlHost.h"

namespace {

using Content = CNumericEdit::Content;

TEST(NumberInput, ReadsWhatTheLocaleWrites) {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  constexpr const wchar_t* en = L"en_US";
  constexpr const wchar_t* de = L"de_DE";
  constexpr const wchar_t* fr = L"fr_CH";
  constexpr const wchar_t* hi = L"hi_IN";
  constexpr const wchar_t* ar = L"ar_EG";
  constexpr std::tuple<const wchar_t*, const wchar_t*, double> rows[] = {
      {en, L"1,234.5", 1234.5},    {en, L" -0.5e-3", -5e-4},    {en, L"max(1,2)", 2},
      {en, L"(1+2)*3^2", 27},      {en, L" .5 ", 0.5},          {en, L" 5. ", 5.0},
      {en, L"\u221212", -12},      {en, L"3\u00d74", 12},       {en, L"1,5", kNone},
      {en, L"12,34,567", kNone},   {en, L"1.2.3", kNone},       {en, L"  ", kNone},
      {en, L"-", kNone},           {en, L".", kNone},           {en, L"1/0", kNone},
      {en, L"1e999", kNone},       {en, L"nan", kNone},         {en, L"0x10", kNone},
      {de, L"1.234,5", 1234.5},    {de, L"2.500", 2500},        {de, L"2.5", 2.5},
      {de, L"2*12,5", 25},         {de, L"max(1,5;2)", 2},      {de, L"1,234.5", kNone},
      {fr, L"1\u202f234", 1234},   {fr, L"1'234.5", 1234.5},    {fr, L"1\u2019234", 1234},
      {fr, L"1'23", kNone},        {hi, L"\u0967.\u096b", 1.5}, {hi, L"12,34,567", 1234567},
      {hi, L"1,234,567", 1234567}, {hi, L"123,45,678", kNone},  {hi, L"1,23,4567", kNone},
      {hi, L"1,,234", kNone},      {hi, L",234", kNone},        {ar, L"\u0661\u066b5", 1.5}};
  for (const auto& [locale, text, number] : rows) {
    SCOPED_TRACE(CString(text).ToUtf8());
    ASSERT_TRUE(coregui::SetUserLocale(locale));
    double value = 0;
    EXPECT_EQ(coregui::ParseNumberInput(text, value), !std::isnan(number)) << value;
    EXPECT_DOUBLE_EQ(value, std::isnan(number) ? 0 : number);
  }
}

TEST(NumberFormat, OnlyOneDirectiveOfTheRightTypeIsUsed) {
  using coregui::NumberFormat;
  constexpr std::tuple<const wchar_t*, const wchar_t*, int> rows[] = {
      {L"%.2f", L"1234,57", 2},     {L"%f", L"1234,567890", 6}, {L"St. %+09.1f m", L"St. +001234,6 m", 1},
      {L"%.3f%%", L"1234,568%", 3}, {L"%s", L"1234,56789", 0},  {L"%d", L"1234,56789", 0},
      {L"%n", L"1234,56789", 0},    {L"%*f", L"1234,56789", 0}, {L"%.999f", L"1234,56789", 0},
      {L"%f %f", L"1234,56789", 0}, {L"%", L"1234,56789", 0},   {L"%.", L"1234,56789", 0},
      {L"none", L"1234,56789", 0},  {L"", L"1234,56789", 0},    {nullptr, L"1234,56789", 0}};
  ASSERT_TRUE(coregui::SetUserLocale(L"de_DE"));
  for (const auto& [pattern, text, decimals] : rows) {
    const NumberFormat format(NumberFormat::Kind::real, pattern);
    EXPECT_EQ(format.Text(1234.56789), text) << CString(pattern).ToUtf8();
    EXPECT_EQ(format.Decimals(), decimals) << CString(pattern).ToUtf8();
  }
  const NumberFormat whole(NumberFormat::Kind::whole, L"%05d pcs");
  EXPECT_EQ(whole.Text(-42), L"-0042 pcs");
  EXPECT_EQ(whole.WithoutSurroundings(L" 17 pcs "), L"17");
  EXPECT_EQ(NumberFormat(NumberFormat::Kind::whole, L"%.0f").Text(INT_MIN), L"-2147483648");
  EXPECT_EQ(NumberFormat(NumberFormat::Kind::real, nullptr).Text(100000), L"100000");
}

/// Both kinds of boxes; the control beside the real one is `whole`.
class NumericEdit : public coregui::test::EditTest<CFloatEdit> {
 protected:
  NumericEdit() { whole.Create(coregui::test::kChild, coregui::test::PlaceAt(2), &host, 9); }
  static void Type(CEdit& box, const wchar_t* text) {
    box.SetFocus();
    box.SetSel(0, -1);
    for (; *text != L'\0'; ++text) box.SendMessage(WM_CHAR, static_cast<WPARAM>(*text), 1);
  }
  static CString Text(const CWnd& window) { return window.GetWindowTextString(); }

  CIntEdit whole;
};

TEST_F(NumericEdit, AValueThatIsSetKeepsItsDigitsAndItsRange) {
  coregui::SetUserLocale(L"de_DE");
  EXPECT_EQ(Text(whole), L"0");
  edit.DestroyWindow();
  edit.SetParameters(-100, 100, L"%.2f");
  edit.SetValue(12.3456);
  EXPECT_EQ(edit.GetValue(), 12.3456) << "without a window";
  Start();
  EXPECT_EQ(Text(edit), L"12,35");
  EXPECT_EQ(edit.GetValue(), 12.3456);
  edit.SetValue(1e9);
  EXPECT_EQ(edit.GetValue(), 100);
  edit.SetValue(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(edit.GetValue(), 0);
  edit.SetParameters(50, 20, L"%.1f");  // exchanged; the value follows the range
  EXPECT_EQ(Text(edit), L"20,0");
  edit.SetParameters(std::nan(""), INFINITY, L"%g");
  edit.SetValue(-DBL_MAX);
  EXPECT_EQ(edit.GetValue(), -DBL_MAX);
  whole.SetParameters(INT_MIN, INT_MAX);
  whole.SetValue(INT_MIN);
  EXPECT_EQ(whole.GetValue(), INT_MIN);
  EXPECT_EQ(Text(whole), L"-2147483648");
}

TEST_F(NumericEdit, WhatIsTypedStaysAndIsMarkedUntilTheFocusLeaves) {
  edit.SetParameters(0, 100, L"%.1f");
  edit.SetValue(5);
  constexpr std::tuple<const wchar_t*, Content, double, const wchar_t*, const wchar_t*> rows[] = {
      {L"2*12.5", Content::number, 25, L"", L"25.0"},
      {L"1000", Content::outside, 100, L"More than 100: 100 is taken", L"100.0"},
      {L"-0.5", Content::outside, 0, L"Less than 0: 0 is taken", L"0.0"},
      {L"12.34", Content::number, 12.34, L"", L"12.3"},
      {L"2*", Content::notANumber, 12.34, L"Not a number: 12.3 stays", L"12.3"}};
  for (const auto& [typed, content, value, problem, after] : rows) {
    const int beeps = GetBeepCount(MB_ICONEXCLAMATION_SOUND);
    Type(edit, typed);
    EXPECT_EQ(Text(edit), typed);
    EXPECT_EQ(edit.GetContent(), content) << CString(typed).ToUtf8();
    EXPECT_EQ(edit.GetValue(), value);
    EXPECT_EQ(edit.GetProblem(), problem);
    edit.SendMessage(WM_KILLFOCUS);  // to another program: what is half typed stays
    EXPECT_EQ(Text(edit), typed);
    whole.SetFocus();
    EXPECT_EQ(Text(edit), after);
    EXPECT_EQ(edit.GetValue(), value);
    EXPECT_EQ(edit.GetProblem(), L"");
    EXPECT_EQ(GetBeepCount(MB_ICONEXCLAMATION_SOUND) - beeps, content == Content::number ? 0 : 1);
  }
}

TEST_F(NumericEdit, AFractionWhereAWholeNumberIsWantedIsRoundedAndTold) {
  whole.SetParameters(-10, 10);
  Type(whole, L"5/2");
  EXPECT_EQ(whole.GetContent(), Content::notWhole);
  EXPECT_EQ(whole.GetProblem(), L"Not a whole number: 3 is taken");
  EXPECT_EQ(whole.GetValue(), 3);
  Type(whole, L"99999999999");
  EXPECT_EQ(whole.GetValue(), 10);
  EXPECT_EQ(whole.GetContent(), Content::outside);
  whole.Commit();
  EXPECT_EQ(Text(whole), L"10");
  EXPECT_TRUE(whole.Undo());
  EXPECT_EQ(Text(whole), L"99999999999");
}

TEST_F(NumericEdit, KeysAndTheWheelStepWithinTheRange) {
  edit.SetParameters(0, 2, L"%.2f m");
  edit.SetFocus();
  EXPECT_EQ(edit.GetStep(), 0.1);
  for (int i = 0; i < 3; ++i) edit.SendMessage(WM_KEYDOWN, VK_UP);
  EXPECT_EQ(edit.GetValue(), 0.3);
  edit.SendMessage(WM_KEYDOWN, VK_NEXT);
  edit.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 2 * WHEEL_DELTA));
  EXPECT_EQ(edit.GetValue(), 0.2);
  edit.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-WHEEL_DELTA)));
  EXPECT_EQ(edit.GetValue(), 0);
  Type(edit, L"1+0.5");
  edit.SendMessage(WM_KEYDOWN, VK_DOWN);
  EXPECT_EQ(Text(edit), L"1.40 m");
  whole.SetFocus();
  edit.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA));
  EXPECT_EQ(Text(edit), L"1.40 m") << "without the focus";
  whole.SetParameters(INT_MIN, INT_MAX);
  whole.SetValue(INT_MAX);
  whole.SendMessage(WM_KEYDOWN, VK_PRIOR);
  whole.SetReadOnly();
  whole.SendMessage(WM_KEYDOWN, VK_DOWN);
  EXPECT_EQ(whole.GetValue(), INT_MAX);
}

TEST_F(NumericEdit, TheStepFollowsTheRangeUnlessItIsSet) {
  constexpr std::tuple<double, double, const wchar_t*, double> rows[] = {
      {-DBL_MAX, DBL_MAX, L"%.3f", 1}, {0, 10, L"%.3f", 1},      {0, 9, L"%.3f", 0.1},
      {0, 0.5, L"%.3f", 0.01},         {0, 0.05, L"%.2f", 0.01}, {3, 3, L"%.2f", 1}};
  for (const auto& [least, most, format, step] : rows) {
    edit.SetParameters(least, most, format);
    EXPECT_DOUBLE_EQ(edit.GetStep(), step) << most;
  }
  edit.SetStep(0.25);
  EXPECT_EQ(edit.GetStep(), 0.25);
}

TEST_F(NumericEdit, TheParentMayDestroyItWhenItTells) {
  for (const UINT key : {VK_UP, static_cast<UINT>('7')}) {
    host.destroys = false;
    Start();
    host.destroys = true;
    edit.SendMessage(key == VK_UP ? WM_KEYDOWN : WM_CHAR, key, 1);
    EXPECT_FALSE(edit.HasWindow());
  }
}

}  // namespace
