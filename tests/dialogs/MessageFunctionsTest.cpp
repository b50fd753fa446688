#include "dialogs/MessageFunctions.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>

#include "platform/Profile.h"
#include "platform/System.h"
#include "tests/support/ControlHost.h"
#include "tests/support/ShownWindow.h"

namespace {

using namespace coregui::test;

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
    const char* box;
    const char* press;
    std::function<int()> show;
    int answer;
  };
  const HWND none = nullptr;
  const wchar_t* text = L"100%s <b>%n</b>";
  const Row rows[] = {
      {"Confirmation (question): # [Yes, No]", "No", [&] { return ConfirmMessage(text, none); }, IDNO},
      {"Confirmation (stop): # [Yes, No]", "Yes", [&] { return ConfirmMessage(text, kDesktop, true); },
       IDYES},
      {"C (warning): # [Yes, No]", "No",
       [&] { return CustomMessage(text, L"C", MB_YESNO | MB_ICONWARNING, none); }, IDNO},
      {"Error (stop): #", "OK", [&] { return ErrorMessage(text, kDesktop), 0; }, 0},
      {"Warning (warning): #", "OK", [&] { return WarningMessage(text, none), 0; }, 0},
      {"Information (information): #", "OK", [&] { return InfoMessage(text, kDesktop), 0; }, 0}};
  for (const Row& row : rows) {
    std::string expected = row.box;
    expected.replace(expected.find('#'), 1, "100%s <b>%n</b>");
    EXPECT_EQ(Told([&] { EXPECT_EQ(row.show(), row.answer); }, row.press), expected);
  }
}

TEST(MessageFunctions, TheBoxStandsInFrontOfItsOwner) {
  ControlHost owner;
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
  Told([] { EXPECT_EQ(ConfirmMessage(L"c"), IDYES); }, "Yes");
  EXPECT_EQ(queue.Read(), 0);
  queue.Write(static_cast<int>(0x80010200U));
  Told([] { ErrorMessage(L"shown"); });
  const NoWindow none;
  WarningMessage(L"not shown");
  InfoMessage(L"not shown");
  EXPECT_EQ(CustomMessage(L"", L"", MB_OK), 0x80);
  EXPECT_EQ(queue.Read(), 0);
}

TEST(MessageFunctions, TheCheckBoxStartsUncheckedWhateverIsPassedInIsKept) {
  const Queue queue(IDYES);  // scripted answers are not for these boxes
  UINT checked = 1;
  const auto ask = [&checked] {
    EXPECT_EQ(CustomMessageAndCheck(L"a", L"b", MB_OKCANCEL, L"&Do not ask again", checked, HWND{nullptr}),
              IDCANCEL);
  };
  EXPECT_EQ(Told(ask, "Cancel"), "b (none): a [Do not ask again, OK, Cancel]");
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
  EXPECT_EQ(Told([&] { EXPECT_EQ(CustomButtonsMessage(L"a", L"b", MB_OK, 4, buttons), 14); }, "4000000000"),
            "b (none): a [Overwrite, Leave it, Retry, 4000000000]");
  coregui::SetButtonText(900, nullptr);
  coregui::SetButtonText(IDNO, nullptr);
  for (const int count : {0, -3}) {
    Told([&] { EXPECT_EQ(CustomButtonsMessage(L"a", L"b", MB_YESNO, count, buttons), IDNO); }, "No");
  }
  Told([] { EXPECT_EQ(CustomButtonsMessage(L"a", L"b", MB_OK, 2, nullptr), IDOK); });
  EXPECT_EQ(queue.Read(), IDYES);
}

TEST(MessageFunctionsDeathTest, MoreThanFourButtonsStopADebugBuildAndLoseTheFifthInOthers) {
  const _MsgBoxButtons buttons[] = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}};
#ifdef NDEBUG
  EXPECT_EQ(Told([&] { EXPECT_EQ(CustomButtonsMessage(L"a", L"b", MB_OK, 5, buttons), 4); }, "Retry"),
            "b (none): a [OK, Cancel, Abort, Retry]");
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
  const auto expected = (CString(L" (stop): Saving failed with error 28: ") + GetErrorText(ENOSPC)).ToUtf8();
  const auto told = [](const wchar_t* caption) {
    return Told([caption] {
      SetLastError(ENOSPC);
      ShowLastErrorMessage(kDesktop, L"Saving", caption);
    });
  };
  EXPECT_EQ(told(L"Survey"), "Survey" + expected);
  EXPECT_EQ(queue.Read(), 1);
  {
    const NoWindow none;
    ShowLastErrorMessage(kDesktop, L"Saving");
  }
  EXPECT_EQ(queue.Read(), 0);
  EXPECT_EQ(told(nullptr), "Error" + expected);
}

}  // namespace
