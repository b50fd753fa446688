#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include "PrintDialog.h"
#include "tests/examples/DeskTest.h"
#include "tests/support/ControlHost.h"
#include "tests/support/Hand.h"
#include "tests/support/ShownWindow.h"

namespace {

using namespace coregui::test;

using Desk = DeskTest;

TEST_F(Desk, ShowsATableWithItsOwnDecimalsAndHeadings) {
  ASSERT_TRUE(Open("a.csv", "Chainage,Level,Remark\n0,101.50,nail\n1200.5,99.25,\n"));
  EXPECT_EQ(window.Grid().GetNumberRows(), 2);
  EXPECT_EQ(Text(1, -1), L"Level");
  EXPECT_EQ(Text(0, 1), L"1,200.5");
  EXPECT_EQ(Text(1, 1), L"99.25");
  EXPECT_EQ(Text(-1, 1), L"2");
  EXPECT_EQ(window.GetWindowTextString(), L"a.csv (2 rows) - Long-section desk");
  EXPECT_EQ(window.StatusText(), L"a.csv: 2 rows in 3 columns");
  EXPECT_TRUE(window.Section().HasData());
}

TEST_F(Desk, TipsShowTheTextsThatAreCutOff) {
  ASSERT_TRUE(Open("a.csv", "Chainage,Remark\n0,a nail in the kerb opposite the church\n5,\n"));
  const auto tip = [this](int col, long row) {
    CString text;
    const int shown =
        static_cast<coregui::CGridNotify&>(window.Grid()).OnHint(col, row, coregui::GRIDSECTION_GRID, &text);
    return shown == 1 ? text : CString();
  };
  EXPECT_EQ(tip(1, 0), L"");
  window.Grid().SetColWidth(1, 30);
  EXPECT_EQ(tip(1, 0), L"a nail in the kerb opposite the church");
  EXPECT_EQ(tip(1, -1), L"Remark");
  EXPECT_EQ(tip(1, 1), L"");
  window.Grid().SetColWidth(1, 600);
  window.Grid().SetColWidth(0, window.Grid().GetGridWnd()->GetClientRectangle().Width() - 60);
  EXPECT_EQ(tip(1, 0), L"a nail in the kerb opposite the church") << "by the window's edge";
}

TEST_F(Desk, KeepsItsTableWhenAnotherFileCannotBeRead) {
  Told([this] { EXPECT_FALSE(Open("empty.csv", "")); });
  EXPECT_EQ(window.GetWindowTextString(), L"empty.csv (not read) - Long-section desk");
  ASSERT_TRUE(Open("a.csv", "Chainage,Level\n0,101.50\n"));
  const std::string told = Told([this] { EXPECT_FALSE(Open("empty.csv", "")); });
  EXPECT_EQ(told.find("Error (stop): "), 0U);
  EXPECT_NE(told.find("empty.csv: The file is empty."), std::string::npos);
  EXPECT_EQ(Text(1, 0), L"101.50");
  EXPECT_NE(window.StatusText().find(L"The file is empty."), std::wstring::npos);
  EXPECT_EQ(window.GetWindowTextString(), L"a.csv (1 row) - Long-section desk");
  ASSERT_TRUE(Open("words.csv", "a,b\nx,y\n"));
  EXPECT_FALSE(window.Section().HasData() || window.PrintToPdf(Path("none.pdf"))) << "words have no section";
}

TEST_F(Desk, TheWheelAndTheMiddleButtonOverTheDifferenceMoveTheSection) {
  ASSERT_TRUE(Open("a.csv", Road(101, 10)));
  desk::DifferenceView& slave = window.Difference();
  const CPoint at(slave.GetClientRectangle().Width() / 3, 10);
  POINT screen = at;
  slave.ClientToScreen(&screen);
  const double scale = slave.GetScale();
  const double chainage = slave.WindowToUser(at).x;
  slave.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), MAKELPARAM(screen.x, screen.y));
  EXPECT_LT(slave.GetScale(), scale);
  EXPECT_EQ(slave.GetScale(), window.Section().GetScale());
  EXPECT_NEAR(slave.WindowToUser(at).x, chainage, 2.0 * scale);
  EXPECT_NEAR(window.Section().WindowToUser(at).x, chainage, 2.0 * scale);

  const CPoint before = window.Section().UserToWindow({500.0, 101.0});
  slave.SendMessage(WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(at.x, at.y));
  ASSERT_EQ(CWnd::GetCapture(), &window.Section());
  window.Section().ScreenToClient(&screen);
  for (const UINT message : {WM_MOUSEMOVE, WM_MBUTTONUP}) {
    window.Section().SendMessage(message, MK_MBUTTON, MAKELPARAM(screen.x - 40, screen.y + 3));
  }
  EXPECT_EQ(window.Section().UserToWindow({500.0, 101.0}), before + CSize(-40, 3));
  EXPECT_EQ(slave.UserToWindow({500.0, 0.0}).x, before.x - 40);
}

TEST_F(Desk, TheTableAndTheSectionFollowEachOther) {
  ASSERT_TRUE(Open("a.csv", "Level,Chainage\n103,30\n101,10\n102,20\n104,\n"));
  window.Grid().GotoRow(2);
  window.Grid().GotoRow(0);
  EXPECT_EQ(window.StatusText(), L"Station 0+030.000   ground 103.000");
  CWnd& section = window.Section();
  PressKey(section, VK_LEFT);
  EXPECT_EQ(window.Grid().GetCurrentRow(), 2);
  PressKey(section, VK_HOME);
  PressKey(section, VK_LEFT);
  EXPECT_EQ(window.Grid().GetCurrentRow(), 1);
  EXPECT_EQ(window.StatusText(), L"Station 0+010.000   ground 101.000");
  PressKey(section, VK_END);
  PressKey(section, VK_RIGHT);
  EXPECT_EQ(window.Grid().GetCurrentRow(), 0);
  window.GoToChainage(16.0);
  EXPECT_EQ(window.Grid().GetCurrentRow(), 2);
  // Sorted by level from the menu, row 2 is another station.
  window.Sort(0, false);
  EXPECT_EQ(window.StatusText(), L"Station 0+030.000   ground 103.000");
  PressKey(section, VK_LEFT);
  EXPECT_EQ(window.Grid().GetCurrentRow(), 1);
}

TEST_F(Desk, FindsInEveryColumnAndSaysWhenThereIsNothing) {
  ASSERT_TRUE(Open("a.csv", "Chainage,Level,Remark\n0,101.50,nail\n1200.5,99.25,Kerb\n2,101.5,kerb\n"));
  const auto at = [this] { return std::pair(window.Grid().GetCurrentCol(), window.Grid().GetCurrentRow()); };
  window.Grid().GotoCell(0, 0);
  window.Find(L"kerb");
  EXPECT_EQ(at(), std::pair(2, 1L));
  window.Find(L"kerb");
  EXPECT_EQ(at(), std::pair(2, 2L));
  window.Find(L"kerb");
  EXPECT_EQ(at(), std::pair(2, 1L));
  EXPECT_EQ(window.StatusText(), L"The search went on at the other end of the table.");
  for (const wchar_t* number : {L"1,200.5", L"1200.50", L"1200", L"200"}) {
    window.Grid().GotoCell(1, 0);
    window.Find(number);
    EXPECT_EQ(at(), std::pair(0, 1L)) << CString(number).ToUtf8();
  }
  EXPECT_EQ(Told([this] { window.Find(L"%s"); }), "Information (information): \"%s\" is not in the table.");
}

TEST_F(Desk, TheFindDialogStandsBesideTheCellThatItFound) {
  ASSERT_TRUE(Open("a.csv", Road(200)));
  window.ShowWindow(SW_SHOW);
  window.MoveWindow(0, 0, 420, 500);
  const NextWindow find([this](ShownWindow& shown) {
    EXPECT_EQ(shown.Title(), "Find");
    for (const auto& [text, row, y] : {std::tuple("0", 0L, 40), {"12", 12L, 90}, {"199", 199L, 400}}) {
      shown.Window()->MoveWindow(20, y, 300, 150);
      if (row == 0) {
        shown.Key(VK_TAB);
        shown.Type(text);
        shown.Click("Find Next");
      } else {
        window.Find(CString::FromUtf8(text));
      }
      CRect cell;
      CRect dialog;
      ASSERT_EQ(window.Grid().GetCellRect(0, window.Grid().GetCurrentRow(), &cell), 0);
      window.Grid().GetGridWnd()->ClientToScreen(&cell);
      shown.Window()->GetWindowRect(&dialog);
      EXPECT_EQ(window.Grid().GetCurrentRow(), row);
      CRect common;
      EXPECT_FALSE(common.IntersectRect(dialog, cell)) << row;
      EXPECT_GE(dialog.top, 0);
    }
    shown.Click("Cancel");
  });
  PressKey(window.Section(), 'F', true);
  CWinApp::PumpPending();
}

TEST(CommandBar, WhatHasNoRoomStandsInTheMenu) {
  ControlHost frame;
  frame.MoveWindow(0, 0, 900, 200);
  desk::CommandBar bar;
  ASSERT_TRUE(bar.CreateBar(&frame, {{1, L"&Open...", L""}, {2, L"&Print...", L""}, {3, L"&Help", L""}}));
  bar.EnableCommand(3, false);
  std::vector<int> menus;
  for (const int width : {900, 300, 250, 180, 60, 1}) {
    bar.MoveWindow(0, 0, width, desk::CommandBar::Height());
    CMenu menu;
    menu.CreatePopupMenu();
    bar.FillMore(menu);
    menus.push_back(menu.GetMenuItemCount());
    for (UINT id = 1; id <= 3; ++id) {
      EXPECT_NE(bar.GetDlgItem(static_cast<int>(id))->IsWindowVisible() != FALSE,
                menu.GetMenuState(id, MF_BYCOMMAND) != ~0U)
          << width << " " << id;
    }
    if (menus.back() > 0) {
      EXPECT_EQ(menu.GetMenuState(3, MF_BYCOMMAND), MF_GRAYED);
    }
    LONG reached = 0;
    for (const CWnd* control : bar.Stops()) {
      CRect place;
      control->GetWindowRect(&place);
      bar.ScreenToClient(&place);
      EXPECT_GE(place.left, reached) << width;
      reached = place.right;
    }
    EXPECT_TRUE(reached <= width || width < 60) << width;
  }
  EXPECT_EQ(menus.front(), 0);
  EXPECT_EQ(menus.back(), 3);
  EXPECT_TRUE(std::is_sorted(menus.begin(), menus.end()));
}

TEST(PrintDialog, ShowsAtOnceHowManySheetsAChoiceTakes) {
  const auto sheets = [](const desk::PrintChoice& choice) {
    return !choice.toScale             ? 1
           : choice.horizontal < 100.0 ? 0
                                       : static_cast<int>(10000.0 / choice.horizontal);
  };
  desk::PrintDialog dialog({}, sheets, nullptr);
  const auto text = [&dialog] {
    return dialog.GetDlgItem(desk::PrintDialog::kSheets)->GetWindowTextString();
  };
  const NextWindow next([&](ShownWindow& shown) {
    EXPECT_EQ(text(), L"1 sheet A3, landscape");
    CWnd* scale = dialog.GetDlgItem(desk::PrintDialog::kHorizontal);
    EXPECT_FALSE(scale->IsWindowEnabled());
    static_cast<CButton*>(dialog.GetDlgItem(desk::PrintDialog::kToScale))->Click();
    EXPECT_EQ(text(), L"20 sheets A3, landscape");
    scale->SetFocus();
    scale->SetWindowText(L"50");
    EXPECT_NE(text().Find(L"cannot be printed"), -1);
    EXPECT_FALSE(dialog.GetDlgItem(IDOK)->IsWindowEnabled());
    scale->SetWindowText(L"2*125");
    EXPECT_EQ(text(), L"40 sheets A3, landscape");
    shown.Click("Print...");
  });
  EXPECT_EQ(dialog.DoModal(), IDOK);
  const desk::PrintChoice choice = dialog.Choice();
  EXPECT_EQ(std::tuple(choice.toScale, choice.horizontal, choice.vertical), std::tuple(true, 250.0, 50.0));
}

TEST_F(Desk, AZoomedSectionKeepsItsPlaceWhenTheWindowIsSized) {
  ASSERT_TRUE(Open("a.csv", "Chainage,Level\n0,100\n500,110\n1000,102\n"));
  desk::SectionView& section = window.Section();
  const auto middle = [&section] {
    return section.WindowToUser(desk::MiddleOf(section.GetClientRectangle()));
  };
  section.ZoomAt(section.OnLine(section.GetClientRectangle().Width() / 2), 4.0);
  const double scale = section.GetScale();
  const PNT_2D_record at = middle();
  window.MoveWindow(80, 60, 1300, 500);
  EXPECT_EQ(section.GetScale(), scale);
  EXPECT_NEAR(middle().x, at.x, 2.0 * scale);
  section.SetExaggeration(7.5);
  EXPECT_NEAR(middle().x, at.x, 4.0 * scale);
  EXPECT_TRUE(section.Look(true));
  EXPECT_FALSE(section.Look(true));
  EXPECT_GT(section.GetScale(), scale);
  section.ZoomAt(section.OnLine(section.GetClientRectangle().Width() / 2), 4.0);
  ASSERT_TRUE(Open("b.csv", "Chainage,Level\n0,100\n500,110\n1000,102\n"));
  EXPECT_EQ(section.GetScale(), section.GetMapping().now.fitScale);
}

TEST_F(Desk, AnyExaggerationCanBeTypedAsTheUserWritesNumbers) {
  ASSERT_TRUE(Open("a.csv", "Chainage,Level\n0,101.50\n100,102\n"));
  window.ShowWindow(SW_SHOW);
  ASSERT_TRUE(coregui::SetUserLocale(L"de_DE"));
  const NextWindow box([](ShownWindow& dialog) {
    EXPECT_EQ(dialog.Title(), "Long-section");
    dialog.Type("12,5");
    dialog.Key(VK_RETURN);
  });
  PressKey(window.Section(), 'E', true);
  EXPECT_EQ(window.Section().GetExaggeration(), 12.5);
  const CWnd* bar = window.GetDlgItem(desk::CommandBar::kId);
  EXPECT_EQ(bar->GetDlgItem(desk::CommandBar::kExaggerationId)->GetWindowTextString(), L"12,5");
}

TEST_F(Desk, TheSectionRunsAlongTheChainageWhateverTheOrderOfRows) {
  ASSERT_TRUE(Open("a.csv", "Level,Chainage\n103,30\n101,10\n,20\n104,\n"));
  const desk::SectionData& data = window.Data();
  EXPECT_EQ(data.rows, std::vector<long>({1, 2, 0}));
  EXPECT_TRUE(std::isnan(data.ground.GetPoints()[1].y));
  for (const auto& [chainage, point] :
       {std::pair(-5.0, 0), {24.0, 1}, {26.0, 2}, {99.0, 2}, {std::nan(""), -1}}) {
    EXPECT_EQ(data.NearestPoint(chainage), point) << chainage;
  }
}

TEST_F(Desk, TheSectionGatheredWhileReadingIsThatOfTheTable) {
  // Several blocks of rows, chainages in no order and met more than once, some of them and some levels
  // missing.
  constexpr long kRows = 140000;
  std::string road = "Chainage,Ground level,Design level\n";
  std::vector<std::pair<long, long>> stations;
  for (long row = 0; row < kRows; ++row) {
    const long chainage = row * 7919 % 50021;
    const bool hasChainage = row % 1000 != 777;  // not yet in the rows that decide on the columns
    road += (hasChainage ? std::to_string(chainage) : row % 2000 == 777 ? "lost" : "") + ",";
    road += (row % 500 == 333 ? "none" : std::to_string(row % 91)) + "," + std::to_string(row % 17) + "\n";
    if (hasChainage) stations.emplace_back(chainage, row);
  }
  std::sort(stations.begin(), stations.end());  // of equal chainages the earlier row first
  ASSERT_TRUE(Open("a.csv", road));
  const desk::SectionData& data = window.Data();
  ASSERT_EQ(data.rows.size(), stations.size());
  for (std::size_t at = 0; at < stations.size(); ++at) {
    const long row = data.rows[at];
    const double ground = row % 500 == 333 ? -1.0 : static_cast<double>(row % 91);
    const auto design = static_cast<double>(row % 17);
    const auto level = [at](const CPlotSeries& line) { return line.GetPoints()[at].y; };
    ASSERT_EQ(std::pair(static_cast<long>(data.ground.GetPoints()[at].x), row), stations[at]);
    ASSERT_EQ(std::isnan(level(data.ground)) ? -1.0 : level(data.ground), ground) << row;
    ASSERT_EQ(level(data.design), design) << row;
    ASSERT_TRUE(ground < 0.0 || level(data.difference) == ground - design) << row;
    ASSERT_EQ(data.PointOfRow(row), static_cast<long>(at));
  }
  for (const long row : {-1L, 777L, kRows}) EXPECT_EQ(data.PointOfRow(row), -1);
  // Sorted by another column, each point still knows its row.
  window.Sort(2, true);
  ASSERT_EQ(data.rows.size(), stations.size());
  for (std::size_t at = 0; at < stations.size(); ++at) {
    double chainage = -1.0;
    window.Grid().QuickGetNumber(0, data.rows[at], &chainage);
    ASSERT_EQ(chainage, data.ground.GetPoints()[at].x);
  }
  EXPECT_EQ(Text(2, 0), L"16");
}

TEST(SectionMaker, LeavesOffWhenStoppedAndStartsAfresh) {
  desk::SectionMaker maker;
  maker.Begin({0, 1, -1});
  maker.Add(0, {5.0, 100.0});
  EXPECT_TRUE(maker.Make(1, true).IsEmpty());
  maker.Add(1, {3.0, 101.0});
  EXPECT_EQ(maker.Make(2, false).rows, std::vector<long>({1}));
  EXPECT_TRUE(maker.Make(2, false).IsEmpty());
}

TEST(SectionColumns, AreFoundByTheirNames) {
  const auto find = [](const std::vector<std::wstring>& headings) {
    const desk::SectionColumns columns =
        desk::FindSectionColumns(headings, std::vector<bool>(headings.size(), true));
    return std::vector<int>({columns.chainage, columns.ground, columns.design});
  };
  EXPECT_EQ(find({L"Design level", L"X", L"Ground level", L"Chainage"}), std::vector<int>({3, 2, 0}));
  EXPECT_EQ(find({L"Station", L"H\u00F6he"}), std::vector<int>({0, 1, -1}));
  EXPECT_EQ(find({L"Column 1", L"Column 2"}), std::vector<int>({0, 1, -1}));
  EXPECT_EQ(find({L"Column 1"}), std::vector<int>({0, -1, -1}));
}

TEST(DeskLayout, NoPaneIsEverTurnedInsideOut) {
  for (const CSize size : {CSize(0, 0), CSize(3, 2), CSize(40, 60), CSize(1280, 800)}) {
    desk::DeskLayout layout;
    layout.Arrange(size, 34, 24, 5);
    layout.MoveBar(-5000);
    layout.MovePlotBar(5000);
    layout.Arrange(size, 34, 24, 5);
    for (const CRect& pane : {layout.commands, layout.grid, layout.bar, layout.section, layout.plotBar,
                              layout.difference, layout.status}) {
      EXPECT_GE(pane.Width(), 0);
      EXPECT_GE(pane.Height(), 0);
      EXPECT_LE(pane.right, size.cx);
      EXPECT_LE(pane.bottom, size.cy);
    }
  }
}

}  // namespace
