#include "platform/TextFormat.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <string_view>

#include "core/Utf8.h"

namespace coregui {
namespace {

enum class Size { none, charSize, shortSize, longSize, bits32, bits64, longDouble };

/// Width and precision beyond this are cut to it, so that a format cannot ask for absurd amounts of memory.
constexpr int kMaxField = 100000;

struct Directive {
  std::string flags;
  int width = 0;
  int precision = -1;  ///< -1: none given
  Size size = Size::none;
  wchar_t conversion = 0;
};

/// va_list may be an array type; a struct lets it pass by reference everywhere.
struct Arguments {
  va_list list;
};

/// Appends text in a field of the directive's width.
void AppendField(std::wstring& out, const Directive& directive, std::wstring_view text) {
  const auto width = static_cast<std::size_t>(directive.width);
  const std::size_t blanks = text.size() < width ? width - text.size() : 0;
  const bool left = directive.flags.find('-') != std::string::npos;
  if (!left) out.append(blanks, L' ');
  out.append(text);
  if (left) out.append(blanks, L' ');
}

std::string NarrowFormat(const Directive& directive, const char* size) {
  std::string format = "%" + directive.flags;
  if (directive.width > 0) format += std::to_string(directive.width);
  if (directive.precision >= 0) {
    format += '.';
    format += std::to_string(directive.precision);
  }
  return format + size + static_cast<char>(directive.conversion);
}

/// The C library writes the number. The format is built above from checked parts and fits the argument's
/// type.
template <class Number>
std::string PrintNumber(const std::string& format, Number number) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  std::array<char, 400> buffer;
  const int length = std::snprintf(buffer.data(), buffer.size(), format.c_str(), number);
  if (length < 0) return {};
  if (static_cast<std::size_t>(length) < buffer.size()) {
    return {buffer.data(), static_cast<std::size_t>(length)};
  }
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  std::snprintf(text.data(), text.size(), format.c_str(), number);
#pragma GCC diagnostic pop
  text.pop_back();
  return text;
}

void AppendAscii(std::wstring& out, const std::string& text) {
  out.append(text.begin(), text.end());
}

/// The process's locale may write another decimal sign than '.'.
void AppendReal(std::wstring& out, const std::string& text) {
  const std::string sign = std::localeconv()->decimal_point;
  const std::size_t found = sign.empty() ? std::string::npos : text.find(sign);
  AppendAscii(out, text.substr(0, found));
  if (found != std::string::npos) {
    out += L'.';
    AppendAscii(out, text.substr(found + sign.size()));
  }
}

// Two sizes may be one type here and not elsewhere.
// NOLINTBEGIN(bugprone-branch-clone)
std::int64_t TakeSigned(Arguments& arguments, Size size) {
  switch (size) {
    case Size::charSize:
      return static_cast<signed char>(va_arg(arguments.list, int));
    case Size::shortSize:
      return static_cast<short>(va_arg(arguments.list, int));
    case Size::longSize:
      return va_arg(arguments.list, long);
    case Size::bits64:
      return va_arg(arguments.list, long long);
    default:
      return va_arg(arguments.list, int);
  }
}

std::uint64_t TakeUnsigned(Arguments& arguments, Size size) {
  switch (size) {
    case Size::charSize:
      return static_cast<unsigned char>(va_arg(arguments.list, unsigned));
    case Size::shortSize:
      return static_cast<unsigned short>(va_arg(arguments.list, unsigned));
    case Size::longSize:
      return va_arg(arguments.list, unsigned long);
    case Size::bits64:
      return va_arg(arguments.list, unsigned long long);
    default:
      return va_arg(arguments.list, unsigned);
  }
}
// NOLINTEND(bugprone-branch-clone)

void AppendText(std::wstring& out, const Directive& directive, Arguments& arguments) {
  const std::size_t limit =
      directive.precision < 0 ? std::wstring::npos : static_cast<std::size_t>(directive.precision);
  if (directive.conversion == L'S' || directive.size == Size::shortSize) {
    const char* text = va_arg(arguments.list, const char*);
    AppendField(out, directive, text == nullptr ? L"" : FromUtf8(text).substr(0, limit));
    return;
  }
  const wchar_t* text = va_arg(arguments.list, const wchar_t*);
  if (text == nullptr) text = L"";
  // With a precision the text need not end within it.
  const std::size_t length = limit == std::wstring::npos
                                 ? std::wcslen(text)
                                 : static_cast<std::size_t>(std::find(text, text + limit, L'\0') - text);
  AppendField(out, directive, std::wstring_view(text, length));
}

void AppendCharacter(std::wstring& out, const Directive& directive, Arguments& arguments) {
  auto character = static_cast<wchar_t>(va_arg(arguments.list, int));
  if (directive.conversion == L'C' || directive.size == Size::shortSize) {
    const char byte = static_cast<char>(character);
    character = FromUtf8(std::string_view(&byte, 1))[0];
  }
  AppendField(out, directive, std::wstring_view(&character, 1));
}

/// False when the conversion is none.
bool AppendArgument(std::wstring& out, const Directive& directive, Arguments& arguments) {
  switch (directive.conversion) {
    case L'd':
    case L'i':
      AppendAscii(out, PrintNumber(NarrowFormat(directive, "ll"),
                                   static_cast<long long>(TakeSigned(arguments, directive.size))));
      return true;
    case L'u':
    case L'x':
    case L'X':
    case L'o':
      AppendAscii(out, PrintNumber(NarrowFormat(directive, "ll"),
                                   static_cast<unsigned long long>(TakeUnsigned(arguments, directive.size))));
      return true;
    case L'f':
    case L'F':
    case L'e':
    case L'E':
    case L'g':
    case L'G':
    case L'a':
    case L'A':
      if (directive.size == Size::longDouble) {
        AppendReal(out, PrintNumber(NarrowFormat(directive, "L"), va_arg(arguments.list, long double)));
      } else {
        AppendReal(out, PrintNumber(NarrowFormat(directive, ""), va_arg(arguments.list, double)));
      }
      return true;
    case L's':
    case L'S':
      AppendText(out, directive, arguments);
      return true;
    case L'c':
    case L'C':
      AppendCharacter(out, directive, arguments);
      return true;
    case L'p':
      AppendAscii(out, PrintNumber(NarrowFormat(directive, ""), va_arg(arguments.list, void*)));
      return true;
    case L'n':
      va_arg(arguments.list, void*);
      return true;
    default:
      return false;
  }
}

bool TakePrefix(const wchar_t*& at, std::wstring_view prefix) {
  if (std::wcsncmp(at, prefix.data(), prefix.size()) != 0) return false;
  at += prefix.size();
  return true;
}

Size ParseSize(const wchar_t*& at) {
  if (TakePrefix(at, L"I64") || TakePrefix(at, L"ll")) return Size::bits64;
  if (TakePrefix(at, L"I32")) return Size::bits32;
  if (TakePrefix(at, L"hh")) return Size::charSize;
  if (TakePrefix(at, L"h")) return Size::shortSize;
  if (TakePrefix(at, L"l") || TakePrefix(at, L"w")) return Size::longSize;
  if (TakePrefix(at, L"L")) return Size::longDouble;
  if (TakePrefix(at, L"j") || TakePrefix(at, L"z") || TakePrefix(at, L"t")) return Size::bits64;
  return Size::none;
}

/// A number of the format or, for `*`, the next argument.
int ParseField(const wchar_t*& at, Arguments& arguments) {
  if (*at == L'*') {
    ++at;
    return std::clamp(va_arg(arguments.list, int), -kMaxField, kMaxField);
  }
  int value = 0;
  for (; *at >= L'0' && *at <= L'9'; ++at)
    value = std::min(value * 10 + static_cast<int>(*at - L'0'), kMaxField);
  return value;
}

/// Parses behind the '%'; leaves `at` behind the conversion, or at the end of the format.
Directive ParseDirective(const wchar_t*& at, Arguments& arguments) {
  Directive directive;
  for (; *at != 0 && std::wcschr(L"-+ #0", *at) != nullptr; ++at) {
    if (directive.flags.find(static_cast<char>(*at)) == std::string::npos)
      directive.flags += static_cast<char>(*at);
  }
  directive.width = ParseField(at, arguments);
  if (directive.width < 0) {
    directive.flags += '-';
    directive.width = -directive.width;
  }
  if (*at == L'.') {
    ++at;
    directive.precision = std::max(ParseField(at, arguments), -1);
  }
  directive.size = ParseSize(at);
  directive.conversion = *at;
  if (*at != 0) ++at;
  return directive;
}

}  // namespace

std::wstring FormatText(const wchar_t* format, va_list arguments) {
  std::wstring out;
  if (format == nullptr) return out;
  Arguments own;
  va_copy(own.list, arguments);
  const wchar_t* at = format;
  while (*at != 0) {
    if (*at != L'%') {
      const wchar_t* run = at;
      while (*at != 0 && *at != L'%') ++at;
      out.append(run, at);
      continue;
    }
    const wchar_t* start = at++;
    if (*at == L'%') {
      out += *at++;
      continue;
    }
    const Directive directive = ParseDirective(at, own);
    if (!AppendArgument(out, directive, own)) out.append(start, at);
  }
  va_end(own.list);
  return out;
}

}  // namespace coregui
