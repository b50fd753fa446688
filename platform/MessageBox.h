#pragma once

#include <vector>

#include "core/Export.h"
#include "platform/CString.h"
#include "platform/DialogIds.h"
#include "platform/Types.h"

class CWnd;

// Styles of a message box, with the well-known values.
inline constexpr UINT MB_OK = 0x00;
inline constexpr UINT MB_OKCANCEL = 0x01;
inline constexpr UINT MB_ABORTRETRYIGNORE = 0x02;
inline constexpr UINT MB_YESNOCANCEL = 0x03;
inline constexpr UINT MB_YESNO = 0x04;
inline constexpr UINT MB_RETRYCANCEL = 0x05;
inline constexpr UINT MB_TYPEMASK = 0x0F;
inline constexpr UINT MB_ICONSTOP = 0x10;
inline constexpr UINT MB_ICONQUESTION = 0x20;
inline constexpr UINT MB_ICONWARNING = 0x30;
inline constexpr UINT MB_ICONINFORMATION = 0x40;
inline constexpr UINT MB_ICONMASK = 0xF0;
inline constexpr UINT MB_DEFBUTTON2 = 0x100;
inline constexpr UINT MB_DEFBUTTON3 = 0x200;
inline constexpr UINT MB_DEFBUTTON4 = 0x300;
inline constexpr UINT MB_DEFMASK = 0xF00;

namespace coregui {

/// A button of the caller's own.
struct MessageBoxButton {
  UINT id = 0;  ///< the result when it is pressed
  CString text;
};

/// What a message box shows.
struct MessageBoxParams {
  CWnd* owner = nullptr;  ///< null or the desktop: none
  CString text;
  CString caption;
  UINT style = MB_OK;
  CString checkText;        ///< empty: no check box
  UINT* checked = nullptr;  ///< the check box's state, in and out; null: unchecked, and not told
  /// In place of the style's buttons, when there are any; at most four are shown.
  std::vector<MessageBoxButton> buttons;
};

/// Shows a modal box; returns the pressed button's id. Closing it or Esc answers Cancel where there is such a
/// button, OK where it is the only one, else nothing closes it but a button. 0 when it cannot be shown, or
/// its owner was destroyed under it. The text is plain, and scrolled where it would leave no room for the
/// buttons on the screen.
COREGUI_API int ShowMessageBox(const MessageBoxParams& params);

}  // namespace coregui
