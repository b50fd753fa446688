#include "core/Paths.h"

#include <string_view>

namespace {

std::wstring_view View(const wchar_t* text) {
  return text == nullptr ? std::wstring_view() : text;
}

/// Where the file name begins.
std::size_t NameStart(std::wstring_view path) {
  const std::size_t separator = path.find_last_of(L"/\\");
  return separator == std::wstring_view::npos ? 0 : separator + 1;
}

}  // namespace

std::wstring coreChangeFileExt(const wchar_t* path, const wchar_t* extension) {
  std::wstring_view stem = View(path);
  const std::size_t dot = stem.rfind(L'.');
  if (dot != std::wstring_view::npos && dot > NameStart(stem)) stem = stem.substr(0, dot);
  std::wstring_view added = View(extension);
  if (added.starts_with(L'.')) added.remove_prefix(1);
  std::wstring result(stem);
  if (!added.empty()) result.append(1, L'.').append(added);
  return result;
}

std::wstring coreChangeFileName(const wchar_t* path, const wchar_t* fileName) {
  return coreExtractFilePath(path).append(View(fileName));
}

std::wstring coreExtractFilePath(const wchar_t* path) {
  const std::wstring_view whole = View(path);
  return std::wstring(whole.substr(0, NameStart(whole)));
}

std::wstring coreExtractFileName(const wchar_t* path) {
  const std::wstring_view whole = View(path);
  return std::wstring(whole.substr(NameStart(whole)));
}
