#pragma once

#include <cstdarg>
#include <string>

namespace coregui {

/// The text of a printf format and its arguments, as CString::Format describes. Directives:
///
/// | directive | argument |
/// |---|---|
/// | `%d %i %u %x %X %o` | `int`; with `hh` or `h` cut to that width |
/// | the same with `l` | `long`, which has 64 bits here: a 32-bit DWORD is cast or takes no `l` |
/// | the same with `ll`, `I64`, `j`, `z`, `t` | 64 bits; with `I32`: 32 bits |
/// | `%f %F %e %E %g %G %a %A` (also with `l`) | `double`; with `L`: `long double` |
/// | `%s`, `%ls`, `%ws` | wide text; null prints as nothing |
/// | `%S`, `%hs` | UTF-8 text; null prints as nothing |
/// | `%c`, `%lc` / `%C`, `%hc` | a wide character / a byte |
/// | `%p` | a pointer |
///
/// Flags `-+ #0`, width and precision, also as `*`, are understood; a text's precision counts its characters.
/// What is no directive is copied as it stands; `%n` writes nothing anywhere. A null format gives the empty
/// text.
std::wstring FormatText(const wchar_t* format, va_list arguments);

}  // namespace coregui
