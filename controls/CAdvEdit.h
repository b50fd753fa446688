#pragma once

#include "platform/CEdit.h"

/// Notification of an advanced edit box: a person pressed Enter in it.
inline constexpr int AEN_RETURN = 0x0501;

/// An edit box that helps the person who fills it in:
/// - while it is empty it shows a grey prompt, and a screen reader speaks the prompt when the box has no name
///   of its own;
/// - when it gets the focus by key or by code, all its text is selected (a click puts the caret);
/// - Enter tells the parent with AEN_RETURN, and then presses the dialog's default button unless
///   SetKeepReturn;
/// - Esc puts back the text that it had when it got the focus; a second Esc is the dialog's.
class COREGUI_API CAdvEdit : public CEdit {
 public:
  void SetPrompt(const wchar_t* prompt);
  CString GetPrompt() const { return m_prompt; }
  /// Whether getting the focus selects the text; it does at the start.
  void SetSelectOnFocus(bool select) { m_selects = select; }
  /// Whether Enter stops at the box; it does not at the start.
  void SetKeepReturn(bool keep) { m_keepsReturn = keep; }
  /// Puts back the text that the box had when it got the focus. False when that is what it shows.
  bool Revert();

  BOOL PreTranslateMessage(MSG* message) override;
  const coregui::MessageTable& GetMessageTable() const override;

 protected:
  void OnSetFocus(CWnd* before);
  static const coregui::MessageTable& Messages();

 private:
  LRESULT HandleCreate(WPARAM wParam, LPARAM lParam);

  CString m_prompt;
  CString m_before;  ///< the text when the box got the focus
  bool m_selects = true;
  bool m_keepsReturn = false;
};
