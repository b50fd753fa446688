#pragma once

#include <map>

#include "platform/CTreeCtrl.h"

/// A tree whose items have looks of their own: the colours of text and ground, bold text, and a check box for
/// single items. What an item does not set follows the theme. Items are deleted through this class, so that
/// it forgets their looks.
class COREGUI_API CCustomTreeCtrl : public CTreeCtrl {
 public:
  static constexpr COLORREF kThemeColour = TreeItemLook::kThemeColour;

  void SetItemColor(HTREEITEM item, COLORREF text);
  COLORREF GetItemColor(HTREEITEM item) const { return Look(item).text; }
  void SetItemBkColor(HTREEITEM item, COLORREF ground);
  COLORREF GetItemBkColor(HTREEITEM item) const { return Look(item).ground; }
  void SetItemBold(HTREEITEM item, bool bold = true);
  bool IsItemBold(HTREEITEM item) const { return Look(item).bold; }
  /// A person's click on the box notifies the parent with TVN_ITEMCHECKED.
  void SetItemCheckBox(HTREEITEM item, bool has = true);
  bool HasItemCheckBox(HTREEITEM item) const;
  /// Checks or clears all items below that have a check box. Notifies nobody.
  void CheckBelow(HTREEITEM item, BOOL checked);

  BOOL DeleteItem(HTREEITEM item);
  void DeleteAllItems();

  const coregui::MessageTable& GetMessageTable() const override;

 private:
  TreeItemLook Look(HTREEITEM item) const;
  template <class T>
  void Set(HTREEITEM item, T TreeItemLook::*part, T value);
  LRESULT HandleCreate(WPARAM wParam, LPARAM lParam);
  void Forget(HTREEITEM item);

  std::map<HTREEITEM, TreeItemLook> m_looks;  ///< of items that are not plain
};
