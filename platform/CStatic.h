#pragma once

#include "platform/CWnd.h"

/// A text that labels. Wraps between words when aligned left. '&' marks an access key and is not shown; "&&"
/// is one '&'. With SS_NOTIFY a click notifies the parent with STN_CLICKED.
class COREGUI_API CStatic : public CWnd {
 public:
  using CWnd::Create;
  BOOL Create(const wchar_t* text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF);

 protected:
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override;
};
