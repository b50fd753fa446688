#include "controls/CNameEdit.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/Clipboard.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

namespace {

constexpr wchar_t kBackspace = 8;
constexpr wchar_t kControlV = 22;

constexpr std::wstring_view kLetters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::wstring_view kDigits = L"0123456789";

// Kept: '$' stands twice in the sets of symbols and of attributes; callers compare the sets as strings.
constexpr std::wstring_view kSymbolSigns = L" $+-_.~!@#$%^&(){}[]";
constexpr std::wstring_view kAttributeSigns = L" $+-_.=:/~!@#$%^&(){}[]";
constexpr std::wstring_view kGroupSigns = L"$-_";
constexpr std::wstring_view kOtherSigns = L" $-_";
/// Road names become file names: what no file system takes is left out of all the signs of the keyboard.
constexpr std::wstring_view kKeyboardSigns = L" `-~=!@#$%^&*()_+[]{};':<>,./|\\";
constexpr std::wstring_view kNotInRoads = L",.:*?<>|\\/";

constexpr std::wstring_view kSymbolKinds[] = {
    L"BLOCK",    L"LAYER",          L"LINESTYLE",          L"LINETYPE",     L"TEXTSTYLE",
    L"DIMSTYLE", L"DIMENSIONSTYLE", L"TABLESTYLE",         L"MLEADERSTYLE", L"NAMEDVIEW",
    L"NAMEDDP",  L"DBCONNECTION",   L"DATABASECONNECTION", L"LIGHT",        L"LAYOUT"};
constexpr std::wstring_view kGroupKinds[] = {L"MULTILINESTYLE", L"GROUP"};

template <class Kinds>
bool IsOneOf(const Kinds& kinds, const std::wstring& kind) {
  return std::find(std::begin(kinds), std::end(kinds), kind) != std::end(kinds);
}

std::wstring Joined(std::initializer_list<std::wstring_view> parts) {
  std::wstring joined;
  for (const std::wstring_view part : parts) joined += part;
  return joined;
}

std::wstring RoadCharacters() {
  std::wstring characters = Joined({kLetters, kDigits, kKeyboardSigns});
  std::erase_if(characters, [](wchar_t c) { return kNotInRoads.find(c) != std::wstring_view::npos; });
  return characters;
}

}  // namespace

CString CNameEdit::GetAllowedCharacters(const CString& kind) {
  const std::wstring upper = CString(kind).MakeUpper().Str();
  if (IsOneOf(kSymbolKinds, upper)) return {Joined({kLetters, kDigits, kSymbolSigns})};
  if (upper == L"ATTRIBUTE") return {Joined({kLetters, kDigits, kAttributeSigns})};
  if (IsOneOf(kGroupKinds, upper)) return {Joined({kLetters, kDigits, kGroupSigns})};
  if (upper == L"ROAD") return {RoadCharacters()};
  return {Joined({kLetters, kOtherSigns})};
}

bool CNameEdit::IsAllowed(wchar_t character) const {
  return m_allowed.IsEmpty() || m_allowed.Find(character) >= 0;
}

CString CNameEdit::Filtered(const CString& text) const {
  std::wstring filtered = text.Str();
  std::erase_if(filtered, [this](wchar_t c) { return !IsAllowed(c); });
  return {filtered};
}

CString CNameEdit::GetValue() const {
  return Filtered(GetWindowTextString());
}

const coregui::MessageTable& CNameEdit::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CEdit::Messages())
                                                 .On<WM_CHAR>(&CNameEdit::OnChar)
                                                 .On<WM_PASTE>(&CNameEdit::OnPaste)
                                                 .On<WM_KILLFOCUS>(&CNameEdit::OnKillFocus)
                                                 .On<WM_CONTEXTMENU>(&CNameEdit::OnContextMenu);
  return table;
}

/// Kept: Ctrl+V is the only shortcut that is no refused character; copying and cutting go by the menu and by
/// Ctrl+Insert and Shift+Delete.
void CNameEdit::OnChar(UINT character, UINT /*repeat*/, UINT /*flags*/) {
  const auto typed = static_cast<wchar_t>(character);
  if (typed == kBackspace || IsAllowed(typed)) {
    Default();
  } else if (typed == kControlV && GetKeyState(VK_CONTROL) < 0) {
    SendMessage(WM_PASTE);
  } else {
    MessageBeep(MB_ICONEXCLAMATION_SOUND);
  }
}

LRESULT CNameEdit::OnPaste(WPARAM /*wParam*/, LPARAM /*lParam*/) {
  CString pasted;
  if ((GetStyle() & ES_READONLY) != 0 || !coregui::GetClipboardText(pasted)) return 0;
  pasted.Remove(L'\r');  // the box has one line, whatever is allowed
  pasted.Remove(L'\n');
  int start = 0;
  int end = 0;
  GetSel(start, end);
  const int behind = GetWindowTextLength() - end;
  const coregui::WindowRef self(this);
  ReplaceSel(pasted, TRUE);
  if (!self || !HasWindow()) return 0;  // the parent heard of the change
  const CString text = GetWindowTextString();
  const CString kept = Filtered(text);
  if (kept != text) {
    SetSel(0, -1);
    ReplaceSel(kept, TRUE);  // rather than SetWindowText, which would take the undo away
    if (!self || !HasWindow()) return 0;
  }
  const int caret = std::max(0, kept.GetLength() - behind);
  SetSel(caret, caret);
  ScrollCaret();
  return 0;
}

void CNameEdit::OnKillFocus(CWnd* /*next*/) {
  Default();
}

void CNameEdit::OnContextMenu(CWnd* /*window*/, CPoint /*screen*/) {
  Default();
}
