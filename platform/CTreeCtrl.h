#pragma once

#include "platform/CWnd.h"

/// One item of a tree, opaque; null is none. Valid until the item is deleted.
struct coregui_tree_item;
using HTREEITEM = coregui_tree_item*;

inline constexpr DWORD TVS_CHECKBOXES = 0x100;
inline constexpr DWORD TVS_EDITLABELS = 0x008;

// Where InsertItem puts an item, and commands of Expand.
enum class TreePlace { first, last, sorted };
inline constexpr UINT TVE_COLLAPSE = 1;
inline constexpr UINT TVE_EXPAND = 2;
inline constexpr UINT TVE_TOGGLE = 3;

// Notification codes in WM_COMMAND, when a person acts; code that selects notifies too.
inline constexpr int TVN_SELCHANGED = 1;
inline constexpr int TVN_ITEMEXPANDED = 2;
inline constexpr int TVN_ITEMCHECKED = 3;
inline constexpr int TVN_ENDLABELEDIT = 4;
inline constexpr int TVN_DBLCLK = 5;

/// How an item looks.
struct TreeItemLook {
  static constexpr COLORREF kThemeColour = 0xFFFFFFFF;  ///< no colour of its own: follows the theme
  COLORREF text = kThemeColour;
  COLORREF ground = kThemeColour;
  bool bold = false;
  bool checkBox = false;  ///< has a check box, also without TVS_CHECKBOXES
};

/// A tree of texts. Its items live in the native window and go with it.
class COREGUI_API CTreeCtrl : public CWnd {
 public:
  using CWnd::Create;
  BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

  /// Under a parent (null: at the root). Null without a native window.
  HTREEITEM InsertItem(const wchar_t* text, HTREEITEM parent = nullptr, TreePlace place = TreePlace::last);
  /// Directly behind a sibling.
  HTREEITEM InsertItemAfter(const wchar_t* text, HTREEITEM sibling);
  /// With all below it.
  BOOL DeleteItem(HTREEITEM item);
  void DeleteAllItems();
  int GetCount() const;
  CString GetItemText(HTREEITEM item) const;
  void SetItemText(HTREEITEM item, const wchar_t* text);
  LPARAM GetItemData(HTREEITEM item) const;
  void SetItemData(HTREEITEM item, LPARAM data);
  BOOL GetCheck(HTREEITEM item) const;
  void SetCheck(HTREEITEM item, BOOL checked = TRUE);
  HTREEITEM GetRootItem() const;
  HTREEITEM GetChildItem(HTREEITEM item) const;
  HTREEITEM GetNextSiblingItem(HTREEITEM item) const;
  HTREEITEM GetParentItem(HTREEITEM item) const;
  HTREEITEM GetSelectedItem() const;
  BOOL SelectItem(HTREEITEM item);
  BOOL Expand(HTREEITEM item, UINT command);
  BOOL IsExpanded(HTREEITEM item) const;
  void EnsureVisible(HTREEITEM item);

 protected:
  void SetItemLook(HTREEITEM item, const TreeItemLook& look);
  /// A grey text in the middle of a tree without items, which a screen reader speaks too.
  void SetEmptyText(const wchar_t* text);
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override;
};
