#pragma once

#include "platform/CEdit.h"

/// A one-line box for the name of a drawing entity. It lets in only the characters that names of that kind
/// may contain, whether they are typed, pasted, dropped or come from an input method, and gives its value
/// back filtered. SetValue shows any text.
class COREGUI_API CNameEdit : public CEdit {
 public:
  /// The characters that the names of an entity kind may contain. `kind` is compared ignoring case; an
  /// unknown one, the empty one included, gets letters, blank, '$', '-' and '_'. Needs no window.
  static CString GetAllowedCharacters(const CString& kind);

  /// Empty, as at the start: every character is allowed.
  void SetAllowedCharacters(const CString& characters) { m_allowed = characters; }
  /// Shows the text as it is.
  void SetValue(const CString& value) { SetWindowText(value); }
  /// The text without the characters that are not allowed; the box keeps showing all of them.
  CString GetValue() const;

  const coregui::MessageTable& GetMessageTable() const override;

 protected:
  void OnChar(UINT character, UINT repeat, UINT flags);
  LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
  /// The text shown stays as it is: only pasting rewrites it.
  void OnKillFocus(CWnd* next);
  void OnContextMenu(CWnd* window, CPoint screen);

 private:
  bool IsAllowed(wchar_t character) const;
  CString Filtered(const CString& text) const;

  CString m_allowed;
};
