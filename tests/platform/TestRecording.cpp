// A recording context: its state, its log and the layout of its texts.

#include <gtest/gtest.h>

#include <tuple>

#include "platform/CDC.h"

namespace {

TEST(DrawingState, RestoreDC_BringsBackTheLevelAskedFor) {
  CRecordingDC dc;
  CPen pen(PS_SOLID, 2, RGB(255, 0, 0));
  CFont font;
  font.CreatePointFont(120, L"Sans");
  EXPECT_EQ(dc.SaveDC(), 1);
  dc.SelectObject(&pen);
  dc.SetTextColor(RGB(255, 0, 0));
  EXPECT_EQ(dc.SaveDC(), 2);
  dc.SelectObject(&font);
  dc.SetViewportOrg(3, 4);
  dc.SetROP2(R2_NOT);
  EXPECT_EQ(dc.SaveDC(), 3);
  EXPECT_FALSE(dc.RestoreDC(4) || dc.RestoreDC(0));
  EXPECT_TRUE(dc.RestoreDC(2));
  EXPECT_EQ(dc.GetCurrentPen(), &pen);
  EXPECT_EQ(dc.GetCurrentFont(), nullptr);
  EXPECT_EQ(dc.GetViewportOrg(), CPoint());
  EXPECT_EQ(dc.GetROP2(), R2_COPYPEN);
  EXPECT_TRUE(dc.RestoreDC(-1));
  EXPECT_EQ(dc.GetTextColor(), 0U);
  EXPECT_EQ(dc.GetCurrentPen(), CDC::GetStockPen(StockObject::blackPen));
  EXPECT_FALSE(dc.RestoreDC(-1));
}

TEST(Recording, Log_WritesCallsAndTextsWithWhatTheyDrawWith) {
  CRecordingDC dc;
  CPen pen(PS_DASH, 3, RGB(1, 2, 255));
  CBrush hatch(HS_CROSS, RGB(0, 128, 0));
  dc.FillSolidRect(CRect(0, 0, 10, 20), RGB(0, 0, 255));
  dc.SelectObject(&pen);
  dc.SelectObject(&hatch);
  dc.SetViewportOrg(100, 200);
  dc.MoveTo(1, 2);
  dc.LineTo(3, 4);
  dc.SetROP2(R2_XORPEN);
  dc.Rectangle(CRect(0, 0, 5, 5));
  dc.SetROP2(R2_COPYPEN);
  dc.SetViewportOrg(0, 0);
  dc.SelectStockObject(StockObject::nullPen);
  dc.SelectStockObject(StockObject::nullBrush);
  dc.IntersectClipRect(CRect(5, 5, 50, 40));
  dc.Ellipse(CRect(0, 0, 9, 9));
  dc.SelectClipRect(nullptr);
  EXPECT_STREQ(dc.GetLog().ToUtf8().c_str(),
               "FillSolidRect 0,0,10,20 #0000FF\n"
               "LineTo 101,202 103,204 #0102FF w3 style1\n"
               "Rectangle 100,200,105,205 #0102FF w3 style1 hatch4 #008000 rop7\n"
               "Ellipse 0,0,9,9 nopen nobrush clip 5,5,50,40");
  EXPECT_EQ(dc.CountOf(L"LineTo"), 1);
  dc.ClearLog();
  CFont font;
  LOGFONT wanted;
  wanted.lfHeight = -16;
  wanted.lfWeight = FW_BOLD;
  wanted.lfItalic = 1;
  wanted.lfFaceName = L"Some Sans";
  font.CreateFontIndirect(wanted);
  RECT rect = CRect(2, 0, 73, 20);
  dc.DrawText(L"12.50", -1, &rect, DT_SINGLELINE | DT_VCENTER);
  dc.SelectObject(&font);
  dc.SetTextColor(RGB(255, 0, 0));
  dc.ExtTextOut(1, 2, ETO_CLIPPED, &rect, L"a\"b\n\\", 5);
  dc.TextOut(1, 2, nullptr, -1);
  dc.DrawText(L"measured only", -1, &rect, DT_CALCRECT);
  EXPECT_STREQ(dc.GetLog().ToUtf8().c_str(),
               "DrawText 2,0,73,20 0x24 #000000 \"12.50\"\n"
               "ExtTextOut 1,2 0x4 2,0,73,20 #FF0000 font \"Some Sans\",-16,700,italic \"a\\\"b\\n\\\\\"");
}

// --- The layout of DrawText, by characters of 7 by 13.

TEST(DrawTextLayout, CalcRect_GivesTheSizeOfTheText) {
  constexpr std::tuple<const char*, const wchar_t*, UINT, int, int, int> rows[] = {
      {"OneLine", L"abc", DT_SINGLELINE, 100, 21, 13},
      {"LineBreaksOfAllKinds", L"a\rbb\nccc\r\nd", 0, 100, 21, 52},
      {"LastBreakOpensNoLine", L"a\n", 0, 100, 7, 13},
      {"EmptyLineBetween", L"a\n\nb", 0, 100, 7, 39},
      {"SingleLineIgnoresBreaks", L"a\nb", DT_SINGLELINE, 100, 21, 13},
      {"BreaksAtBlanks", L"aaa bbb ccc", DT_WORDBREAK, 50, 49, 26},
      {"BlankAtTheBreakIsNoLine", L"aaa bbb", DT_WORDBREAK, 21, 21, 26},
      {"LongWordStays", L"aaaaaaaaaa bb", DT_WORDBREAK, 30, 70, 26},
      {"EditControlBreaksWords", L"aaaaaaaaaa", DT_WORDBREAK | DT_EDITCONTROL, 35, 35, 26},
      {"NoRoomAtAll", L"aa bb", DT_WORDBREAK, 0, 14, 26},
      {"PrefixTakesNoRoom", L"&File", DT_SINGLELINE, 100, 28, 13},
      {"DoubledPrefixIsOne", L"A && B", DT_SINGLELINE, 100, 35, 13},
      {"NoPrefixKeepsBoth", L"A && B", DT_SINGLELINE | DT_NOPREFIX, 100, 42, 13},
      {"PrefixAtTheEnd", L"a&", DT_SINGLELINE, 100, 7, 13},
      {"TabsToEightColumns", L"a\tb", DT_EXPANDTABS, 200, 63, 13},
      {"EllipsisFits", L"abcdefghij", DT_SINGLELINE | DT_END_ELLIPSIS, 50, 49, 13},
      {"EllipsisNotNeeded", L"abcdefg", DT_SINGLELINE | DT_END_ELLIPSIS, 49, 49, 13},
      {"WordEllipsisCutsAtBlank", L"abc defghij", DT_SINGLELINE | DT_WORD_ELLIPSIS, 62, 49, 13},
  };

  for (const auto& [name, text, format, room, width, height] : rows) {
    CRecordingDC dc;
    RECT rect = CRect(10, 20, 10 + room, 25);
    EXPECT_EQ(dc.DrawText(text, -1, &rect, format | DT_CALCRECT), height) << name;
    EXPECT_EQ(CRect(rect), CRect(10, 20, 10 + width, 20 + height)) << name;
  }
}

TEST(DrawTextResult, VerticalAlignment_CountsFromTheTopOfTheRectangle) {
  CRecordingDC dc;
  RECT rect = CRect(0, 0, 100, 33);
  EXPECT_EQ(dc.DrawText(L"x", 1, &rect, DT_SINGLELINE), 13);
  EXPECT_EQ(dc.DrawText(L"x", 1, &rect, DT_SINGLELINE | DT_VCENTER), 23);
  EXPECT_EQ(dc.DrawText(L"x", 1, &rect, DT_SINGLELINE | DT_BOTTOM), 33);
  EXPECT_EQ(dc.DrawText(L"", -1, &rect, 0), 0);
  EXPECT_EQ(dc.DrawText(nullptr, -1, &rect, 0), 0);
}

}  // namespace
