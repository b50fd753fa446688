#include "dialogs/FontLists.h"

#include <unordered_set>

#include "platform/CComboBox.h"
#include "platform/FontFamilies.h"

namespace {

constexpr int kLongestFace = 31;

}  // namespace

coregui::FontFamilyCache::Record coregui::FontFamilyCache::Find(const CString& face) {
  if (face.GetLength() > kLongestFace) return {};
  if (const auto known = m_records.find(face); known != m_records.end()) return known->second;
  Record record;
  m_enumerate([&](const LOGFONT& family) {
    if (family.lfFaceName.CompareNoCase(face) != 0) return true;
    record = {family.lfPitchAndFamily, family.lfCharSet};
    return false;
  });
  m_records.emplace(face, record);
  return record;
}

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
