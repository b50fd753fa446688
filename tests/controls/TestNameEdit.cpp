#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "controls/CHexEdit.h"
#include "controls/CNameEdit.h"
#include "platform/Clipboard.h"
#include "platform/System.h"
#include "tests/support/ControlHost.h"
#include "tests/support/Hand.h"

namespace {

using namespace coregui::test;

TEST(NameCharacters, AreExactForEachKind) {
  const CString letters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  const CString all = letters + L"0123456789";
  const std::tuple<std::vector<const wchar_t*>, CString> rows[] = {
      {{L"BLOCK", L"LAYER", L"LINESTYLE", L"LINETYPE", L"TEXTSTYLE", L"DIMSTYLE", L"DIMENSIONSTYLE",
        L"TABLESTYLE", L"MLEADERSTYLE", L"NAMEDVIEW", L"NAMEDDP", L"DBCONNECTION", L"DATABASECONNECTION",
        L"LIGHT", L"LAYOUT", L"layer"},
       all + L" $+-_.~!@#$%^&(){}[]"},
      {{L"attribute"}, all + L" $+-_.=:/~!@#$%^&(){}[]"},
      {{L"MultiLineStyle", L"GROUP"}, all + L"$-_"},
      {{L"Road"}, all + L" `-~=!@#$%^&()_+[]{};'"},
      {{L"", L"LAYERS", L" LAYER", L"ROADS"}, letters + L" $-_"}};
  for (const auto& [kinds, characters] : rows) {
    for (const wchar_t* kind : kinds) {
      EXPECT_EQ(CNameEdit::GetAllowedCharacters(kind), characters) << CString(kind).ToUtf8();
    }
  }
}

class NameEdit : public EditTest<CNameEdit> {
 protected:
  NameEdit() { edit.SetAllowedCharacters(CNameEdit::GetAllowedCharacters(L"GROUP")); }
  int Beeps() { return GetBeepCount(MB_ICONEXCLAMATION_SOUND) - m_beeps; }
  /// The text with '|' at the caret.
  CString Shown() {
    int start = 0;
    int end = 0;
    edit.GetSel(start, end);
    CString text = edit.GetWindowTextString();
    text.Insert(end, start == end ? L"|" : L"]");
    if (start != end) text.Insert(start, L"[");
    return text;
  }

 private:
  const int m_beeps = GetBeepCount(MB_ICONEXCLAMATION_SOUND);
};

TEST_F(NameEdit, BeepsForEachRefusedCharacterHoweverItComes) {
  TypeKeys(edit, L"a.1");
  EXPECT_EQ(Beeps(), 1);
  CommitText(edit, L"\u00fcb c");
  EXPECT_EQ(Beeps(), 3);
  DropText(edit, L"d/e");
  EXPECT_EQ(Beeps(), 4);
  PressKey(edit, VK_BACK);
  EXPECT_EQ(Shown(), L"a1bcd|");
  EXPECT_EQ(Beeps(), 4);
}

TEST_F(NameEdit, WithoutASetEveryCharacterIsAllowed) {
  edit.SetAllowedCharacters(L"");
  TypeKeys(edit, L"a.");
  CommitText(edit, L"\u00e9\u4e2d");
  coregui::SetClipboardText(L"<*>");
  PressKey(edit, 'V', true);
  EXPECT_EQ(edit.GetValue(), L"a.\u00e9\u4e2d<*>");
  EXPECT_EQ(Beeps(), 0);
}

TEST_F(NameEdit, PastingFiltersAllAndKeepsWhatFollowsTheCaret) {
  constexpr std::tuple<const wchar_t*, int, int, const wchar_t*, const wchar_t*> rows[] = {
      {L"", 0, 0, L"a1.b2", L"a1b2|"},
      {L"xyz", 1, 1, L".q.", L"xq|yz"},
      {L"abcdef", 1, 3, L"1.2", L"a12|def"},
      {L"abc", 0, 3, L"...", L"|"},
      {L"abc", 0, 0, L"n\r\nm", L"nm|abc"},
      {L"a.b", 1, 1, L"c", L"a|cb"},  // the caret counts what followed before filtering
      {L"a...", 0, 0, L"", L"|a"}};
  for (const auto& [text, start, end, pasted, shown] : rows) {
    edit.SetValue(text);
    edit.SetSel(start, end);
    coregui::SetClipboardText(pasted);
    PressKey(edit, 'V', true);
    EXPECT_EQ(Shown(), shown) << CString(text).ToUtf8() << " + " << CString(pasted).ToUtf8();
  }
  EXPECT_EQ(Beeps(), 0);
  edit.SetValue(L"keep");
  coregui::SetClipboardText(L"1.");
  edit.Paste();
  edit.Undo();
  edit.Undo();
  EXPECT_EQ(edit.GetWindowTextString(), L"keep");
  coregui::EmptyClipboard();
  edit.Paste();
  EXPECT_EQ(edit.GetWindowTextString(), L"keep");
}

TEST_F(NameEdit, ControlVWithoutItsKeyIsARefusedCharacter) {
  coregui::SetClipboardText(L"x");
  edit.SendMessage(WM_CHAR, 22);
  EXPECT_EQ(Beeps(), 1);
  SetKeyState(VK_CONTROL, true);
  edit.SendMessage(WM_CHAR, 22);
  EXPECT_EQ(Beeps(), 1);
  EXPECT_EQ(Shown(), L"x|");
}

TEST_F(NameEdit, OtherShortcutsBeepIsKept) {
  edit.SetValue(L"abc");
  edit.SetSel(0, -1);
  PressKey(edit, 'C', true);
  EXPECT_EQ(Beeps(), 1);
  CString text;
  EXPECT_FALSE(coregui::GetClipboardText(text));
  PressKey(edit, VK_INSERT, true);
  EXPECT_TRUE(coregui::GetClipboardText(text));
  EXPECT_EQ(text, L"abc");
}

TEST_F(NameEdit, ShowsWhatIsSetAndFiltersOnlyItsValue) {
  edit.SetValue(L"a.b c/");
  EXPECT_EQ(edit.GetValue(), L"abc");
  other.SetFocus();
  EXPECT_EQ(edit.GetWindowTextString(), L"a.b c/");
  edit.SetReadOnly();
  coregui::SetClipboardText(L"x");
  edit.Paste();
  EXPECT_EQ(edit.GetWindowTextString(), L"a.b c/");
}

TEST_F(NameEdit, MayBeDestroyedWhenItTells) {
  host.destroys = true;
  coregui::SetClipboardText(L"a.b");
  edit.Paste();
  EXPECT_FALSE(edit.HasWindow());
}

using HexEdit = EditTest<CHexEdit>;

TEST_F(HexEdit, TakesHexDigitsAndShortcuts) {
  const int before = GetBeepCount(MB_ICONASTERISK_SOUND);
  TypeKeys(edit, L"Ff 0g-G");
  DropText(edit, L"x9");
  CommitText(edit, L"\u0663a");
  EXPECT_EQ(edit.GetWindowTextString(), L"Ff 09a");
  EXPECT_EQ(GetBeepCount(MB_ICONASTERISK_SOUND) - before, 5);
  edit.SetSel(0, -1);
  PressKey(edit, 'C', true);
  CString copied;
  EXPECT_TRUE(coregui::GetClipboardText(copied));
  EXPECT_EQ(copied, L"Ff 09a");
  PressKey(edit, VK_BACK);
  EXPECT_EQ(edit.GetWindowTextString(), L"");
  EXPECT_EQ(GetBeepCount(MB_ICONASTERISK_SOUND) - before, 5);
}

TEST_F(HexEdit, PastedTextIsNotFilteredIsKept) {
  coregui::SetClipboardText(L"0xGG");
  PressKey(edit, 'V', true);
  EXPECT_EQ(edit.GetWindowTextString(), L"0xGG");
}

}  // namespace
