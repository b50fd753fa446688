#include "controls/CEmptyTreeCtrl.h"

void CEmptyTreeCtrl::SetEmptyText(const wchar_t* text) {
  m_emptyText = text;
  CTreeCtrl::SetEmptyText(m_emptyText);
}

const coregui::MessageTable& CEmptyTreeCtrl::GetMessageTable() const {
  static const coregui::MessageTable table =
      coregui::MessageTable(CTreeCtrl::Messages()).On<WM_CREATE>(&CEmptyTreeCtrl::HandleCreate);
  return table;
}

LRESULT CEmptyTreeCtrl::HandleCreate(WPARAM /*wParam*/, LPARAM /*lParam*/) {
  CTreeCtrl::SetEmptyText(m_emptyText);
  return Default();
}
