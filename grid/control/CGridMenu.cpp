#include "grid/control/CGridMenu.h"

#include "grid/control/CGridNotify.h"
#include "platform/CMenu.h"
#include "platform/CWnd.h"
#include "platform/WindowRef.h"

namespace coregui {

CGridMenu::CGridMenu(CGridNotify& notify, CWnd& window)
    : m_notify(notify), m_window(window), m_menu(std::make_unique<CMenu>()) {
  m_menu->CreatePopupMenu();
}

CGridMenu::~CGridMenu() = default;

int CGridMenu::Start(int col, long row, POINT screen, int section) {
  const WindowRef alive(&m_window);
  if (m_notify.OnMenuStart(col, row, section) == 0 || !alive || m_menu->GetMenuItemCount() == 0) {
    return 1;
  }
  const int item = m_menu->TrackPopupMenu(TPM_RETURNCMD, screen.x, screen.y, &m_window);
  if (!alive || item == 0) {
    return 1;
  }
  m_notify.OnMenuCommand(col, row, section, item);
  return 0;
}

}  // namespace coregui
