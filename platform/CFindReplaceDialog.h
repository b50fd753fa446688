#pragma once

#include "platform/CWnd.h"

inline constexpr DWORD FR_DOWN = 0x01;
inline constexpr DWORD FR_WHOLEWORD = 0x02;
inline constexpr DWORD FR_MATCHCASE = 0x04;

/// The name of the registered message that the dialog sends.
inline constexpr const wchar_t* FINDMSGSTRING = L"commdlg_FindReplace";

/// A number above all others' for a message name; the same for the same name, ignoring case.
COREGUI_API UINT RegisterWindowMessage(const wchar_t* name);

/// The find (and replace) dialog, modeless. For each button a person presses it sends its owner the
/// registered message FINDMSGSTRING, whose second parameter GetNotifier turns into the dialog; the owner asks
/// what is wanted. It sends a last one when it closes (IsTerminating). The object stays the caller's.
class COREGUI_API CFindReplaceDialog : public CWnd {
 public:
  using CWnd::Create;
  /// `owner` must have a native window; the dialog opens over its middle.
  BOOL Create(BOOL findOnly, const wchar_t* find, const wchar_t* replace, DWORD flags, CWnd* owner);
  static CFindReplaceDialog* GetNotifier(LPARAM lParam);
  /// What the check box for whole words says, where something else than words is matched.
  void SetWholeWordText(const wchar_t* text);

  CString GetFindString() const;
  CString GetReplaceString() const;
  BOOL SearchDown() const;
  BOOL MatchCase() const;
  BOOL MatchWholeWord() const;
  // What is wanted, while the message is handled.
  BOOL FindNext() const { return m_action == Action::findNext; }
  BOOL ReplaceCurrent() const { return m_action == Action::replace; }
  BOOL ReplaceAll() const { return m_action == Action::replaceAll; }
  BOOL IsTerminating() const { return m_action == Action::close; }

  enum class Action { none, findNext, replace, replaceAll, close };

 protected:
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override;

 private:
  void Tell(Action action);

  Action m_action = Action::none;
  BOOL m_findOnly = TRUE;
  CString m_find;
  CString m_replace;
  DWORD m_flags = FR_DOWN;
  friend class CFindReplaceWindow;
};
