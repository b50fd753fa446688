#pragma once

#include "platform/CWnd.h"
#include "platform/DialogIds.h"
#include "platform/WindowRef.h"

namespace coregui {
class EventLoop;
}

/// A dialog, modal or modeless. A derived class makes its controls in OnInitDialog (coregui::DialogLayout
/// places them) and sets the size of the client area there or before.
///
/// Keys: Tab and Shift+Tab go round the children with WS_TABSTOP in the order of their creation, the arrows
/// go round those of a group (from a WS_GROUP to the next), Enter presses the button with the focus or the
/// default button, Esc cancels. A child keeps keys for itself by its answer to WM_GETDLGCODE.
class COREGUI_API CDialog : public CWnd {
 public:
  /// `owner`: the window that the dialog stays in front of; null takes the active one.
  explicit CDialog(const wchar_t* caption = L"", CWnd* owner = nullptr);
  ~CDialog() override;

  /// Shows the dialog and keeps the rest of the program waiting. Returns what EndDialog was given; -1 when
  /// the dialog could not be made, IDCANCEL when it ended otherwise (its window destroyed, the program
  /// quits).
  virtual int DoModal();
  /// Makes and shows the dialog beside the rest of the program. Its end destroys the window, not the object.
  BOOL CreateModeless(bool show = true);
  bool IsModal() const { return m_loop != nullptr; }
  /// Closes the dialog; DoModal returns `result`.
  void EndDialog(int result);
  int GetResult() const { return m_result; }

  /// The size of the client area. A shown dialog changes at once.
  void SetClientSize(CSize size);
  /// The button that Enter presses when no button has the focus.
  void SetDefID(UINT id);
  UINT GetDefID() const { return m_default; }
  void NextDlgCtrl() { MoveAlong(GetFocus(), true); }
  void PrevDlgCtrl() { MoveAlong(GetFocus(), false); }
  void GotoDlgCtrl(CWnd* control);

  BOOL DestroyWindow() override;
  BOOL PreTranslateMessage(MSG* message) override;
  const coregui::MessageTable& GetMessageTable() const override;

 protected:
  /// Make the controls here. TRUE: the first control with a tab stop gets the focus; FALSE: it was given
  /// already.
  virtual BOOL OnInitDialog();
  /// The default ends the dialog with IDOK.
  virtual void OnOK();
  /// Also for Esc and the frame's close button. The default ends the dialog with IDCANCEL.
  virtual void OnCancel();
  static const coregui::MessageTable& Messages();

 private:
  void HandleOK();
  void HandleCancel();
  BOOL HandleErase(CDC* dc);
  BOOL MakeWindow(bool modal);
  void Centre();
  bool HandleKey(const MSG& message);
  bool PressEnter(CWnd& from);
  void MoveAlong(CWnd* from, bool forward);
  void MoveInGroup(CWnd* from, bool forward);

  CString m_caption;
  coregui::WindowRef m_owner;
  CSize m_size{320, 200};
  UINT m_default = IDOK;
  int m_result = IDCANCEL;
  coregui::EventLoop* m_loop = nullptr;  ///< borrowed from DoModal, while it runs
};
