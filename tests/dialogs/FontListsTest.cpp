#include "dialogs/FontLists.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

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
  for (const CString& family : families) EXPECT_GE(combo.FindStringExact(-1, family), 0) << family.ToUtf8();
}

TEST(FontLists, PitchAndCharacterSetAreThoseOfTheFamily) {
  LOGFONT first;
  EnumFontFamilies([&](const LOGFONT& family) {
    first = family;
    return family.lfFaceName.GetLength() > 31;
  });
  BYTE pitch = 99;
  BYTE charSet = 99;
  coreGetFontPitchAndFamily(first.lfFaceName, pitch, charSet);
  EXPECT_NE(pitch, 0);
  EXPECT_EQ(std::pair(pitch, charSet), std::pair(first.lfPitchAndFamily, first.lfCharSet));
  coreGetFontPitchAndFamily(nullptr, pitch, charSet);
  EXPECT_EQ(std::pair(pitch, charSet), std::pair(BYTE{0}, BYTE{0}));
}

TEST(FontLists, FontsAreLookedThroughOnceForEachNameWhateverItsCase) {
  int passes = 0;
  int seen = 0;
  coregui::FontFamilyCache cache([&](const coregui::FontFamilyCache::Visit& visit) {
    ++passes;
    LOGFONT font;
    font.lfPitchAndFamily = FF_ROMAN | VARIABLE_PITCH;
    for (const CString& name : {CString(L'F', 31), CString(L'f', 31), CString(L'f', 32)}) {
      font.lfFaceName = name;
      ++seen;
      if (!visit(font)) return;
    }
  });
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(cache.Find(CString(L'f', 31)).pitchAndFamily, FF_ROMAN | VARIABLE_PITCH);
    EXPECT_EQ(cache.Find(L"missing").pitchAndFamily, 0);
    EXPECT_EQ(cache.Find(CString(L'f', 32)).pitchAndFamily, 0) << "no face has so long a name";
  }
  EXPECT_EQ(passes, 2);
  EXPECT_EQ(seen, 1 + 3);
}

}  // namespace
