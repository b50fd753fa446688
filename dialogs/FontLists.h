#pragma once

#include <functional>
#include <unordered_map>

#include "core/Export.h"
#include "platform/CFont.h"
#include "platform/CString.h"
#include "platform/Types.h"

class CComboBox;

/// Fills a combo box with the font families of the screen, each name once.
COREGUI_API void coreTrueTypeFontList(CComboBox* combo);

/// The pitch-and-family and the character-set byte of a font family, found ignoring case. Both 0 for a family
/// that the screen does not have and for a name of 32 characters or more. The fonts are looked through once
/// for each name in the life of the program.
COREGUI_API void coreGetFontPitchAndFamily(const wchar_t* face, BYTE& pitchAndFamily, BYTE& charSet);

namespace coregui {

/// What is known of the font families that were asked for. Never forgets, names that were not found included.
class FontFamilyCache {
 public:
  struct Record {
    BYTE pitchAndFamily = 0;
    BYTE charSet = 0;
  };
  using Visit = std::function<bool(const LOGFONT& family)>;
  /// Calls a visitor for each family until it answers false.
  using Enumerate = std::function<void(const Visit& visit)>;

  explicit FontFamilyCache(Enumerate enumerate) : m_enumerate(std::move(enumerate)) {}
  Record Find(const CString& face);

 private:
  Enumerate m_enumerate;
  std::unordered_map<CString, Record> m_records;
};

}  // namespace coregui
