#include "controls/CCustomTreeCtrl.h"

TreeItemLook CCustomTreeCtrl::Look(HTREEITEM item) const {
  const auto found = m_looks.find(item);
  return found == m_looks.end() ? TreeItemLook() : found->second;
}

template <class T>
void CCustomTreeCtrl::Set(HTREEITEM item, T TreeItemLook::*part, T value) {
  if (item == nullptr || !HasWindow()) return;
  TreeItemLook& look = m_looks[item];
  look.*part = value;
  SetItemLook(item, look);
}

void CCustomTreeCtrl::SetItemColor(HTREEITEM item, COLORREF text) {
  Set(item, &TreeItemLook::text, text);
}

void CCustomTreeCtrl::SetItemBkColor(HTREEITEM item, COLORREF ground) {
  Set(item, &TreeItemLook::ground, ground);
}

void CCustomTreeCtrl::SetItemBold(HTREEITEM item, bool bold) {
  Set(item, &TreeItemLook::bold, bold);
}

void CCustomTreeCtrl::SetItemCheckBox(HTREEITEM item, bool has) {
  Set(item, &TreeItemLook::checkBox, has);
}

/// The items of a window before are gone; the new ones may have their handles.
LRESULT CCustomTreeCtrl::HandleCreate(WPARAM /*wParam*/, LPARAM /*lParam*/) {
  m_looks.clear();
  return Default();
}

const coregui::MessageTable& CCustomTreeCtrl::GetMessageTable() const {
  static const coregui::MessageTable table =
      coregui::MessageTable(CTreeCtrl::Messages()).On<WM_CREATE>(&CCustomTreeCtrl::HandleCreate);
  return table;
}

bool CCustomTreeCtrl::HasItemCheckBox(HTREEITEM item) const {
  return item != nullptr && (Look(item).checkBox || (GetStyle() & TVS_CHECKBOXES) != 0);
}

void CCustomTreeCtrl::CheckBelow(HTREEITEM item, BOOL checked) {
  if (item == nullptr) return;
  for (HTREEITEM child = GetChildItem(item); child != nullptr; child = GetNextSiblingItem(child)) {
    if (HasItemCheckBox(child)) SetCheck(child, checked);
    CheckBelow(child, checked);
  }
}

BOOL CCustomTreeCtrl::DeleteItem(HTREEITEM item) {
  if (item == nullptr || !HasWindow()) return FALSE;
  Forget(item);
  return CTreeCtrl::DeleteItem(item);
}

void CCustomTreeCtrl::DeleteAllItems() {
  m_looks.clear();
  CTreeCtrl::DeleteAllItems();
}

void CCustomTreeCtrl::Forget(HTREEITEM item) {
  m_looks.erase(item);
  for (HTREEITEM child = GetChildItem(item); child != nullptr; child = GetNextSiblingItem(child)) {
    Forget(child);
  }
}
