#pragma once

#include "platform/CWnd.h"

// States of a check or radio button.
inline constexpr int BST_UNCHECKED = 0;
inline constexpr int BST_CHECKED = 1;
inline constexpr int BST_INDETERMINATE = 2;

/// A button of any kind: push button, default button, check box, check box with a third state, radio button,
/// and the frame around a group. The low four bits of the style are the BS_ kind.
///
/// Notifies its parent with BN_CLICKED when a person (or Click) presses it. Radio buttons that are created
/// one after the other exclude each other up to the next one with WS_GROUP. A text's '&' marks its access
/// key. The state lives in the native window: before it is created nothing is checked, and cannot be.
class COREGUI_API CButton : public CWnd {
 public:
  using CWnd::Create;
  BOOL Create(const wchar_t* text, DWORD style, const RECT& rect, CWnd* parent, UINT id);

  int GetCheck() const;
  /// Changes the state without a notification.
  void SetCheck(int state);
  /// Presses the button as a person would; nothing when it is disabled.
  void Click();
  /// Makes a push button the one that Enter presses in its dialog.
  void SetDefault(BOOL on);

 protected:
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override;
  /// A person (or Click) pressed it. The default notifies the parent with BN_CLICKED.
  virtual void OnPressed();
};
