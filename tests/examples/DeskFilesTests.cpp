#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <tuple>
#include <utility>

#include "DeskApp.h"
#include "DeskMemory.h"
#include "tests/examples/DeskTest.h"
#include "tests/support/LogWatch.h"
#include "tests/support/ShownWindow.h"

namespace {

namespace fs = std::filesystem;
using namespace coregui::test;

class DeskFiles : public DeskTest {
 protected:
  /// What a lock of our own holds.
  const std::string own = "tester," + CString::Formatted(L"%X", GetMachineSerial()).ToUtf8() + "\n";
};

TEST_F(DeskFiles, TheLockGoesWithTheSurveyThatIsOpen) {
  for (int i = 0; i < 2; ++i) {
    ASSERT_TRUE(Open("a.csv"));
    EXPECT_EQ(Read("a.lck"), own);
  }
  ASSERT_TRUE(Open("b.csv"));
  EXPECT_FALSE(Has("a.lck"));
  EXPECT_EQ(window.StateText(), L"locked for you");
  Write("empty.csv", "");
  for (const char* bad : {"missing.csv", "empty.csv"}) {
    Told([&] { EXPECT_FALSE(window.Open(Path(bad))); });
  }
  EXPECT_FALSE(Has("missing.lck") || Has("empty.lck"));
  EXPECT_TRUE(Has("b.lck"));
  window.SendMessage(WM_CLOSE);
  EXPECT_FALSE(Has("b.lck"));
}

TEST_F(DeskFiles, WhatSomebodyElseHoldsIsOpenedForLookingOnly) {
  Write("a.lck", "mary,1\n");
  EXPECT_EQ(Told([this] { ASSERT_TRUE(Open("a.csv")); }),
            "Error (stop): Data file " + At("a.csv") + "\nis marked as read-only.\nIn use by mary");
  EXPECT_EQ(window.StateText(), L"read-only: in use by mary");
  EXPECT_EQ(window.GetWindowTextString(), L"a.csv (3 rows, read-only) - Long-section desk");
  // It is ours once she has let it go and it is read again.
  fs::remove(At("a.lck"));
  ASSERT_TRUE(Open("a.csv"));
  EXPECT_EQ(window.StateText(), L"locked for you");
  // Somebody who took the lock away from us keeps it.
  Write("a.lck", "joe,2\n");
  EXPECT_TRUE(Open("b.csv"));
  EXPECT_EQ(Read("a.lck"), "joe,2\n");
}

TEST_F(DeskFiles, ALockThatCannotBeMadeOrTakenIsNoObstacle) {
  fs::create_symlink(At("nowhere/x"), At("a.lck"));  // cannot be created, even by root
  ExpectLog(L"... Unable to create lock file");
  ASSERT_TRUE(Open("a.csv"));
  EXPECT_EQ(window.StateText(), L"read-only: no lock can be made here");
  // A lock file read as a table is not its own lock, which closing it would delete.
  ASSERT_TRUE(Open("c.lck", own));
  ASSERT_TRUE(Open("b.csv"));
  EXPECT_EQ(Read("c.lck"), own);
  // Of a longer path than a lock can have, another one's would be taken.
  const std::string deep = std::string(150, 'd') + "/" + std::string(150, 'd');
  fs::create_directories(At(deep));
  ASSERT_TRUE(Open(deep + "/a.csv"));
  EXPECT_EQ(window.StateText(), L"read-only: no lock can be made here");
}

TEST_F(DeskFiles, EscAndTheCloseButtonStopTheReading) {
  // Delivered when the reading lets the windows live.
  window.PostMessage(WM_KEYDOWN, VK_ESCAPE);
  ASSERT_TRUE(Open("a.csv", Road(100000)));
  EXPECT_TRUE(window.Report().cutShort);
  EXPECT_LT(window.Grid().GetNumberRows(), 100000);
  // What was read has its section all the same.
  EXPECT_EQ(window.Data().rows.size(), static_cast<std::size_t>(window.Grid().GetNumberRows()));
  window.PostMessage(WM_CLOSE);
  EXPECT_FALSE(window.Open(Path("a.csv")));
  EXPECT_TRUE(window.HasWindow());
  CWinApp::PumpPending();
  EXPECT_FALSE(window.HasWindow());
  EXPECT_FALSE(Has("a.lck"));
}

TEST_F(DeskFiles, EscAndTheCloseButtonEndSortingAndSearching) {
  const NoWindow none;
  std::string road = "Chainage,Level,Remark\n";
  for (int i = 0; i < 60000; ++i) {
    road += std::to_string(i) + ",1.5," + std::to_string(i * 7919 % 60013) + "p\n";
  }
  ASSERT_TRUE(Open("a.csv", road));
  window.PostMessage(WM_KEYDOWN, VK_ESCAPE);
  window.Sort(2, true);
  EXPECT_EQ(Text(2, 0), L"0p");
  EXPECT_EQ(window.StatusText(), L"The sorting was stopped; the rows are as they were.");
  EXPECT_EQ(window.Data().rows.size(), 60000U);
  window.PostMessage(WM_KEYDOWN, VK_ESCAPE);
  window.Find(L"55555");
  EXPECT_EQ(window.Grid().GetCurrentRow(), 0);
  EXPECT_EQ(window.StatusText(), L"The search was stopped.");
  window.Sort(2, true);
  EXPECT_EQ(Text(2, 0), L"9p");
  window.Find(L"59999");
  EXPECT_EQ(Text(0, window.Grid().GetCurrentRow()), L"59,999");
  window.PostMessage(WM_CLOSE);
  window.Find(L"nowhere");
  EXPECT_TRUE(window.HasWindow());  // no one pulls the window away from under its own work
  CWinApp::PumpPending();
  EXPECT_FALSE(window.HasWindow());
}

TEST_F(DeskFiles, NamesMayHaveAnyLettersInAnyLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "C");
  EXPECT_TRUE(Open("L\xC3\xA4ngsschnitt \xE8\xB7\xAF & 100%.csv"));
  EXPECT_TRUE(Has("L\xC3\xA4ngsschnitt \xE8\xB7\xAF & 100%.lck"));
  EXPECT_EQ(window.GetWindowTextString(),
            L"L\u00E4ngsschnitt \u8DEF & 100%.csv (3 rows) - Long-section desk");
  // Bytes that are no UTF-8, as an old archive has them; \xE8\xB7 breaks off.
  Write("l\xE4nge \xE8\xB7.csv", kSurvey);
  const std::string path = At("l\xE4nge \xE8\xB7.csv");
  const std::vector<const char*> arguments = {"desk", path.c_str()};
  EXPECT_TRUE(window.Open(desk::ParseArguments(2, arguments.data(), L"").file));
  EXPECT_TRUE(Has("l\xE4nge \xE8\xB7.lck"));
  std::setlocale(LC_ALL, before.c_str());
}

TEST_F(DeskFiles, AnUnattendedDeskShowsNoBoxAndLeavesNothingBehind) {
  const NoWindow none;
  window.SetUnattended();
  Write("a.lck", "mary,1\n");
  EXPECT_TRUE(Open("a.csv"));
  EXPECT_EQ(window.StateText(), L"read-only: in use by mary");
  EXPECT_TRUE(Open("b.csv"));
  EXPECT_FALSE(Has("b.lck"));
  ExpectLog(L"The file does not exist.");
  EXPECT_FALSE(window.Open(Path("missing.csv")));
  window.Find(L"not there");
  window.SendMessage(WM_CLOSE);
  EXPECT_TRUE(desk::RecallSurveys().empty());
  EXPECT_FALSE(desk::RecallPlace().has_value());
}

TEST_F(DeskFiles, ACopyIsMadeUnlessSomebodyHoldsItsPlace) {
  ASSERT_TRUE(Open("a.csv"));
  {
    const NextWindow progress([](ShownWindow& shown) {
      const CWnd* description = shown.Window()->GetDlgItem(CFileCopyProgressDlg::kDescriptionId);
      EXPECT_GE(description->GetWindowTextString().Find(L"a.csv"), 0);
      shown.Window()->SendMessage(WM_TIMER, CFileCopyProgressDlg::kStartTimer);
      shown.Window()->SendMessage(WM_TIMER, CFileCopyProgressDlg::kCloseTimer);
    });
    EXPECT_TRUE(window.SaveCopy(Path("copy.csv")));
  }
  EXPECT_EQ(Read("copy.csv"), kSurvey);
  Write("copy.csv", "hers");
  Write("copy.lck", "mary,1\n");
  EXPECT_THAT(Told([this] { EXPECT_FALSE(window.SaveCopy(Path("copy.csv"))); }),
              testing::HasSubstr("in use by mary"));
  EXPECT_EQ(Read("copy.csv"), "hers");
}

TEST_F(DeskFiles, PrintsOnePageOrToScaleOnSeveral) {
  ASSERT_TRUE(Open("a.csv", Road(401)));
  const auto pages = [this](const char* name) {
    const std::string bytes = Read(name);
    const std::string page = "/Type /Page\n";
    int count = 0;
    for (auto at = bytes.find(page); at != std::string::npos; at = bytes.find(page, at + 1)) ++count;
    return count;
  };
  ASSERT_TRUE(window.PrintToPdf(Path("one.pdf")));
  EXPECT_EQ(pages("one.pdf"), 1);
  desk::PrintChoice choice;
  choice.toScale = true;
  // A3 shows some 370 mm of the road, which is 185 m at 1:500, and repeats 10 mm of it.
  EXPECT_EQ(window.Section().CountSheets(choice), 3);
  const CRect margins = window.Section().GetMapping().margins;
  ASSERT_TRUE(window.PrintToPdf(Path("scale.pdf"), choice));
  EXPECT_EQ(pages("scale.pdf"), 3);
  EXPECT_EQ(window.Section().GetMapping().margins, margins);
  choice.horizontal = 1.0;
  choice.vertical = 0.5;
  choice.paper = 0;
  EXPECT_EQ(window.Section().CountSheets(choice), 0);  // above ten thousand
  EXPECT_FALSE(window.PrintToPdf(Path("none.pdf"), choice));
  EXPECT_FALSE(Has("none.pdf"));
  EXPECT_FALSE(window.PrintToPdf(Path("no folder/a.pdf")));
}

TEST_F(DeskFiles, RemembersSurveysSharesAndPlace) {
  for (int i = 0; i < 11; ++i) desk::KeepSurvey(Path("s" + std::to_string(i) + ".csv"));
  Write("s5.csv", kSurvey);
  ASSERT_TRUE(window.Open(Path("s5.csv")));
  std::vector<std::wstring> surveys;
  for (const int i : {5, 10, 9, 8, 7, 6, 4, 3, 2}) surveys.push_back(Path("s" + std::to_string(i) + ".csv"));
  EXPECT_EQ(desk::RecallSurveys(), surveys);
  desk::ForgetSurvey(surveys[1]);
  surveys.erase(surveys.begin() + 1);
  EXPECT_EQ(desk::RecallSurveys(), surveys);

  desk::DeskLayout layout;
  layout.gridShare = 0.3333;
  desk::KeepShares(layout);
  layout = desk::DeskLayout();
  desk::RecallShares(layout);
  EXPECT_DOUBLE_EQ(layout.gridShare, 0.3333);
  coregui::Profile::Get().WriteString(L"Window", L"GridShare", L"99999999");
  desk::RecallShares(layout);
  EXPECT_DOUBLE_EQ(layout.gridShare, 0.9);
  desk::KeepPlace({CRect(CPoint(90000, -90000), CSize(90000, 400)), true});
  const auto place = desk::RecallPlace();
  ASSERT_TRUE(place.has_value());
  const CRect screen(0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));
  EXPECT_EQ(place->rect, CRect(0, 0, screen.right, 400));
  EXPECT_TRUE(place->maximised);
}

TEST(DeskArguments, AreUnderstoodOrRefused) {
  const auto parse = [](std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "desk");
    return desk::ParseArguments(static_cast<int>(arguments.size()), arguments.data(), L"own.csv");
  };
  const desk::DeskOptions plain = parse({});
  EXPECT_TRUE(plain.ok && !plain.IsUnattended());
  EXPECT_EQ(plain.file, L"own.csv");
  const desk::DeskOptions print = parse({"a.csv", "--pdf", "a.pdf", "--scale", "250:12.5", "--paper", "a1"});
  EXPECT_TRUE(print.ok && print.IsUnattended() && print.print.toScale);
  EXPECT_EQ(print.file, L"a.csv");
  EXPECT_EQ(std::tuple(print.print.horizontal, print.print.vertical, print.print.Page().width),
            std::tuple(250.0, 12.5, 841.0));
  EXPECT_FALSE(parse({"--png"}).ok);
  constexpr std::pair<const char*, const char*> bad[] = {
      {"--what", "1"},     {"--size", "0x100"},   {"--size", "a lot"}, {"--scale", "500"},
      {"--scale", "0:50"}, {"--scale", "nan:50"}, {"--paper", "B5"}};
  for (const auto& [option, value] : bad) EXPECT_FALSE(parse({option, value}).ok) << option << " " << value;
}

}  // namespace
