#pragma once

#include <memory>
#include <vector>

#include "core/Export.h"
#include "platform/CObject.h"
#include "platform/CString.h"
#include "platform/Types.h"

class CWnd;

inline constexpr UINT MF_STRING = 0x0000;
inline constexpr UINT MF_ENABLED = 0x0000;
inline constexpr UINT MF_GRAYED = 0x0001;
inline constexpr UINT MF_DISABLED = 0x0002;
inline constexpr UINT MF_UNCHECKED = 0x0000;
inline constexpr UINT MF_CHECKED = 0x0008;
inline constexpr UINT MF_POPUP = 0x0010;
inline constexpr UINT MF_SEPARATOR = 0x0800;
inline constexpr UINT MF_BYCOMMAND = 0x0000;
inline constexpr UINT MF_BYPOSITION = 0x0400;
inline constexpr UINT TPM_RETURNCMD = 0x0100;

/// A menu: commands with ids, separators and menus below it. A text's '&' marks its access key; what follows
/// a TAB is shown as its shortcut.
class COREGUI_API CMenu : public CObject {
 public:
  CMenu();
  ~CMenu() override;
  CMenu(const CMenu&) = delete;
  CMenu& operator=(const CMenu&) = delete;

  BOOL CreatePopupMenu();
  /// Flags: MF_STRING or MF_SEPARATOR, with MF_GRAYED and MF_CHECKED.
  BOOL AppendMenu(UINT flags, UINT id = 0, const wchar_t* text = nullptr);
  /// Adds a menu below this one and returns it; it belongs to this one.
  CMenu* AppendSubMenu(const wchar_t* text);
  /// Before the item that `at` names, by id or by position as the flags say (a position beyond the end
  /// appends).
  BOOL InsertMenu(UINT at, UINT flags, UINT id = 0, const wchar_t* text = nullptr);
  BOOL DeleteMenu(UINT at, UINT flags);
  /// MF_CHECKED or MF_UNCHECKED. The old flag, or -1 (all bits) when there is no such item, here or below.
  UINT CheckMenuItem(UINT at, UINT flags);
  /// MF_ENABLED or MF_GRAYED; the same.
  UINT EnableMenuItem(UINT at, UINT flags);
  int GetMenuItemCount() const { return static_cast<int>(m_items.size()); }
  /// 0 for a separator, -1 (all bits) for a menu below and for no item.
  UINT GetMenuItemID(int position) const;
  UINT GetMenuState(UINT at, UINT flags) const;
  int GetMenuString(UINT at, CString& text, UINT flags) const;
  CMenu* GetSubMenu(int position) const;

  /// Shows the menu at a screen position until a command is chosen or it is closed. With TPM_RETURNCMD
  /// returns the command's id, 0 for none; else sends it to `window` as WM_COMMAND and returns 1, or 0 when
  /// none was chosen. The menu closes without a choice when the window is destroyed under it.
  int TrackPopupMenu(UINT flags, int x, int y, CWnd* window);

 private:
  struct Item;
  Item* Find(UINT at, UINT flags, CMenu** owner = nullptr, std::size_t* position = nullptr);
  /// Sets those of an item's flags that `mask` names; gives what they were, or -1 without the item.
  UINT ExchangeFlags(UINT at, UINT flags, UINT mask);
  friend class CMenuView;

  std::vector<std::unique_ptr<Item>> m_items;
};
