#include <gtest/gtest.h>

#include <climits>
#include <limits>

#include "dialogs/CSingleInputDlg.h"
#include "platform/CWinApp.h"
#include "platform/Locale.h"
#include "platform/System.h"
#include "tests/support/ShownWindow.h"

namespace {

using namespace coregui::test;

CWnd& Edit(const ShownWindow& window) {
  return *window.Window()->GetDlgItem(CSingleInputDlg::kEditId);
}

TEST(SingleInput, ATextIsAskedForAndCancellingLeavesIt) {
  for (const bool taken : {true, false}) {
    CString value = L"A & B";
    const NextWindow next([&](ShownWindow& window) {
      EXPECT_EQ(window.Title(), "Name");
      EXPECT_EQ(window.Window()->GetDlgItem(CSingleInputDlg::kPromptId)->GetWindowTextString(),
                L"&New name 100%s");
      EXPECT_EQ(window.Focus(), "New name 100%s");
      EXPECT_EQ(Edit(window).GetWindowTextString(), L"A & B");
      window.Type("J\xC3\xBCrg 12");  // in place of what is selected at first
      window.Key(taken ? VK_RETURN : VK_ESCAPE);
    });
    EXPECT_EQ(coreGetStringValue(nullptr, L"Name", L"&New name 100%s", value), taken);
    EXPECT_EQ(value, taken ? L"J\u00fcrg 12" : L"A & B");
  }
}

TEST(SingleInput, ANumberIsTypedByTheLocaleOrKeepsTheDigitsThatAreNotShown) {
  struct Row {
    const wchar_t* locale;
    const wchar_t* format;
    const char* shown;
    const char* typed;
    double value;
  };
  constexpr Row rows[] = {{L"de_DE", L"%.2f", "3,14", "2*12,5", 25},
                          {L"fr_CH", L"%.3f", "3,142", "3'000.125", 2000},
                          {L"de_DE", L"%.0f", "3", "", 3.14159}};
  for (const Row& row : rows) {
    ASSERT_TRUE(coregui::SetUserLocale(row.locale));
    const NextWindow next([&](ShownWindow& window) {
      EXPECT_EQ(Edit(window).GetWindowTextString().ToUtf8(), row.shown);
      window.Type(row.typed);
      window.Click("OK");
    });
    double value = 3.14159;
    EXPECT_TRUE(coreGetDoubleValue(nullptr, L"Scale", L"Factor", value, 0, 2000, row.format));
    EXPECT_EQ(value, row.value);
  }
}

TEST(SingleInput, AValueOutsideTheRangeIsToldAndTheNearestIsTaken) {
  SetDarkTheme(true);
  const NextWindow next([&](ShownWindow& window) {
    EXPECT_EQ(Edit(window).GetWindowTextString(), L"10");  // what is handed in is kept in the range as well
    window.Type("250");
    EXPECT_EQ(window.Focus(), "Copies (More than 10: 10 is taken)");
    EXPECT_EQ(window.Window()->GetDlgItem(0xFFFF)->GetWindowTextString(), L"More than 10: 10 is taken");
    window.Key(VK_UP);
    EXPECT_EQ(window.Focus(), "Copies");
    window.Type("11");  // in place of the number that the step selected
    EXPECT_EQ(Edit(window).GetWindowTextString(), L"11");
    SetDarkTheme(false);
    CWinApp::PumpPending();
    EXPECT_EQ(window.Focus(), "Copies (More than 10: 10 is taken)");
    window.Key(VK_RETURN);
  });
  int value = 99;
  EXPECT_TRUE(coreGetIntValue(nullptr, L"Print", L"Copies", value, 1, 10));
  EXPECT_EQ(value, 10);
}

TEST(SingleInput, TheLowestWholeNumberIsInTheRangeOnlyWhenAskedForIsKept) {
  EXPECT_EQ(CSingleInputDlg(CSingleInputDlg::kWhole).minInt, -INT_MAX);
  EXPECT_EQ(CSingleInputDlg(CSingleInputDlg::kReal).maxDouble, std::numeric_limits<double>::max());
  int value = 5;
  const NextWindow next([&](ShownWindow& window) {
    window.Type("-2147483648");
    EXPECT_EQ(window.Focus(), "b");
    window.Key(VK_RETURN);
  });
  EXPECT_TRUE(coreGetIntValue(nullptr, L"a", L"b", value, INT_MIN, INT_MAX));
  EXPECT_EQ(value, INT_MIN);
}

TEST(SingleInput, ALongPromptIsWrappedAboveTheField) {
  CString value;
  CString words = L"The name of";
  CString path = L"/projects";
  for (int i = 0; i < 12; ++i) {
    words += L" the new alignment";
    path += L"/northern-bypass";
  }
  for (const CString& prompt : {words, path}) {
    const NextWindow next([&](ShownWindow& window) {
      CRect shown;
      CRect edit;
      window.Window()->GetDlgItem(CSingleInputDlg::kPromptId)->GetWindowRect(&shown);
      Edit(window).GetWindowRect(&edit);
      EXPECT_GT(shown.Height(), 2 * 14);
      EXPECT_LE(shown.bottom, edit.top);
      window.Key(VK_ESCAPE);
    });
    EXPECT_FALSE(coreGetStringValue(nullptr, L"Alignment", prompt, value));
  }
}

}  // namespace
