#pragma once

#include "core/Export.h"
#include "platform/CString.h"
#include "platform/MessageBox.h"
#include "platform/Types.h"

class CWnd;

// The modal boxes of the whole application, so that captions, icons and buttons are the same everywhere and
// an automated run can answer them. Each function exists for a native window and for a window object as
// owner; a null window object stands for the desktop. Texts are shown as they are, never read as a format,
// and a null text is empty. A box that cannot be shown, or whose owner is destroyed under it, gives 0 where a
// result is returned.
//
// Scripted answers: the profile entry "PopupChoiceId" of section "UnitTesting" is a queue of up to four
// button ids, one in each byte, the lowest byte first. ConfirmMessage, CustomMessage, ErrorMessage,
// WarningMessage and InfoMessage each take one byte off the queue; when it is not 0, nothing is shown and it
// is the answer.

/// A button of the caller's own.
struct _MsgBoxButtons {  // NOLINT(bugprone-reserved-identifier): callers use this name
  DWORD id = 0;          ///< the box's result when the button is pressed
  DWORD textId = 0;      ///< which text it shows, see coregui::SetButtonText
};

namespace coregui {

/// How many buttons of the caller's own a box can have.
inline constexpr int kMostCustomButtons = 4;

/// Sets the text ('&' marks the access key) that custom buttons with `textId` show; null takes it away. To be
/// called at start-up, before a box needs it. Without a text, a button shows what the well-known button of
/// that number does (IDOK to IDNO), or else the number itself.
COREGUI_API void SetButtonText(DWORD textId, const wchar_t* text);

}  // namespace coregui

/// Asks "Confirmation" with the buttons Yes and No and a question icon, or a stop icon with `bStop`. Returns
/// IDYES, IDNO or the scripted answer.
COREGUI_API int ConfirmMessage(const wchar_t* text, HWND owner, bool bStop = false);
COREGUI_API int ConfirmMessage(const wchar_t* text, CWnd* owner = nullptr, bool bStop = false);

/// A box with the caller's caption and style (MB_ values). Returns the button's id or the scripted answer.
COREGUI_API int CustomMessage(const wchar_t* text, const wchar_t* caption, UINT style, HWND owner);
COREGUI_API int CustomMessage(const wchar_t* text, const wchar_t* caption, UINT style, CWnd* owner = nullptr);

/// The same with a check box, which starts unchecked whatever `checked` holds; `checked` receives its final
/// state, 0 or 1. No scripted answers.
COREGUI_API int CustomMessageAndCheck(const wchar_t* text, const wchar_t* caption, UINT style,
                                      const wchar_t* checkText, UINT& checked, HWND owner);
COREGUI_API int CustomMessageAndCheck(const wchar_t* text, const wchar_t* caption, UINT style,
                                      const wchar_t* checkText, UINT& checked, CWnd* owner = nullptr);

/// A box with the caller's own buttons in place of those of the style. At most kMostCustomButtons: more are a
/// mistake of the caller's that debug builds stop at; others show the first ones. With none (a count below 1,
/// a null array) the box has the buttons of its style. No scripted answers.
COREGUI_API int CustomButtonsMessage(const wchar_t* text, const wchar_t* caption, UINT style, int count,
                                     const _MsgBoxButtons* buttons, HWND owner);
COREGUI_API int CustomButtonsMessage(const wchar_t* text, const wchar_t* caption, UINT style, int count,
                                     const _MsgBoxButtons* buttons, CWnd* owner = nullptr);

/// Own buttons and a check box, both as above.
COREGUI_API int CustomButtonsMessageAndCheck(const wchar_t* text, const wchar_t* caption, UINT style,
                                             const wchar_t* checkText, UINT& checked, int count,
                                             const _MsgBoxButtons* buttons, HWND owner);
COREGUI_API int CustomButtonsMessageAndCheck(const wchar_t* text, const wchar_t* caption, UINT style,
                                             const wchar_t* checkText, UINT& checked, int count,
                                             const _MsgBoxButtons* buttons, CWnd* owner = nullptr);

/// "Error" with a stop icon and the button OK.
COREGUI_API void ErrorMessage(const wchar_t* text, HWND owner);
COREGUI_API void ErrorMessage(const wchar_t* text, CWnd* owner = nullptr);
/// "Warning" with a warning icon and the button OK.
COREGUI_API void WarningMessage(const wchar_t* text, HWND owner);
COREGUI_API void WarningMessage(const wchar_t* text, CWnd* owner = nullptr);
/// "Information" with an information icon and the button OK.
COREGUI_API void InfoMessage(const wchar_t* text, HWND owner);
COREGUI_API void InfoMessage(const wchar_t* text, CWnd* owner = nullptr);

/// What the calling thread's last error says of a failed operation: "Open failed with error 2: No such file
/// or directory". The error is read before anything else, so call this first after the failure.
COREGUI_API CString GetLastErrorMessage(const wchar_t* operation);

/// Shows that text with a stop icon: under `caption`, or, when that is null, as ErrorMessage does.
COREGUI_API void ShowLastErrorMessage(HWND owner, const wchar_t* operation, const wchar_t* caption);
COREGUI_API void ShowLastErrorMessage(CWnd* owner, const wchar_t* operation,
                                      const wchar_t* caption = nullptr);
