#include "platform/CEdit.h"

#include <algorithm>
#include <limits>

#include "platform/qt/Application.h"
#include "platform/qt/EditWindow.h"

using coregui::EditWindow;
using coregui::NativeOf;

namespace {

/// Characters in front of an offset, and back: a character outside the base plane takes two units.
int CharactersBefore(const QString& text, int offset) {
  return static_cast<int>(text.left(offset).toStdWString().size());
}

int OffsetOf(const QString& text, int characters) {
  const std::wstring wide = text.toStdWString();
  const std::size_t count = std::min(static_cast<std::size_t>(std::max(characters, 0)), wide.size());
  return static_cast<int>(QString::fromStdWString(wide.substr(0, count)).size());
}

}  // namespace

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  return Create(L"EDIT", L"", style, rect, parent, id);
}

std::unique_ptr<coregui::NativeWindow> CEdit::MakeNative(const CREATESTRUCT& create) {
  coregui::EnsureApplication();
  const bool lines = (create.style & ES_MULTILINE) != 0;
  return lines ? coregui::MakeTextEdit(*this, create) : coregui::MakeLineEdit(*this, create);
}

void CEdit::GetSel(int& start, int& end) const {
  start = end = 0;
  if (const auto* edit = NativeOf<EditWindow>(*this)) {
    const QString text = edit->Text();
    start = CharactersBefore(text, edit->SelectionStart());
    end = CharactersBefore(text, edit->SelectionEnd());
  }
}

void CEdit::SetSel(int start, int end) {
  auto* edit = NativeOf<EditWindow>(*this);
  if (edit == nullptr) return;
  const QString text = edit->Text();
  if (start < 0) {
    edit->Select(edit->SelectionEnd(), edit->SelectionEnd());
    return;
  }
  const int last = end < 0 ? static_cast<int>(text.size()) : OffsetOf(text, end);
  edit->Select(OffsetOf(text, start), last);
}

void CEdit::ReplaceSel(const wchar_t* text, BOOL canUndo) {
  auto* edit = NativeOf<EditWindow>(*this);
  if (edit == nullptr) return;
  edit->Insert(coregui::ToQt(text));
  edit = NativeOf<EditWindow>(*this);  // the parent may have destroyed the box when it heard of the change
  if (canUndo == FALSE && edit != nullptr) edit->ForgetUndo();
}

void CEdit::SetLimitText(UINT length) {
  auto* edit = NativeOf<EditWindow>(*this);
  if (edit == nullptr) return;
  constexpr UINT kLongest = std::numeric_limits<int>::max();
  edit->limit = length;
  edit->SetLimit(static_cast<int>(length == 0 ? kLongest : std::min(length, kLongest)));
}

UINT CEdit::GetLimitText() const {
  const auto* edit = NativeOf<EditWindow>(*this);
  return edit == nullptr ? 0 : edit->limit;
}

BOOL CEdit::SetReadOnly(BOOL readOnly) {
  return ModifyStyle(readOnly != FALSE ? 0 : ES_READONLY, readOnly != FALSE ? ES_READONLY : 0);
}

int CEdit::LineLength(int index) const {
  const std::wstring text = GetWindowTextString().Str();
  int start = 0;
  int end = 0;
  GetSel(start, end);
  const std::size_t at = std::min(static_cast<std::size_t>(index < 0 ? start : index), text.size());
  const std::size_t before = at == 0 ? std::wstring::npos : text.rfind(L'\n', at - 1);
  const std::size_t first = before == std::wstring::npos ? 0 : before + 1;
  const std::size_t behind = text.find(L'\n', index < 0 ? std::max(at, static_cast<std::size_t>(end)) : at);
  const std::size_t last = behind == std::wstring::npos ? text.size() : behind;
  return static_cast<int>(last - first) - (index < 0 ? end - start : 0);
}

int CEdit::GetLineCount() const {
  const std::wstring text = GetWindowTextString().Str();
  return 1 + static_cast<int>(std::count(text.begin(), text.end(), L'\n'));
}

void CEdit::ScrollCaret() {
  if (auto* edit = NativeOf<EditWindow>(*this)) edit->ShowCaret();
}

void CEdit::SetCueBanner(const wchar_t* text) {
  if (auto* edit = NativeOf<EditWindow>(*this)) edit->SetHint(coregui::ToQt(text));
}

void CEdit::SetMargins(int left, int right) {
  if (auto* edit = NativeOf<EditWindow>(*this)) edit->SetMargins(left, right);
}

void CEdit::SetPassword(BOOL hidden) {
  ModifyStyle(hidden != FALSE ? 0 : ES_PASSWORD, hidden != FALSE ? ES_PASSWORD : 0);
}

BOOL CEdit::CanUndo() const {
  const auto* edit = NativeOf<EditWindow>(*this);
  return edit != nullptr && edit->CanUndo() ? TRUE : FALSE;
}

BOOL CEdit::Undo() {
  if (CanUndo() == FALSE) return FALSE;
  SendMessage(WM_UNDO);
  return TRUE;
}

void CEdit::EmptyUndoBuffer() {
  if (auto* edit = NativeOf<EditWindow>(*this)) edit->ForgetUndo();
}

BOOL CEdit::GetModify() const {
  const auto* edit = NativeOf<EditWindow>(*this);
  return edit != nullptr && edit->IsModified() ? TRUE : FALSE;
}

void CEdit::SetModify(BOOL modified) {
  if (auto* edit = NativeOf<EditWindow>(*this)) edit->SetModified(modified != FALSE);
}
