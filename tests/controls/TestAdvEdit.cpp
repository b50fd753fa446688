#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "controls/CAdvEdit.h"
#include "controls/CSmartEdit.h"
#include "controls/Chainage.h"
#include "platform/CButton.h"
#include "platform/CDialog.h"
#include "platform/Locale.h"
#include "platform/System.h"
#include "platform/WindowState.h"
#include "tests/support/ControlHost.h"
#include "tests/support/Hand.h"

namespace {

using namespace coregui::test;

using AdvEdit = EditTest<CAdvEdit>;

TEST_F(AdvEdit, SelectsAllAndPutsTheTextBackOnce) {
  edit.SetWindowText(L"old");
  other.SetFocus();
  edit.SetFocus();
  TypeKeys(edit, L"new");
  PressKey(edit, VK_ESCAPE);
  EXPECT_EQ(edit.GetWindowTextString(), L"old");
  EXPECT_FALSE(edit.Revert());
  edit.Undo();
  EXPECT_EQ(edit.GetWindowTextString(), L"new");
  edit.SetSelectOnFocus(false);
  other.SetFocus();
  edit.SetSel(1, 1);
  edit.SetFocus();
  TypeKeys(edit, L"-");
  EXPECT_EQ(edit.GetWindowTextString(), L"n-ew");
}

TEST_F(AdvEdit, ItsPromptIsShownWhileItIsEmptyAndSpokenWhereItHasNoName) {
  other.SetFocus();
  const int bare = InkPixels(edit);
  edit.SetPrompt(L"Road");
  EXPECT_GT(InkPixels(edit), bare);
  edit.SetPrompt(L"Rail");
  EXPECT_EQ(edit.State().look.accessibleName, L"Rail");
  edit.SetAccessibleName(L"Name");
  edit.SetPrompt(L"Road");
  EXPECT_EQ(edit.State().look.accessibleName, L"Name");
}

/// A dialog with an edit and buttons, which notes how it ends.
class EditDialog : public CDialog {
 public:
  CAdvEdit edit;
  CButton ok;
  CString log;
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_COMMAND && HIWORD(wParam) == AEN_RETURN) log += L"return ";
    return CDialog::WindowProc(message, wParam, lParam);
  }

 protected:
  BOOL OnInitDialog() override {
    edit.Create(kChild, PlaceAt(0), this, 7);
    ok.Create(L"OK", kChild | BS_DEFPUSHBUTTON, PlaceAt(1), this, IDOK);
    return TRUE;
  }
  void OnOK() override { log += L"ok "; }
  void OnCancel() override { log += L"cancel "; }
};

TEST(AdvEditInADialog, EnterNotifiesBeforeTheDefaultButtonAndEscRevertsBeforeItCancels) {
  EditDialog dialog;
  ASSERT_TRUE(dialog.CreateModeless());
  dialog.edit.SetFocus();
  PressKey(dialog.edit, VK_RETURN);
  EXPECT_EQ(dialog.log, L"return ok ");
  dialog.edit.SetKeepReturn(true);
  PressKey(dialog.edit, VK_RETURN);
  EXPECT_EQ(dialog.log, L"return ok return ");
  TypeKeys(dialog.edit, L"x");
  PressKey(dialog.edit, VK_ESCAPE);
  EXPECT_EQ(dialog.log, L"return ok return ");
  PressKey(dialog.edit, VK_ESCAPE);
  EXPECT_EQ(dialog.log, L"return ok return cancel ");
}

TEST(Chainage, IsReadAndWrittenExactly) {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  constexpr std::pair<const wchar_t*, double> rows[] = {
      {L"1+234.500", 1234.5}, {L" 0+000 ", 0},         {L"-0+012.25", -12.25}, {L"+2+001.", 2001},
      {L"1234.5", 1234.5},    {L"12+345,5", kNone},    {L"1+23", kNone},       {L"1+2345", kNone},
      {L"1+-23", kNone},      {L"+", kNone},           {L"1+234.5.6", kNone},  {L"", kNone},
      {L"1+2+345", kNone},    {L"1234567+000", kNone}, {L"a+000", kNone}};
  for (const auto& [text, metres] : rows) {
    double read = 77;
    EXPECT_EQ(coregui::ParseChainage(text, read), metres == metres) << CString(text).ToUtf8();
    EXPECT_EQ(read, metres == metres ? metres : 77) << CString(text).ToUtf8();
  }
  EXPECT_EQ(coregui::FormatChainage(1999.9996, 3), L"2+000.000");
  EXPECT_EQ(coregui::FormatChainage(-0.0004, 3), L"0+000.000");
  EXPECT_EQ(coregui::FormatChainage(-12.25, 1), L"-0+012.3");
  EXPECT_EQ(coregui::FormatChainage(7, 0), L"0+007");
  EXPECT_EQ(coregui::FormatChainage(1e9, 0), L"");
  EXPECT_EQ(coregui::FormatChainage(kNone, 0), L"");
  coregui::SetUserLocale(L"de_DE");
  EXPECT_EQ(coregui::FormatChainage(98765.432, 3), L"98+765,432");
  for (const wchar_t* text : {L"98+765,432", L"98+765.432"}) {
    double metres = 0;
    EXPECT_TRUE(coregui::ParseChainage(text, metres));
    EXPECT_EQ(metres, 98765.432);
  }
}

struct SmartEdit : EditTest<CSmartEdit> {
  void TypeAndLeave(const wchar_t* text) {
    edit.SetFocus();
    edit.SetSel(0, -1);
    PressKey(edit, VK_BACK);
    TypeKeys(edit, text);
    other.SetFocus();
  }
};

TEST_F(SmartEdit, MarksOnLeavingAndUnmarksOnceRight) {
  edit.SetKind(CSmartEdit::Kind::integer);
  edit.SetRange(6, 1);
  edit.SetFocus();
  TypeKeys(edit, L"2.5");
  EXPECT_FALSE(edit.IsMarked()) << "while it is typed";
  const std::pair<const wchar_t*, const wchar_t*> faults[] = {{L"2.5", L"This is not a whole number."},
                                                              {L"0", L"The smallest value is 1."},
                                                              {L"7", L"The largest value is 6."}};
  double value = 9;
  for (const auto& [text, fault] : faults) {
    TypeAndLeave(text);
    EXPECT_EQ(AccessibleDescription(edit), fault);
    EXPECT_EQ(edit.GetWindowTextString(), text);
    EXPECT_FALSE(edit.GetNumber(value));
  }
  edit.SetFocus();
  PressKey(edit, VK_BACK);
  TypeKeys(edit, L"6");
  EXPECT_FALSE(edit.IsMarked()) << "at once, before leaving";
  EXPECT_EQ(AccessibleDescription(edit), L"");
  EXPECT_TRUE(edit.GetNumber(value));
  EXPECT_EQ(value, 6);
}

TEST_F(SmartEdit, WritesRightContentInItsForm) {
  edit.SetKind(CSmartEdit::Kind::chainage);
  TypeAndLeave(L"1234.5");
  EXPECT_EQ(edit.GetWindowTextString(), L"1+234.500");
  edit.Undo();
  EXPECT_EQ(edit.GetWindowTextString(), L"1234.5");
  coregui::SetUserLocale(L"de_DE");
  edit.SetKind(CSmartEdit::Kind::real);
  TypeAndLeave(L"2*1,25");
  EXPECT_EQ(edit.GetWindowTextString(), L"2,5");
  edit.SetKind(CSmartEdit::Kind::text);
  TypeAndLeave(L"2*1,25");
  EXPECT_EQ(edit.GetWindowTextString(), L"2*1,25");
}

TEST_F(SmartEdit, EmptyIsAFaultOnlyWhereSomethingIsRequired) {
  edit.SetKind(CSmartEdit::Kind::real);
  EXPECT_TRUE(edit.Validate());
  edit.SetRequired(true);
  EXPECT_FALSE(edit.Validate());
  edit.SetKind(CSmartEdit::Kind::text);
  TypeAndLeave(L"  ");
  EXPECT_TRUE(edit.IsMarked());
  host.TakeLog();
  TypeAndLeave(L"x");
  EXPECT_FALSE(edit.IsMarked());
  EXPECT_GE(host.TakeLog().Find(L"7:502 "), 0);
}

}  // namespace
