#include "platform/qt/KeyCodes.h"

#include <QKeyEvent>

#include "platform/KeyState.h"
#include "platform/Keys.h"

namespace coregui {
namespace {

struct KeyPair {
  int key;
  UINT code;
};

constexpr KeyPair kPairs[] = {
    {Qt::Key_Backspace, VK_BACK},
    {Qt::Key_Tab, VK_TAB},
    {Qt::Key_Backtab, VK_TAB},
    {Qt::Key_Return, VK_RETURN},
    {Qt::Key_Enter, VK_RETURN},
    {Qt::Key_Shift, VK_SHIFT},
    {Qt::Key_Control, VK_CONTROL},
    {Qt::Key_Alt, VK_MENU},
    {Qt::Key_Pause, 0x13},
    {Qt::Key_CapsLock, VK_CAPITAL},
    {Qt::Key_Escape, VK_ESCAPE},
    {Qt::Key_Space, VK_SPACE},
    {Qt::Key_PageUp, VK_PRIOR},
    {Qt::Key_PageDown, VK_NEXT},
    {Qt::Key_End, VK_END},
    {Qt::Key_Home, VK_HOME},
    {Qt::Key_Left, VK_LEFT},
    {Qt::Key_Up, VK_UP},
    {Qt::Key_Right, VK_RIGHT},
    {Qt::Key_Down, VK_DOWN},
    {Qt::Key_Print, 0x2C},
    {Qt::Key_Insert, VK_INSERT},
    {Qt::Key_Delete, VK_DELETE},
    {Qt::Key_Help, 0x2F},
    {Qt::Key_Menu, VK_APPS},
    {Qt::Key_NumLock, 0x90},
    {Qt::Key_ScrollLock, 0x91},
    {Qt::Key_Meta, 0x5B},
    {Qt::Key_Clear, 0x0C},
    {Qt::Key_Exclam, '1'},
    {Qt::Key_At, '2'},
    {Qt::Key_NumberSign, '3'},
    {Qt::Key_Dollar, '4'},
    {Qt::Key_Percent, '5'},
    {Qt::Key_AsciiCircum, '6'},
    {Qt::Key_Ampersand, '7'},
    {Qt::Key_ParenLeft, '9'},
    {Qt::Key_ParenRight, '0'},
    {Qt::Key_Semicolon, 0xBA},
    {Qt::Key_Colon, 0xBA},
    {Qt::Key_Plus, 0xBB},
    {Qt::Key_Equal, 0xBB},
    {Qt::Key_Comma, 0xBC},
    {Qt::Key_Less, 0xBC},
    {Qt::Key_Minus, 0xBD},
    {Qt::Key_Underscore, 0xBD},
    {Qt::Key_Period, 0xBE},
    {Qt::Key_Greater, 0xBE},
    {Qt::Key_Slash, 0xBF},
    {Qt::Key_Question, 0xBF},
    {Qt::Key_QuoteLeft, 0xC0},
    {Qt::Key_AsciiTilde, 0xC0},
    {Qt::Key_BracketLeft, 0xDB},
    {Qt::Key_BraceLeft, 0xDB},
    {Qt::Key_Backslash, 0xDC},
    {Qt::Key_Bar, 0xDC},
    {Qt::Key_BracketRight, 0xDD},
    {Qt::Key_BraceRight, 0xDD},
    {Qt::Key_Apostrophe, 0xDE},
    {Qt::Key_QuoteDbl, 0xDE},
    {Qt::Key_Asterisk, '8'},
};

/// The keys of the number pad that type something.
constexpr KeyPair kPadPairs[] = {
    {Qt::Key_Asterisk, VK_MULTIPLY}, {Qt::Key_Plus, VK_ADD},      {Qt::Key_Minus, VK_SUBTRACT},
    {Qt::Key_Period, VK_DECIMAL},    {Qt::Key_Comma, VK_DECIMAL}, {Qt::Key_Slash, VK_DIVIDE},
};

template <std::size_t size>
UINT CodeIn(const KeyPair (&pairs)[size], int key) {
  for (const KeyPair& pair : pairs) {
    if (pair.key == key) return pair.code;
  }
  return 0;
}

/// Letters by their place on the board, for layouts whose letters are not Latin. The numbers are those that
/// X11 and Wayland give the keys of a PC keyboard.
UINT CodeOfPlace(quint32 scanCode) {
  struct Row {
    quint32 first;
    const char* letters;
  };
  constexpr Row rows[] = {{24, "QWERTYUIOP"}, {38, "ASDFGHJKL"}, {52, "ZXCVBNM"}};
  for (const Row& row : rows) {
    if (scanCode >= row.first && scanCode < row.first + std::char_traits<char>::length(row.letters)) {
      return static_cast<UINT>(row.letters[scanCode - row.first]);
    }
  }
  return 0;
}

bool IsLatinLetterOrDigit(int key) {
  return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

}  // namespace

UINT VirtualKeyOf(const QKeyEvent& event) {
  const int key = event.key();
  if ((event.modifiers() & Qt::KeypadModifier) != 0) {
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return VK_NUMPAD0 + static_cast<UINT>(key - Qt::Key_0);
    if (const UINT code = CodeIn(kPadPairs, key)) return code;
  }
  if (IsLatinLetterOrDigit(key)) {
    return static_cast<UINT>(key);
  }
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) {
    return VK_F1 + static_cast<UINT>(key - Qt::Key_F1);
  }
  const UINT code = CodeIn(kPairs, key);
  return code != 0 ? code : CodeOfPlace(event.nativeScanCode());
}

int ToolkitKeyOf(UINT virtualKey) {
  const int code = static_cast<int>(virtualKey);
  if (IsLatinLetterOrDigit(code)) return code;
  if (virtualKey >= VK_F1 && virtualKey < VK_F1 + 24) return Qt::Key_F1 + code - static_cast<int>(VK_F1);
  if (virtualKey >= VK_NUMPAD0 && virtualKey < VK_NUMPAD0 + 10)
    return Qt::Key_0 + code - static_cast<int>(VK_NUMPAD0);
  for (const KeyPair& pair : kPadPairs) {
    if (pair.code == virtualKey) return pair.key;
  }
  for (const KeyPair& pair : kPairs) {
    if (pair.code == virtualKey) return pair.key;
  }
  return 0;
}

std::wstring CharactersOf(const QKeyEvent& event) {
  const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
  const bool alt = (event.modifiers() & Qt::AltModifier) != 0;
  const UINT code = VirtualKeyOf(event);
  if (code == VK_DELETE) {
    return {};
  }
  if (control && !alt && code >= 'A' && code <= 'Z') {
    return {static_cast<wchar_t>(code - 'A' + 1)};
  }
  if (code == VK_TAB && !control && !alt) {
    return L"\t";
  }
  std::wstring text = event.text().toStdWString();
  // Alt with a letter is a menu's key; with Ctrl it is the AltGr of some boards.
  if ((alt && !control) || (control && !alt && !text.empty() && text[0] >= L' ')) {
    text.clear();
  }
  return text;
}

void NoteModifiers(Qt::KeyboardModifiers modifiers) {
  NoteKeyState(VK_SHIFT, (modifiers & Qt::ShiftModifier) != 0);
  NoteKeyState(VK_CONTROL, (modifiers & Qt::ControlModifier) != 0);
  NoteKeyState(VK_MENU, (modifiers & Qt::AltModifier) != 0);
}

}  // namespace coregui
