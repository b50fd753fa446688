#include "dialogs/FontLists.h"

#include <unordered_set>

#include "dialogs/FontFamilyCache.h"
#include "platform/CComboBox.h"
#include "platform/FontFamilies.h"

void coreTrueTypeFontList(CComboBox* combo) {
  if (combo == nullptr) return;
  combo->ResetContent();
  // Kept: whatever the function's name says, families of every font technology are listed.
  std::unordered_set<CString> listed;
  EnumFontFamilies([&](const LOGFONT& family) {
    if (listed.insert(family.lfFaceName).second) combo->AddString(family.lfFaceName);
    return true;
  });
}

void coreGetFontPitchAndFamily(const wchar_t* face, BYTE& pitchAndFamily, BYTE& charSet) {
  static coregui::FontFamilyCache cache(
      [](const coregui::FontFamilyCache::Visit& visit) { EnumFontFamilies(visit); });
  const coregui::FontFamilyCache::Record record = cache.Find(face);
  pitchAndFamily = record.pitchAndFamily;
  charSet = record.charSet;
}
