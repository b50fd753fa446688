#include "dialogs/FontFamilyCache.h"

namespace coregui {
namespace {

constexpr int kLongestFace = 31;

}  // namespace

FontFamilyCache::Record FontFamilyCache::Find(const CString& face) {
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

}  // namespace coregui
