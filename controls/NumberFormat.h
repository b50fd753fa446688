#pragma once

#include "core/Export.h"
#include "platform/CString.h"

namespace coregui {

/// How a number is shown: a printf format with one directive, "%.2f" say, and perhaps text around it ("%.1f
/// m"). It comes from callers and is never trusted: with none or several directives, one of another type than
/// asked for, a '*' or a width or precision of more than two digits, the number is shown with as many digits
/// as it needs instead.
class COREGUI_API NumberFormat {
 public:
  /// Real numbers take f, F, e, E, g and G, whole ones d and i.
  enum class Kind { real, whole };

  NumberFormat(Kind kind, const wchar_t* format);

  /// The number's text, with the locale's decimal sign.
  CString Text(double value) const;
  /// Without the text that the format puts around the number, as far as it is there.
  CString WithoutSurroundings(const CString& text) const;
  /// How many digits are shown behind the decimal sign; 0 when that is not fixed.
  int Decimals() const { return m_decimals; }

 private:
  bool Read(const CString& format);

  Kind m_kind;
  CString m_before;
  CString m_directive;  ///< empty: as many digits as needed
  CString m_after;
  int m_decimals = 0;
};

}  // namespace coregui
