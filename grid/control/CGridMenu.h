#pragma once

#include <memory>

#include "platform/Geometry.h"

class CMenu;
class CWnd;

namespace coregui {

class CGridNotify;

/// The grid's context menu. The application fills it when it is about to open.
class CGridMenu {
 public:
  CGridMenu(CGridNotify& notify, CWnd& window);
  ~CGridMenu();

  CMenu* Get() const { return m_menu.get(); }
  /// Asks OnMenuStart, shows the menu at a screen position and tells OnMenuCommand what was chosen. 1 when it
  /// was refused or nothing was chosen.
  int Start(int col, long row, POINT screen, int section);

 private:
  CGridNotify& m_notify;
  CWnd& m_window;
  std::unique_ptr<CMenu> m_menu;
};

}  // namespace coregui
