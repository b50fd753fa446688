#pragma once

#include "platform/CWnd.h"

inline constexpr int LB_ERR = -1;

/// A list of texts to choose from. LBS_SORT keeps it sorted, LBS_MULTIPLESEL lets several be chosen. Notifies
/// its parent with LBN_SELCHANGE and LBN_DBLCLK when a person acts. Indexes count from 0; LB_ERR is no item.
/// The items live in the native window: before it is created there are none and none can be added (LB_ERR).
class COREGUI_API CListBox : public CWnd {
 public:
  using CWnd::Create;
  BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

  int GetCount() const;
  /// Returns the new item's index.
  int AddString(const wchar_t* text);
  /// At an index, sorted or not; -1: at the end. LB_ERR for an index beyond the end.
  int InsertString(int index, const wchar_t* text);
  /// Returns how many are left, or LB_ERR.
  int DeleteString(int index);
  void ResetContent();
  /// The item's text; its length, or LB_ERR with `text` unchanged.
  int GetText(int index, CString& text) const;
  /// The first item behind `after` (-1: from the start; the search goes round) that begins with the text,
  /// ignoring case.
  int FindString(int after, const wchar_t* text) const;
  int FindStringExact(int after, const wchar_t* text) const;
  /// The chosen item, with several: the one with the focus.
  int GetCurSel() const;
  /// -1 chooses none.
  int SetCurSel(int index);
  bool GetSel(int index) const;
  void SetSel(int index, BOOL select = TRUE);
  int GetSelCount() const;
  /// A value of the caller's kept with the item; 0 at first.
  LPARAM GetItemData(int index) const;
  void SetItemData(int index, LPARAM data);

 protected:
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override;
};
