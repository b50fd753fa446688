#include "dialogs/MessageFunctions.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <map>
#include <new>
#include <vector>

#include "platform/CWnd.h"
#include "platform/Profile.h"
#include "platform/System.h"

using coregui::MessageBoxButton;
using coregui::MessageBoxParams;

namespace {

HWND HandleOf(CWnd* owner) {
  return (owner == nullptr ? CWnd::GetDesktopWindow() : owner)->GetSafeHwnd();
}

MessageBoxParams Params(const wchar_t* text, const wchar_t* caption, UINT style, HWND owner) {
  MessageBoxParams params;
  params.owner = CWnd::FromHandle(owner);
  params.text = text;
  params.caption = caption;
  params.style = style;
  return params;
}

/// The next answer of the queue; 0: there is none and the box is to be shown.
int TakeScriptedAnswer() {
  constexpr const wchar_t* kSection = L"UnitTesting";
  constexpr const wchar_t* kEntry = L"PopupChoiceId";
  coregui::Profile& profile = coregui::Profile::Get();
  // Unsigned, so that an answer from 0x80 on in the highest byte is not repeated for ever.
  const auto queue = static_cast<std::uint32_t>(profile.GetInt(kSection, kEntry, 0));
  profile.WriteInt(kSection, kEntry, static_cast<int>(queue >> 8U));
  return LOBYTE(queue);
}

int ShowUnlessScripted(const wchar_t* text, const wchar_t* caption, UINT style, HWND owner) {
  const int answer = TakeScriptedAnswer();
  return answer != 0 ? answer : ShowMessageBox(Params(text, caption, style, owner));
}

void AddCheck(MessageBoxParams& params, const wchar_t* checkText, UINT& checked) {
  // Kept: the box starts unchecked whatever the caller passed in; callers hand over the result of an earlier
  // box without looking at it.
  checked = 0;
  params.checkText = checkText;
  params.checked = &checked;
}

std::map<DWORD, CString>& ButtonTexts() {
  static std::map<DWORD, CString> texts;
  return texts;
}

CString TextOfButton(DWORD textId) {
  if (const auto own = ButtonTexts().find(textId); own != ButtonTexts().end()) return own->second;
  constexpr const wchar_t* kWellKnown[] = {nullptr,   L"OK",      L"Cancel", L"&Abort",
                                           L"&Retry", L"&Ignore", L"&Yes",   L"&No"};
  if (textId >= IDOK && textId <= IDNO) return kWellKnown[textId];
  return CString::Formatted(L"%u", textId);
}

void AddButtons(MessageBoxParams& params, int count, const _MsgBoxButtons* buttons) {
  assert(count <= coregui::kMostCustomButtons && "a message box has room for four buttons of the caller's");
  if (buttons == nullptr) return;
  for (int i = 0; i < std::min(count, coregui::kMostCustomButtons); ++i) {
    params.buttons.push_back(MessageBoxButton{buttons[i].id, TextOfButton(buttons[i].textId)});
  }
}

CString ErrorMessageOf(const wchar_t* operation, DWORD error) {
  const auto number = static_cast<unsigned long>(error);
  try {
    return CString::Formatted(L"%s failed with error %lu: %s", operation, number,
                              GetErrorText(error).GetString());
  } catch (const std::bad_alloc&) {
    return CString::Formatted(L"%s failed with error %lu\nUnable to retrieve error message", operation,
                              number);
  }
}

}  // namespace

void coregui::SetButtonText(DWORD textId, const wchar_t* text) {
  if (text == nullptr) {
    ButtonTexts().erase(textId);
  } else {
    ButtonTexts()[textId] = text;
  }
}

int ConfirmMessage(const wchar_t* text, HWND owner, bool bStop) {
  const UINT icon = bStop ? MB_ICONSTOP : MB_ICONQUESTION;
  return ShowUnlessScripted(text, L"Confirmation", MB_YESNO | icon, owner);
}

int ConfirmMessage(const wchar_t* text, CWnd* owner, bool bStop) {
  return ConfirmMessage(text, HandleOf(owner), bStop);
}

int CustomMessage(const wchar_t* text, const wchar_t* caption, UINT style, HWND owner) {
  return ShowUnlessScripted(text, caption, style, owner);
}

int CustomMessage(const wchar_t* text, const wchar_t* caption, UINT style, CWnd* owner) {
  return CustomMessage(text, caption, style, HandleOf(owner));
}

int CustomMessageAndCheck(const wchar_t* text, const wchar_t* caption, UINT style, const wchar_t* checkText,
                          UINT& checked, HWND owner) {
  MessageBoxParams params = Params(text, caption, style, owner);
  AddCheck(params, checkText, checked);
  return ShowMessageBox(params);
}

int CustomMessageAndCheck(const wchar_t* text, const wchar_t* caption, UINT style, const wchar_t* checkText,
                          UINT& checked, CWnd* owner) {
  return CustomMessageAndCheck(text, caption, style, checkText, checked, HandleOf(owner));
}

int CustomButtonsMessage(const wchar_t* text, const wchar_t* caption, UINT style, int count,
                         const _MsgBoxButtons* buttons, HWND owner) {
  MessageBoxParams params = Params(text, caption, style, owner);
  AddButtons(params, count, buttons);
  return ShowMessageBox(params);
}

int CustomButtonsMessage(const wchar_t* text, const wchar_t* caption, UINT style, int count,
                         const _MsgBoxButtons* buttons, CWnd* owner) {
  return CustomButtonsMessage(text, caption, style, count, buttons, HandleOf(owner));
}

int CustomButtonsMessageAndCheck(const wchar_t* text, const wchar_t* caption, UINT style,
                                 const wchar_t* checkText, UINT& checked, int count,
                                 const _MsgBoxButtons* buttons, HWND owner) {
  MessageBoxParams params = Params(text, caption, style, owner);
  AddCheck(params, checkText, checked);
  AddButtons(params, count, buttons);
  return ShowMessageBox(params);
}

int CustomButtonsMessageAndCheck(const wchar_t* text, const wchar_t* caption, UINT style,
                                 const wchar_t* checkText, UINT& checked, int count,
                                 const _MsgBoxButtons* buttons, CWnd* owner) {
  return CustomButtonsMessageAndCheck(text, caption, style, checkText, checked, count, buttons,
                                      HandleOf(owner));
}

void ErrorMessage(const wchar_t* text, HWND owner) {
  ShowUnlessScripted(text, L"Error", MB_OK | MB_ICONSTOP, owner);
}

void ErrorMessage(const wchar_t* text, CWnd* owner) {
  ErrorMessage(text, HandleOf(owner));
}

void WarningMessage(const wchar_t* text, HWND owner) {
  ShowUnlessScripted(text, L"Warning", MB_OK | MB_ICONWARNING, owner);
}

void WarningMessage(const wchar_t* text, CWnd* owner) {
  WarningMessage(text, HandleOf(owner));
}

void InfoMessage(const wchar_t* text, HWND owner) {
  ShowUnlessScripted(text, L"Information", MB_OK | MB_ICONINFORMATION, owner);
}

void InfoMessage(const wchar_t* text, CWnd* owner) {
  InfoMessage(text, HandleOf(owner));
}

CString GetLastErrorMessage(const wchar_t* operation) {
  return ErrorMessageOf(operation, GetLastError());
}

void ShowLastErrorMessage(HWND owner, const wchar_t* operation, const wchar_t* caption) {
  const CString text = GetLastErrorMessage(operation);
  if (caption == nullptr) {
    ErrorMessage(text, owner);
  } else {
    ShowMessageBox(Params(text, caption, MB_OK | MB_ICONSTOP, owner));
  }
}

void ShowLastErrorMessage(CWnd* owner, const wchar_t* operation, const wchar_t* caption) {
  const DWORD error = GetLastError();
  const HWND handle = HandleOf(owner);
  SetLastError(error);
  ShowLastErrorMessage(handle, operation, caption);
}
