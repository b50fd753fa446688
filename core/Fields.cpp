#include "core/Fields.h"

#include <algorithm>

std::wstring coreGetField(const wchar_t* line, int n, wchar_t separator, const wchar_t* defaultText,
                          int maxCharacters, bool* isCut) {
  coregui::FieldWalk walk(line == nullptr ? L"" : line, separator);
  std::wstring_view field;
  bool found = n >= 1;
  for (int i = 0; found && i < n; ++i) found = walk.Next(field);
  if (!found) field = defaultText == nullptr ? L"" : defaultText;
  const auto kept = static_cast<std::size_t>(std::max(maxCharacters, 0));
  if (isCut != nullptr) *isCut = field.size() > kept;
  return std::wstring(field.substr(0, kept));
}
