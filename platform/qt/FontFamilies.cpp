#include "platform/FontFamilies.h"

#include <QFontDatabase>
#include <QRawFont>
#include <map>

#include "platform/qt/Application.h"

namespace {

struct FamilyBytes {
  BYTE pitchAndFamily = 0;
  BYTE charSet = DEFAULT_CHARSET;
};

// The PANOSE bytes of the OS/2 table (OpenType: offset 32) say what kind of letters a font has; where a font
// does not fill them in, its IBM family class (offset 30) does.
BYTE FamilyOf(const QByteArray& os2) {
  constexpr int familyClassOffset = 30;
  constexpr int panoseOffset = 32;
  if (os2.size() < panoseOffset + 10) {
    return FF_DONTCARE;
  }
  const auto byte = [&os2](int at) { return static_cast<BYTE>(os2.at(at)); };
  constexpr BYTE latinText = 2;
  switch (byte(panoseOffset)) {
    case latinText:
      if (byte(panoseOffset + 1) >= 2) {
        return byte(panoseOffset + 1) <= 10 ? FF_ROMAN : FF_SWISS;
      }
      break;
    case 3:
      return FF_SCRIPT;
    case 4:
      return FF_DECORATIVE;
    default:
      break;
  }
  switch (byte(familyClassOffset)) {
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
    case 7:
      return FF_ROMAN;
    case 8:
      return FF_SWISS;
    case 9:
      return FF_DECORATIVE;
    case 10:
      return FF_SCRIPT;
    default:
      return FF_DONTCARE;
  }
}

FamilyBytes BytesOf(const QString& family) {
  static std::map<QString, FamilyBytes> known;
  const auto found = known.find(family);
  if (found != known.end()) {
    return found->second;
  }
  FamilyBytes bytes;
  const bool fixed = QFontDatabase::isFixedPitch(family);
  const QRawFont font = QRawFont::fromFont(QFont(family));
  const BYTE kind = fixed ? FF_MODERN : FamilyOf(font.fontTable("OS/2"));
  bytes.pitchAndFamily = static_cast<BYTE>((fixed ? FIXED_PITCH : VARIABLE_PITCH) | kind);
  const QList<QFontDatabase::WritingSystem> systems = QFontDatabase::writingSystems(family);
  // First: fonts of symbols may have their signs in the places of letters, and then seem to write Latin, too.
  if (systems.contains(QFontDatabase::Symbol)) {
    bytes.charSet = SYMBOL_CHARSET;
  } else if (systems.contains(QFontDatabase::Latin)) {
    bytes.charSet = ANSI_CHARSET;
  }
  known[family] = bytes;
  return bytes;
}

}  // namespace

bool EnumFontFamilies(const std::function<bool(const LOGFONT& family)>& visit) {
  coregui::EnsureApplication();
  for (const QString& family : QFontDatabase::families()) {
    const FamilyBytes bytes = BytesOf(family);
    LOGFONT font;
    font.lfFaceName = family.toStdWString();
    font.lfPitchAndFamily = bytes.pitchAndFamily;
    font.lfCharSet = bytes.charSet;
    if (!visit(font)) {
      return false;
    }
  }
  return true;
}
