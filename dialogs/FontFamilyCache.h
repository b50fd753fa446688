#pragma once

#include <functional>
#include <unordered_map>
#include <utility>

#include "platform/CFont.h"
#include "platform/CString.h"
#include "platform/Types.h"

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
