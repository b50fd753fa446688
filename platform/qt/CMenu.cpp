#include "platform/CMenu.h"

#include <QAction>
#include <QMenu>
#include <algorithm>

#include "platform/CWnd.h"
#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"
#include "platform/qt/Transient.h"

struct CMenu::Item {
  UINT flags = 0;  ///< MF_SEPARATOR, MF_GRAYED, MF_DISABLED, MF_CHECKED
  UINT id = 0;
  CString text;
  std::unique_ptr<CMenu> below;
};

namespace {

constexpr UINT kNone = static_cast<UINT>(-1);
constexpr UINT kGreyed = MF_GRAYED | MF_DISABLED;

}  // namespace

/// Shows menus with the toolkit's.
class CMenuView {
 public:
  static void Fill(QMenu& to, const CMenu& menu) {
    for (const auto& item : menu.m_items) {
      if ((item->flags & MF_SEPARATOR) != 0) {
        to.addSeparator();
      } else if (item->below != nullptr) {
        Fill(*to.addMenu(coregui::ToQt(item->text)), *item->below);
      } else {
        AddCommand(to, *item);
      }
    }
  }

 private:
  static void AddCommand(QMenu& to, const CMenu::Item& item) {
    QAction* action = to.addAction(coregui::ToQt(item.text));
    action->setData(item.id);
    action->setEnabled((item.flags & kGreyed) == 0);
    action->setCheckable((item.flags & MF_CHECKED) != 0);
    action->setChecked((item.flags & MF_CHECKED) != 0);
  }
};

CMenu::CMenu() = default;
CMenu::~CMenu() = default;

BOOL CMenu::CreatePopupMenu() {
  m_items.clear();
  return TRUE;
}

BOOL CMenu::AppendMenu(UINT flags, UINT id, const wchar_t* text) {
  return InsertMenu(kNone, flags | MF_BYPOSITION, id, text);
}

CMenu* CMenu::AppendSubMenu(const wchar_t* text) {
  AppendMenu(MF_STRING, kNone, text);
  m_items.back()->below = std::make_unique<CMenu>();
  return m_items.back()->below.get();
}

BOOL CMenu::InsertMenu(UINT at, UINT flags, UINT id, const wchar_t* text) {
  CMenu* owner = this;
  std::size_t position = std::min<std::size_t>(at, m_items.size());
  if ((flags & MF_BYPOSITION) == 0 && Find(at, flags, &owner, &position) == nullptr) return FALSE;
  auto item = std::make_unique<Item>();
  item->flags = flags & (MF_SEPARATOR | kGreyed | MF_CHECKED);
  item->id = (flags & MF_SEPARATOR) != 0 ? 0 : id;
  item->text = text;
  owner->m_items.insert(owner->m_items.begin() + static_cast<std::ptrdiff_t>(position), std::move(item));
  return TRUE;
}

BOOL CMenu::DeleteMenu(UINT at, UINT flags) {
  CMenu* owner = this;
  std::size_t position = 0;
  if (Find(at, flags, &owner, &position) == nullptr) return FALSE;
  owner->m_items.erase(owner->m_items.begin() + static_cast<std::ptrdiff_t>(position));
  return TRUE;
}

CMenu::Item* CMenu::Find(UINT at, UINT flags, CMenu** owner, std::size_t* position) {
  const bool byPosition = (flags & MF_BYPOSITION) != 0;
  for (std::size_t i = 0; i < m_items.size(); ++i) {
    Item& item = *m_items[i];
    const bool found =
        byPosition ? i == at : item.below == nullptr && (item.flags & MF_SEPARATOR) == 0 && item.id == at;
    if (found) {
      if (owner != nullptr) *owner = this;
      if (position != nullptr) *position = i;
      return &item;
    }
    Item* below =
        byPosition || item.below == nullptr ? nullptr : item.below->Find(at, flags, owner, position);
    if (below != nullptr) return below;
  }
  return nullptr;
}

UINT CMenu::ExchangeFlags(UINT at, UINT flags, UINT mask) {
  Item* item = Find(at, flags);
  if (item == nullptr) return kNone;
  const UINT old = item->flags & mask;
  item->flags = (item->flags & ~mask) | (flags & mask);
  return old;
}

UINT CMenu::CheckMenuItem(UINT at, UINT flags) {
  return ExchangeFlags(at, flags, MF_CHECKED);
}

UINT CMenu::EnableMenuItem(UINT at, UINT flags) {
  return ExchangeFlags(at, flags, kGreyed);
}

UINT CMenu::GetMenuItemID(int position) const {
  if (position < 0 || position >= GetMenuItemCount()) return kNone;
  return m_items[static_cast<std::size_t>(position)]->id;
}

UINT CMenu::GetMenuState(UINT at, UINT flags) const {
  const Item* item = const_cast<CMenu*>(this)->Find(at, flags);
  return item == nullptr ? kNone : item->flags;
}

int CMenu::GetMenuString(UINT at, CString& text, UINT flags) const {
  const Item* item = const_cast<CMenu*>(this)->Find(at, flags);
  if (item == nullptr) return 0;
  text = item->text;
  return text.GetLength();
}

CMenu* CMenu::GetSubMenu(int position) const {
  if (position < 0 || position >= GetMenuItemCount()) return nullptr;
  return m_items[static_cast<std::size_t>(position)]->below.get();
}

int CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* window) {
  coregui::EnsureApplication();
  const coregui::WindowRef target(window);
  const coregui::Transient<QMenu> menu(window);
  CMenuView::Fill(*menu, *this);
  const QAction* chosen = menu->exec(QPoint(x, y));
  const int id = chosen == nullptr ? 0 : static_cast<int>(chosen->data().toUInt());
  if ((flags & TPM_RETURNCMD) != 0) return id;
  if (id != 0 && target) target.Get()->SendMessage(WM_COMMAND, MAKEWPARAM(id, 0));
  return id != 0 ? 1 : 0;
}
