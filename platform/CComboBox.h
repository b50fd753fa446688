#pragma once

#include "platform/CWnd.h"

class CDC;

inline constexpr int CB_ERR = -1;
inline constexpr int CBN_KILLFOCUS = 4;
inline constexpr int CBN_SETFOCUS = 3;

/// A list that drops down from the chosen item, or from an edit box (CBS_DROPDOWN, CBS_SIMPLE). CBS_SORT
/// keeps it sorted. Notifies its parent with CBN_SELCHANGE (a person chose), CBN_EDITCHANGE, CBN_DROPDOWN,
/// CBN_CLOSEUP, CBN_SETFOCUS and CBN_KILLFOCUS. Characters typed into the edit box arrive as WM_CHAR first.
/// Indexes count from 0; CB_ERR is no item. The items live in the native window: before it is created there
/// are none and none can be added (CB_ERR). What is not said here is as in CListBox.
class COREGUI_API CComboBox : public CWnd {
 public:
  using CWnd::Create;
  BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

  int GetCount() const;
  int AddString(const wchar_t* text);
  int InsertString(int index, const wchar_t* text);
  int DeleteString(int index);
  void ResetContent();
  int GetLBText(int index, CString& text) const;
  int FindString(int after, const wchar_t* text) const;
  int FindStringExact(int after, const wchar_t* text) const;
  int GetCurSel() const;
  /// Chooses without a notification; -1 none. CB_ERR for an index that is none.
  int SetCurSel(int index);
  /// Chooses the first item behind `after` that begins with the text.
  int SelectString(int after, const wchar_t* text);
  LPARAM GetItemData(int index) const;
  void SetItemData(int index, LPARAM data);
  void ShowDropDown(BOOL show = TRUE);
  BOOL GetDroppedState() const;
  /// Of the edit box; 0: no limit.
  void LimitText(UINT length);
  void SetDroppedWidth(int pixels);

 protected:
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override;
  /// With CBS_OWNERDRAWFIXED: draws one item, background included; `index` may be -1 for the closed box
  /// without a choice. The default draws the text in the system's colours.
  virtual void DrawItem(CDC& dc, const RECT& rect, int index, bool selected);
  /// With CBS_OWNERDRAWFIXED: the height of the items; 0 takes that of the font.
  virtual int GetItemHeight() const { return 0; }

 private:
  friend class CComboBoxDelegate;
};
