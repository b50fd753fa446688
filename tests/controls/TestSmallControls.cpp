#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "controls/CCustomTreeCtrl.h"
#include "controls/CEmptyTreeCtrl.h"
#include "controls/CFloatSpinCtrl.h"
#include "controls/CFontCombo.h"
#include "controls/CIntSpinCtrl.h"
#include "controls/CLinkButton.h"
#include "controls/CLinkSlider.h"
#include "controls/CWidthComboBox.h"
#include "controls/FontNameCache.h"
#include "platform/CDC.h"
#include "platform/Locale.h"
#include "platform/System.h"
#include "tests/support/ControlHost.h"
#include "tests/support/Hand.h"

namespace {

using namespace coregui::test;

/// Lets a test draw items on a context of its own.
template <class Combo>
class DrawnCombo : public Combo {
 public:
  CString Draw(int index) {
    CRecordingDC dc;
    this->DrawItem(dc, CRect(0, 0, 200, 22), index, false);
    return dc.GetLog();
  }
};

TEST(FontCombo, WritesEachFamilyInItsOwnFace) {
  ControlHost host;
  const int families = CFontCombo::BuildFontCache();
  ASSERT_GT(families, 0);
  EXPECT_EQ(CFontCombo::BuildFontCache(), families);
  DrawnCombo<CFontCombo> combo;
  combo.Create(kChild | CBS_DROPDOWN | CBS_SORT, PlaceAt(0), &host, 7);
  EXPECT_EQ(combo.GetCount(), families);
  EXPECT_EQ(combo.GetSelectedFont(), L"");
  EXPECT_FALSE(combo.SelectFont(L"No such face"));
  ASSERT_TRUE(combo.SelectFont(L"dejavu sans mono"));
  EXPECT_EQ(combo.GetSelectedFont(), L"DejaVu Sans Mono");
  EXPECT_EQ(combo.Draw(-1).Find(L"DrawText"), -1);
  CString before;
  for (int i = 0; i < combo.GetCount(); ++i) {
    CString name;
    combo.GetLBText(i, name);
    EXPECT_NE(name, before) << "each family once";
    before = name;
    // A name that cannot be read in its own signs stands in the system's letters.
    const CString inOwnFace = L"font \"" + name + L"\",-15,400 \"" + name + L"\"";
    const auto& family = coregui::FontNameCache::Get().Families()[static_cast<std::size_t>(i)];
    EXPECT_EQ(combo.Draw(i).Find(inOwnFace) >= 0, !family.symbols) << combo.Draw(i).ToUtf8();
    EXPECT_FALSE(family.symbols && name.Find(L"DejaVu") >= 0);
  }
}

TEST(WidthComboBox, KeepsWidthsInOrderAndDrawsThem) {
  ControlHost host;
  DrawnCombo<CWidthComboBox> combo;
  combo.Create(kChild, PlaceAt(0), &host, 7);
  EXPECT_TRUE(combo.SetWidth(1.0 / 3));
  combo.AddStandardWidths();
  EXPECT_LT(combo.GetWidth(), 0) << "none is chosen";
  std::vector<LPARAM> widths(static_cast<std::size_t>(combo.GetCount()));
  std::generate(widths.begin(), widths.end(), [&combo, i = 0]() mutable { return combo.GetItemData(i++); });
  EXPECT_EQ(widths, std::vector<LPARAM>({0,  5,  9,  13, 15, 18, 20,  25,  30,  33,  35,  40,
                                         50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200}));
  EXPECT_TRUE(combo.SetWidth(0.25));
  for (const double bad : {-0.01, 10.01, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_FALSE(combo.SetWidth(bad));
  }
  EXPECT_DOUBLE_EQ(combo.GetWidth(), 0.25);
  EXPECT_EQ(combo.GetCount(), static_cast<int>(widths.size()));
  SetDpiScale(1.0);
  // The second is 7.56 pixels thick; none is thicker than the item.
  constexpr std::pair<double, const wchar_t*> bars[] = {
      {0.0, L"76,10,194,11"}, {2.0, L"76,7,194,15"}, {10.0, L"76,1,194,21"}};
  for (const auto& [width, bar] : bars) {
    EXPECT_TRUE(combo.SetWidth(width));
    EXPECT_GE(combo.Draw(combo.GetCurSel()).Find(CString(L"FillSolidRect ") + bar), 0) << width;
  }
  EXPECT_EQ(ShownPixel(combo, CPoint(120, 14)), GetSysColor(COLOR_WINDOWTEXT)) << "in the closed box, too";
  coregui::SetUserLocale(L"de_DE");
  combo.SetWidth(0.47);
  EXPECT_EQ(combo.GetWindowTextString(), L"0,47 mm");
}

class TriedLink : public CLinkButton {
 public:
  CString opened;
  bool works = true;

 protected:
  bool OnOpenLink(const CString& link) override {
    opened += link + L" ";
    return works;
  }
};

TEST(LinkButton, OpensItsLinkOrSendsItsCommand) {
  ControlHost host;
  TriedLink link;
  link.Create(L"More", kChild | BS_PUSHBUTTON, PlaceAt(0), &host, 7);
  EXPECT_TRUE(HasHandCursor(link));
  Click(link);
  EXPECT_EQ(host.TakeLog(), L"7:0 ");
  link.SetLink(L"https://x");
  Click(link);
  link.SetFocus();
  PressKey(link, VK_SPACE);
  PressKey(link, VK_RETURN);
  EXPECT_EQ(link.opened, L"https://x https://x https://x ");
  EXPECT_EQ(host.TakeLog(), L"");
  EXPECT_TRUE(link.IsVisited());
  link.SetLink(L"https://y");
  link.works = false;
  link.Click();
  EXPECT_EQ(host.TakeLog(), L"7:601 ");
  EXPECT_FALSE(link.IsVisited());
  CLinkButton real;
  real.Create(L"Gone", kChild | BS_PUSHBUTTON, PlaceAt(1), &host, 8);
  for (const wchar_t* bad : {L"/nowhere/at/all.pdf", L"no link", L"file:///nowhere"}) {
    real.SetLink(bad);
    real.Click();
    EXPECT_EQ(host.TakeLog(), L"8:601 ") << CString(bad).ToUtf8();
  }
}

struct CustomTree : testing::Test {
  CustomTree() { tree.Create(kChild, CRect(10, 10, 210, 210), &host, 7); }
  ControlHost host;
  CCustomTreeCtrl tree;
};

TEST_F(CustomTree, ItemsHaveLooksOfTheirOwn) {
  const HTREEITEM road = tree.InsertItem(L"Road");
  const HTREEITEM kerb = tree.InsertItem(L"Kerb", road);
  const HTREEITEM plain = tree.InsertItem(L"Plain", road);
  tree.Expand(road, TVE_EXPAND);
  tree.SelectItem(nullptr);
  const int thin = InkPixels(tree);
  tree.SetItemBold(plain);
  tree.SetItemCheckBox(kerb);
  EXPECT_GT(InkPixels(tree), thin);
  tree.SetItemBkColor(road, RGB(1, 2, 250));
  EXPECT_EQ(ShownPixel(tree, CPoint(150, 8)), RGB(1, 2, 250));
  host.TakeLog();
  tree.CheckBelow(road, TRUE);
  EXPECT_TRUE(tree.GetCheck(kerb));
  EXPECT_FALSE(tree.GetCheck(plain)) << "it has no box";
  EXPECT_EQ(host.TakeLog(), L"");
  tree.SelectItem(kerb);
  tree.SetFocus();
  host.TakeLog();
  PressKey(tree, VK_SPACE);
  EXPECT_FALSE(tree.GetCheck(kerb));
  EXPECT_EQ(host.TakeLog(), L"7:3 ");
  tree.SetItemColor(kerb, RGB(9, 9, 9));
  EXPECT_TRUE(tree.DeleteItem(road));
  EXPECT_EQ(tree.GetItemColor(kerb), CCustomTreeCtrl::kThemeColour);
  EXPECT_FALSE(tree.DeleteItem(nullptr));
  const HTREEITEM old = tree.InsertItem(L"Old");
  tree.SetItemCheckBox(old);
  tree.DestroyWindow();
  tree.Create(kChild, CRect(10, 10, 210, 210), &host, 7);
  EXPECT_FALSE(tree.HasItemCheckBox(old)) << "a new item may have its handle";
}

TEST_F(CustomTree, ABoxThatIsNotCheckedStandsOutFromDarkGround) {
  SetDarkTheme(true);
  tree.SetItemCheckBox(tree.InsertItem(L""));
  int strongest = 0;
  for (int x = 0; x < 60; ++x)
    strongest = std::max<int>(strongest, GetRValue(ShownPixel(tree, CPoint(x, 9))));
  EXPECT_GT(strongest, GetRValue(GetSysColor(COLOR_WINDOW)) + 60);
}

TEST(EmptyTree, SaysWhyWhileItIsEmpty) {
  ControlHost host;
  CEmptyTreeCtrl tree;
  tree.SetEmptyText(L"Nothing is attached.");
  tree.Create(kChild, CRect(10, 10, 210, 210), &host, 7);
  EXPECT_EQ(AccessibleDescription(tree), L"Nothing is attached.");
  const int written = InkPixels(tree);
  EXPECT_GT(written, 0);
  tree.SetEmptyText(L"");
  EXPECT_EQ(InkPixels(tree), 0);
  tree.SetEmptyText(L"Nothing is attached.");
  tree.DeleteItem(tree.InsertItem(L""));
  EXPECT_EQ(InkPixels(tree), written);
  tree.InsertItem(L"");
  EXPECT_LT(InkPixels(tree), written);
}

TEST(SpinControls, StepTheirBoxInsideItsRangeAndTellTheParent) {
  ControlHost host;
  CFloatEdit real;
  CIntEdit whole;
  CFloatSpinCtrl realSpin;
  CIntSpinCtrl wholeSpin;
  real.Create(kChild, PlaceAt(0), &host, 1);
  whole.Create(kChild, PlaceAt(1), &host, 2);
  realSpin.Create(WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT, CRect(220, 10, 240, 38), &host, 3);
  wholeSpin.Create(WS_CHILD | WS_VISIBLE, CRect(220, 45, 240, 73), &host, 4);
  realSpin.SetBuddy(&real);
  wholeSpin.SetBuddy(&whole);
  real.SetParameters(-1.0, 1.0, L"%.2f");
  real.SetValue(0.5);
  realSpin.SetDelta(0.25);
  for (const wchar_t* text : {L"0.75", L"1.00", L"1.00"}) {
    PressKey(realSpin, VK_UP);
    EXPECT_EQ(real.GetWindowTextString(), text);
  }
  whole.SetParameters(0, 10);
  whole.SetValue(9);
  for (const CPoint at : {CPoint(10, 6), CPoint(10, 6), CPoint(10, 22), CPoint(10, 22)})
    ClickAt(wholeSpin, at);
  EXPECT_EQ(whole.GetValue(), 8);
  whole.SetReadOnly();
  PressKey(wholeSpin, VK_UP);
  EXPECT_EQ(whole.GetValue(), 8);
  whole.DestroyWindow();
  PressKey(wholeSpin, VK_UP);
}

TEST(LinkSlider, AndItsBoxFollowEachOther) {
  ControlHost host;
  CFloatEdit edit;
  CLinkSlider slider;
  edit.Create(kChild, PlaceAt(0), &host, 1);
  slider.Create(kChild, PlaceAt(1), &host, 2);
  edit.SetParameters(-100.0, 100.0, L"%.1f");
  edit.SetValue(10.0);
  slider.SetLink(&edit, 0.0, 50.0, 100);
  EXPECT_EQ(slider.GetPos(), 20);
  PressKey(slider, VK_RIGHT);
  EXPECT_EQ(edit.GetWindowTextString(), L"10.5");
  slider.SetLink(&edit, 0.0, 50.0, 500);
  PressKey(slider, VK_NEXT);
  EXPECT_EQ(edit.GetValue(), 5.5) << "a page is a tenth";
  EXPECT_GE(host.TakeLog().Find(L"h:"), 0);
  edit.SetFocus();
  edit.SetSel(0, -1);
  TypeKeys(edit, L"75");
  EXPECT_EQ(slider.GetPos(), 500);
  EXPECT_EQ(edit.GetWindowTextString(), L"75") << "a number beyond the end stays";
  slider.SetLink(&edit, 50.0, 0.0, 100);  // the other way round
  EXPECT_EQ(slider.GetPos(), 0);
  PressKey(slider, VK_RIGHT);
  EXPECT_EQ(edit.GetValue(), 49.5);
  slider.SetLink(nullptr, 0, 1);
  edit.SetValue(3);
  PressKey(slider, VK_RIGHT);
  EXPECT_EQ(edit.GetValue(), 3);
  {
    CFloatEdit brief;
    brief.Create(kChild, PlaceAt(2), &host, 3);
    slider.SetLink(&brief, 0, 1);
  }
  EXPECT_EQ(slider.GetLink(), nullptr);
  PressKey(slider, VK_RIGHT);
}

}  // namespace
