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
void SetQueue(int answers) {
  coregui::Profile::Get().WriteInt(L"UnitTesting", L"PopupChoiceId", answers);
}
int Queue() {
  return coregui::Profile::Get().GetInt(L"UnitTesting", L"PopupChoiceId", -1);
}

TEST(MessageFunctions, CaptionsIconsButtonsAndAnswers) {
  struct Row {
    const wchar_t* box;
    const char* press;
    std::function<int()> show;
    int answer;
  };
  const HWND none = nullptr;
  const wchar_t* text = L"100%s <b>%n</b>";
  const Row rows[] = {
      {L"Confirmation (question): # [Yes, No]", "No", [&] { return ConfirmMessage(text, none); }, IDNO},
      {L"Confirmation (stop): # [Yes, No]", "Yes", [&] { return ConfirmMessage(text, kDesktop, true); },
       IDYES},
      {L"C (warning): #", "OK", [&] { return CustomMessage(text, L"C", MB_ICONWARNING, none); }, IDOK},
      {L"Error (stop): #", "OK", [&] { return ErrorMessage(text, kDesktop), 0; }, 0},
      {L"Warning (warning): #", "OK", [&] { return WarningMessage(text, none), 0; }, 0},
      {L"Information (information): #", "OK", [&] { return InfoMessage(text, kDesktop), 0; }, 0}};
  for (const Row& row : rows) {
    CString expected(row.box);
    expected.Replace(L"#", text);
    EXPECT_EQ(Told([&] { EXPECT_EQ(row.show(), row.answer); }, row.press), expected.ToUtf8());
  }
}

TEST(MessageFunctions, TheBoxStandsInFrontOfItsOwner) {
  ControlHost owner;
  const NextWindow next([&](ShownWindow& box) {
    EXPECT_EQ(box.Owner(), &owner);
    box.Key(VK_ESCAPE);
  });
  InfoMessage(L"text", &owner);
}

TEST(MessageFunctions, ScriptedAnswersAreTakenByteByByteAndAZeroShowsTheBox) {
  SetQueue(static_cast<int>(0x80010700U));
  Told([] { ErrorMessage(L"shown"); });
  EXPECT_EQ(Queue(), 0x800107);
  const NoWindow none;
  EXPECT_EQ(ConfirmMessage(L"a"), IDNO);
  WarningMessage(L"not shown");
  EXPECT_EQ(CustomMessage(L"b", L"c", MB_OK), 0x80);
  EXPECT_EQ(Queue(), 0);
}

TEST(MessageFunctions, TheCheckBoxStartsUncheckedWhateverIsPassedInIsKept) {
  SetQueue(IDYES);  // scripted answers are not for these boxes
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
  EXPECT_EQ(Queue(), IDYES);
}

TEST(MessageFunctions, OwnButtonsShowRegisteredTextsAndAskAPerson) {
  SetQueue(IDYES);
  coregui::SetButtonText(900, L"&Overwrite");
  coregui::SetButtonText(IDNO, L"Leave it");
  const _MsgBoxButtons buttons[] = {{11, 900}, {12, IDNO}, {13, IDRETRY}, {14, 4000000000U}};
  EXPECT_EQ(Told([&] { EXPECT_EQ(CustomButtonsMessage(L"a", L"b", MB_OK, 4, buttons), 14); }, "4000000000"),
            "b (none): a [Overwrite, Leave it, Retry, 4000000000]");
  coregui::SetButtonText(900, nullptr);
  coregui::SetButtonText(IDNO, nullptr);
  Told([&] { EXPECT_EQ(CustomButtonsMessage(L"a", L"b", MB_YESNO, -3, buttons), IDNO); }, "No");
  Told([] { EXPECT_EQ(CustomButtonsMessage(L"a", L"b", MB_OK, 2, nullptr), IDOK); });
  EXPECT_EQ(Queue(), IDYES);
}

TEST(MessageFunctions, OnlyWithoutACaptionTheLastErrorCanBeAnsweredByScript) {
  SetLastError(EACCES);
  EXPECT_EQ(GetLastErrorMessage(nullptr), CString(L" failed with error 13: ") + GetErrorText(EACCES));
  EXPECT_GE(GetLastErrorMessage(L"Create%sFile").Find(L"Create%sFile failed with"), 0);
  SetQueue(1);
  const auto expected = (CString(L" (stop): Saving failed with error 28: ") + GetErrorText(ENOSPC)).ToUtf8();
  const auto told = [](const wchar_t* caption) {
    return Told([caption] {
      SetLastError(ENOSPC);
      ShowLastErrorMessage(kDesktop, L"Saving", caption);
    });
  };
  EXPECT_EQ(told(L"Survey"), "Survey" + expected);
  EXPECT_EQ(Queue(), 1);
  ShowLastErrorMessage(kDesktop, L"Saving");
  EXPECT_EQ(Queue(), 0);
  EXPECT_EQ(told(nullptr), "Error" + expected);
}

}  // namespace
