#include "dialogs/FontLists.h"

#include <gtest/gtest.h>

#include <set>

#include "dialogs/FontFamilyCache.h"
#include "platform/FontFamilies.h"
#include "tests/support/ControlHost.h"

namespace {

TEST(FontLists, EveryFamilyOnceInPlaceOfWhatWasThere) {
  coregui::test::ControlHost host;
  CComboBox combo;
  ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 200, 24), &host, 1));
  combo.AddString(L"old");
  std::set<CString> families;
  EnumFontFamilies([&](const LOGFONT& family) { return families.insert(family.lfFaceName), true; });
  ASSERT_FALSE(families.empty());
  coreTrueTypeFontList(&combo);
  coreTrueTypeFontList(nullptr);
  EXPECT_EQ(combo.GetCount(), static_cast<int>(families.size()));
  std::set<CString> listed;
  for (int i = 0; i < combo.GetCount(); ++i) {
    CString name;
    combo.GetLBText(i, name);
    listed.insert(name);
  }
  EXPECT_EQ(listed, families);
}

TEST(FontLists, AFamilyIsFoundWhateverItsCase) {
  LOGFONT first;
  EnumFontFamilies([&](const LOGFONT& family) {
    first = family;
    return family.lfFaceName.GetLength() > 31;
  });
  BYTE pitch = 99;
  BYTE charSet = 99;
  coreGetFontPitchAndFamily(CString(first.lfFaceName).MakeUpper(), pitch, charSet);
  EXPECT_EQ(pitch, first.lfPitchAndFamily);
  EXPECT_EQ(charSet, first.lfCharSet);
  EXPECT_NE(pitch, 0);
  coreGetFontPitchAndFamily(nullptr, pitch, charSet);
  EXPECT_EQ(pitch, 0);
  EXPECT_EQ(charSet, 0);
}

TEST(FontLists, FontsAreLookedThroughOnceForEachName) {
  int passes = 0;
  int seen = 0;
  const CString longest(L'f', 31);
  coregui::FontFamilyCache cache([&](const coregui::FontFamilyCache::Visit& visit) {
    ++passes;
    LOGFONT font;
    font.lfPitchAndFamily = FF_ROMAN | VARIABLE_PITCH;
    font.lfCharSet = SYMBOL_CHARSET;
    for (const CString& name : {longest, CString(L'F', 31), CString(L'f', 32)}) {
      font.lfFaceName = name;
      ++seen;
      if (!visit(font)) return;
    }
  });
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(cache.Find(longest).pitchAndFamily, FF_ROMAN | VARIABLE_PITCH);
    EXPECT_EQ(cache.Find(longest).charSet, SYMBOL_CHARSET);
    EXPECT_EQ(cache.Find(L"missing").pitchAndFamily, 0);
    EXPECT_EQ(cache.Find(CString(L'f', 32)).charSet, 0);
  }
  EXPECT_EQ(passes, 2);
  EXPECT_EQ(seen, 1 + 3);
}

}  // namespace
