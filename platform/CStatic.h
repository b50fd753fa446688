#pragma once

#include "platform/CWnd.h"

/// A text that labels. Wraps between words when aligned left. It names the control that is created right
/// after it in the same parent, if that is no button: its access key, marked by '&', gives that control the
/// focus, and a screen reader speaks it. "&&" is one '&'. With SS_NOTIFY a click notifies the parent with
/// STN_CLICKED.
class COREGUI_API CStatic : public CWnd {
 public:
  using CWnd::Create;
  BOOL Create(const wchar_t* text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF);

 protected:
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override;
};
