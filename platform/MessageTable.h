#pragma once

#include <algorithm>
#include <vector>

#include "core/Export.h"
#include "platform/Geometry.h"
#include "platform/Messages.h"

class CDC;
class CWnd;

namespace coregui {

/// One row of a message table: the message and the function that unpacks its parameters and calls the handler.
struct MessageRow {
  UINT message = 0;
  /// WM_COMMAND rows also match the control's id and notification code; -1 matches any.
  int command = -1;
  int code = -1;
  /// Storage of the member pointer; the thunk knows its type.
  alignas(std::max_align_t) unsigned char handler[2 * sizeof(void*)] = {};
  LRESULT (*thunk)(const MessageRow& row, CWnd& window, WPARAM wParam, LPARAM lParam, bool& handled) = nullptr;
};

/// The rows of one class and, behind them, those of its base class. Built once in a class's .cpp:
///
///     const coregui::MessageTable& CMyView::GetMessageTable() const {
///       static const coregui::MessageTable table =
///           coregui::MessageTable(CWnd::Messages())
///               .On<WM_PAINT>(&CMyView::HandlePaint)
///               .On<WM_LBUTTONDOWN>(&CMyView::HandleLButtonDown);
///       return table;
///     }
///
/// The handler's form follows from the message and does not compile in any other:
///
/// | messages | handler |
/// |---|---|
/// | WM_PAINT, WM_DESTROY, WM_CLOSE, WM_MOUSELEAVE, WM_NCDESTROY, WM_THEMECHANGED, WM_SYSCOLORCHANGE | `void ()` |
/// | mouse buttons and WM_MOUSEMOVE | `void (UINT flags, CPoint client)` |
/// | WM_MOUSEWHEEL, WM_MOUSEHWHEEL | `BOOL (UINT flags, short delta, CPoint screen)` |
/// | WM_KEYDOWN, WM_KEYUP, WM_SYSKEYDOWN, WM_CHAR | `void (UINT key, UINT repeat, UINT flags)` |
/// | WM_SETFOCUS, WM_KILLFOCUS | `void (CWnd* other)` |
/// | WM_SIZE | `void (UINT type, int width, int height)` |
/// | WM_MOVE | `void (int x, int y)` |
/// | WM_TIMER | `void (UINT id)` |
/// | WM_HSCROLL, WM_VSCROLL | `void (int code, CWnd* bar)` |
/// | WM_ERASEBKGND | `BOOL (CDC* dc)` |
/// | WM_SETCURSOR | `BOOL (CWnd* window, UINT hitTest, UINT message)` |
/// | WM_SHOWWINDOW, WM_ENABLE | `void (BOOL on)` |
/// | WM_CONTEXTMENU | `void (CWnd* window, CPoint screen)` |
/// | WM_GETDLGCODE | `UINT ()` |
/// | WM_ACTIVATE | `void (UINT state, CWnd* other)` |
/// | every other | `LRESULT (WPARAM, LPARAM)` |
///
/// A handler that wants the default as well calls `CWnd::Default()` inside it.
class COREGUI_API MessageTable {
 public:
  MessageTable() = default;

  template <UINT message, class T, class R, class... A>
  MessageTable&& On(R (T::*handler)(A...)) &&;
  /// The control `id` sent notification `code` (WM_COMMAND); handler `void ()`.
  template <class T>
  MessageTable&& OnCommand(int id, int code, void (T::*handler)()) &&;
  /// Any message number, known only when the program runs; handler `LRESULT (WPARAM, LPARAM)`.
  template <class T>
  MessageTable&& OnMessage(UINT message, LRESULT (T::*handler)(WPARAM, LPARAM)) &&;

  /// The row that answers the message, the most derived first; null when there is none.
  const MessageRow* Find(UINT message, WPARAM wParam) const;

 private:
  template <class Handler>
  void Add(UINT message, int command, int code, Handler handler, decltype(MessageRow::thunk) thunk) {
    static_assert(sizeof(Handler) <= sizeof(MessageRow::handler));
    MessageRow row;
    row.message = message;
    row.command = command;
    row.code = code;
    std::copy_n(reinterpret_cast<const unsigned char*>(&handler), sizeof(Handler), row.handler);
    row.thunk = thunk;
    m_rows.insert(m_rows.begin(), row);
  }

  std::vector<MessageRow> m_rows;  ///< the most derived class's rows first
};

}  // namespace coregui
