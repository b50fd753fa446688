#include "controls/CCustomTreeCtrl.h"

TreeItemLook CCustomTreeCtrl::Look(HTREEITEM item) const {
  const auto found = m_looks.find(item);
  return found == m_looks.end() ? TreeItemLook() : found->second;
}

void CCustomTreeCtrl::Show(HTREEITEM item, const TreeItemLook& look) {
  if (item == nullptr || !HasWindow()) return;
  m_looks[item] = look;
  SetItemLook(item, look);
}

void CCustomTreeCtrl::SetItemColor(HTREEITEM item, COLORREF text) {
  TreeItemLook look = Look(item);
  look.text = text;
  Show(item, look);
}

void CCustomTreeCtrl::SetItemBkColor(HTREEITEM item, COLORREF ground) {
  TreeItemLook look = Look(item);
  look.ground = ground;
  Show(item, look);
}

void CCustomTreeCtrl::SetItemBold(HTREEITEM item, bool bold) {
  TreeItemLook look = Look(item);
  look.bold = bold;
  Show(item, look);
}

void CCustomTreeCtrl::SetItemCheckBox(HTREEITEM item, bool has) {
  TreeItemLook look = Look(item);
  look.checkBox = has;
  Show(item, look);
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
