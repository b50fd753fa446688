#pragma once

#include "platform/CWnd.h"

/// A box to edit text in: one line, or several with ES_MULTILINE. The toolkit's own line or text editor shows
/// it, with its keyboard, input method, undo and context menu.
///
/// Every character that would enter the text by key, input method or drop first arrives as WM_CHAR; pasting
/// by key or menu arrives as WM_PASTE, cutting, copying, clearing and undoing as their messages. A derived
/// class that handles one of these and does not call the default keeps it from the text.
///
/// Notifies its parent with EN_CHANGE (after every change, by code as well), EN_SETFOCUS and EN_KILLFOCUS.
/// Positions count characters. Without a native window there is only the window's text.
class COREGUI_API CEdit : public CWnd {
 public:
  using CWnd::Create;
  /// Styles: ES_ values; WS_BORDER draws the frame.
  BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

  /// The selection; start is never behind end. Both the caret's place when nothing is selected.
  void GetSel(int& start, int& end) const;
  /// Selects from `start` to `end`, where the caret goes. An end of -1 is the text's end; a start of -1 takes
  /// the selection away.
  void SetSel(int start, int end);
  /// Puts the text in place of the selection, the caret behind it.
  void ReplaceSel(const wchar_t* text, BOOL canUndo = FALSE);
  /// The longest text that can be typed or pasted; 0: no limit. A longer text that is there is cut off.
  void SetLimitText(UINT length);
  UINT GetLimitText() const;
  BOOL SetReadOnly(BOOL readOnly = TRUE);
  /// The length of the line that holds the character at an index. With -1: of the line with the caret, less
  /// what is selected.
  int LineLength(int index = -1) const;
  int GetLineCount() const;
  /// Shows the caret's place.
  void ScrollCaret();
  /// Grey text that an empty box shows.
  void SetCueBanner(const wchar_t* text);
  /// Blank space left and right of the text, in logical pixels.
  void SetMargins(int left, int right);
  void SetPassword(BOOL hidden);

  BOOL CanUndo() const;
  BOOL Undo();
  void EmptyUndoBuffer();
  /// Whether a person changed the text since SetModify(FALSE) or the last SetWindowText.
  BOOL GetModify() const;
  void SetModify(BOOL modified = TRUE);
  void Cut() { SendMessage(WM_CUT); }
  void Copy() { SendMessage(WM_COPY); }
  void Paste() { SendMessage(WM_PASTE); }
  void Clear() { SendMessage(WM_CLEAR); }

 protected:
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override;
};
