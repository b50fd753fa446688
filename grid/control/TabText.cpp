#include "grid/control/TabText.h"

namespace coregui {

void SplitTabText(const CString& text,
                  const std::function<void(int col, long row, const CString& field)>& field) {
  const std::wstring& source = text.Str();
  int col = 0;
  long row = 0;
  std::size_t start = 0;
  const auto finish = [&](std::size_t end) { field(col, row, CString(source.substr(start, end - start))); };
  for (std::size_t i = 0; i < source.size(); ++i) {
    const wchar_t character = source[i];
    if (character != L'\t' && character != L'\r' && character != L'\n') {
      continue;
    }
    finish(i);
    if (character == L'\r' && i + 1 < source.size() && source[i + 1] == L'\n') {
      ++i;
    }
    col = character == L'\t' ? col + 1 : 0;
    row += character == L'\t' ? 0 : 1;
    start = i + 1;
  }
  if (start < source.size()) {
    finish(source.size());
  }
}

}  // namespace coregui
