#include "dialogs/MessageFunctions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <functional>

#include "platform/CWnd.h"
#include "platform/Profile.h"
#include "platform/System.h"
#include "tests/support/ShownWindow.h"

namespace {

using namespace coregui::test;
using testing::ElementsAre;

constexpr CWnd* kDesktop = nullptr;

/// Answers in the queue of the profile.
class Queue {
 public:
  explicit Queue(int answers) { Write(answers); }
  void Write(int answers) const {
    coregui::Profile::Get().WriteInt(L"UnitTesting", L"PopupChoiceId", answers);
  }
  int Read() const { return coregui::Profile::Get().GetInt(L"UnitTesting", L"PopupChoiceId", -1); }
};

TEST(MessageFunctions, CaptionsIconsButtonsAndAnswers) {
  struct Row {
    const char* caption;
    const char* icon;
    std::vector<std::string> buttons;
    const char* press;
    std::function<int()> show;
    int answer;
  };
  const HWND noWindow = nullptr;
  const std::vector<std::string> yesNo{"Yes", "No"};
  const std::vector<std::string> ok{"OK"};
  const wchar_t* text = L"100%s <b>%n</b>";
  const Row rows[] = {
      {"Confirmation", "question", yesNo, "No", [&] { return ConfirmMessage(text, noWindow); }, IDNO},
      {"Confirmation", "stop", yesNo, "Yes", [&] { return ConfirmMessage(text, kDesktop, true); }, IDYES},
      {"C", "warning", yesNo, "No",
       [&] { return CustomMessage(text, L"C", MB_YESNO | MB_ICONWARNING, noWindow); }, IDNO},
      {"Error", "stop", ok, "OK", [&] { return ErrorMessage(text, kDesktop), 0; }, 0},
      {"Warning", "warning", ok, "OK", [&] { return WarningMessage(text, noWindow), 0; }, 0},
      {"Information", "information", ok, "OK", [&] { return InfoMessage(text, kDesktop), 0; }, 0}};
  for (const Row& row : rows) {
    const NextWindow next([&](ShownWindow& box) {
      EXPECT_EQ(box.Title(), row.caption);
      EXPECT_EQ(box.Text(), "100%s <b>%n</b>");
      EXPECT_EQ(box.Icon(), row.icon);
      EXPECT_EQ(box.Buttons(), row.buttons);
      box.Click(row.press);
    });
    EXPECT_EQ(row.show(), row.answer);
  }
}

TEST(MessageFunctions, TheBoxStandsInFrontOfItsOwner) {
  CWnd owner;
  ASSERT_TRUE(
      owner.Create(L"", L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 300, 200), nullptr, 0));
  for (const bool byHandle : {false, true}) {
    const NextWindow next([&](ShownWindow& box) {
      EXPECT_EQ(box.Owner(), &owner);
      box.Key(VK_ESCAPE);
    });
    byHandle ? InfoMessage(L"text", owner.GetSafeHwnd()) : InfoMessage(L"text", &owner);
  }
}

TEST(MessageFunctions, ScriptedAnswersAreTakenByteByByteAndAZeroShowsTheBox) {
  const Queue queue(0x0706);
  {
    const NoWindow none;
    EXPECT_EQ(ConfirmMessage(L"a"), IDYES);
    EXPECT_EQ(queue.Read(), 0x07);
    EXPECT_EQ(CustomMessage(L"b", L"c", MB_OK), IDNO);
    EXPECT_EQ(queue.Read(), 0);
  }
  {
    const NextWindow next([](ShownWindow& box) { box.Click("Yes"); });
    EXPECT_EQ(ConfirmMessage(L"c"), IDYES);
    EXPECT_EQ(queue.Read(), 0);
  }
  queue.Write(static_cast<int>(0x80010200U));
  {
    const NextWindow next([](ShownWindow& box) { box.Click("OK"); });
    ErrorMessage(L"shown");
  }
  const NoWindow none;
  WarningMessage(L"not shown");
  InfoMessage(L"not shown");
  EXPECT_EQ(CustomMessage(L"", L"", MB_OK), 0x80);
  EXPECT_EQ(queue.Read(), 0);
}

TEST(MessageFunctions, TheCheckBoxStartsUncheckedWhateverIsPassedInIsKept) {
  const Queue queue(IDYES);  // scripted answers are not for these boxes
  UINT checked = 1;
  {
    const NextWindow next([](ShownWindow& box) {
      EXPECT_EQ(box.CheckBox(), "Do not ask again");
      box.Click("Cancel");
    });
    const int answer =
        CustomMessageAndCheck(L"a", L"b", MB_OKCANCEL, L"&Do not ask again", checked, HWND{nullptr});
    EXPECT_EQ(answer, IDCANCEL);
  }
  EXPECT_EQ(checked, 0U);
  const _MsgBoxButtons buttons[] = {{5, IDYES}, {6, IDNO}};
  const NextWindow next([](ShownWindow& box) {
    EXPECT_EQ(box.CheckBox(), "Always");
    box.Click("Always");
    box.Click("No");
  });
  EXPECT_EQ(CustomButtonsMessageAndCheck(L"a", L"b", MB_OK, L"Always", checked, 2, buttons), 6);
  EXPECT_EQ(checked, 1U);
  EXPECT_EQ(queue.Read(), IDYES);
}

TEST(MessageFunctions, OwnButtonsShowRegisteredTextsAndAskAPerson) {
  const Queue queue(IDYES);
  coregui::SetButtonText(900, L"&Overwrite");
  coregui::SetButtonText(IDNO, L"Leave it");
  const _MsgBoxButtons buttons[] = {{11, 900}, {12, IDNO}, {13, IDRETRY}, {14, 4000000000U}};
  {
    const NextWindow next([](ShownWindow& box) {
      EXPECT_THAT(box.Buttons(), ElementsAre("Overwrite", "Leave it", "Retry", "4000000000"));
      box.Click("4000000000");
    });
    EXPECT_EQ(CustomButtonsMessage(L"a", L"b", MB_OK, 4, buttons), 14);
  }
  coregui::SetButtonText(900, nullptr);
  coregui::SetButtonText(IDNO, nullptr);
  for (const int count : {0, -3}) {
    const NextWindow next([](ShownWindow& box) { box.Click("No"); });
    EXPECT_EQ(CustomButtonsMessage(L"a", L"b", MB_YESNO, count, buttons), IDNO);
  }
  const NextWindow next([](ShownWindow& box) { box.Click("OK"); });
  EXPECT_EQ(CustomButtonsMessage(L"a", L"b", MB_OK, 2, nullptr), IDOK);
  EXPECT_EQ(queue.Read(), IDYES);
}

TEST(MessageFunctionsDeathTest, MoreThanFourButtonsStopADebugBuildAndLoseTheFifthInOthers) {
  const _MsgBoxButtons buttons[] = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}};
#ifdef NDEBUG
  const NextWindow next([](ShownWindow& box) {
    EXPECT_THAT(box.Buttons(), ElementsAre("OK", "Cancel", "Abort", "Retry"));
    box.Click("Retry");
  });
  EXPECT_EQ(CustomButtonsMessage(L"a", L"b", MB_OK, 5, buttons), 4);
#else
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(CustomButtonsMessage(L"a", L"b", MB_OK, 5, buttons), "room for four buttons");
#endif
}

TEST(MessageFunctions, OnlyWithoutACaptionTheLastErrorCanBeAnsweredByScript) {
  SetLastError(EACCES);
  EXPECT_EQ(GetLastErrorMessage(nullptr), CString(L" failed with error 13: ") + GetErrorText(EACCES));
  EXPECT_GT(GetErrorText(EACCES).GetLength(), 0);
  EXPECT_GE(GetLastErrorMessage(L"Create%sFile").Find(L"Create%sFile failed with"), 0);
  const Queue queue(1);
  const auto expected = (CString(L"Saving failed with error 28: ") + GetErrorText(ENOSPC)).ToUtf8();
  {
    const NextWindow next([&](ShownWindow& box) {
      EXPECT_EQ(box.Title(), "Survey");
      EXPECT_EQ(box.Icon(), "stop");
      EXPECT_EQ(box.Text(), expected);
      box.Click("OK");
    });
    SetLastError(ENOSPC);
    ShowLastErrorMessage(kDesktop, L"Saving", L"Survey");
  }
  EXPECT_EQ(queue.Read(), 1);
  {
    const NoWindow none;
    ShowLastErrorMessage(kDesktop, L"Saving");
  }
  EXPECT_EQ(queue.Read(), 0);
  const NextWindow next([&](ShownWindow& box) {
    EXPECT_EQ(box.Title(), "Error");
    EXPECT_EQ(box.Text(), expected);
    box.Click("OK");
  });
  SetLastError(ENOSPC);
  ShowLastErrorMessage(HWND{nullptr}, L"Saving", nullptr);
}

}  // namespace
