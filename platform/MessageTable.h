#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/Export.h"
#include "platform/Geometry.h"
#include "platform/Messages.h"

class CDC;
class CWnd;

namespace coregui {

/// One row of a message table: the message and the function that unpacks its parameters and calls the
/// handler.
struct MessageRow {
  UINT message = 0;
  /// WM_COMMAND rows also match the control's id and notification code; -1 matches any.
  int command = -1;
  int code = -1;
  /// Storage of the member pointer; the thunk knows its type.
  alignas(std::max_align_t) unsigned char handler[2 * sizeof(void*)] = {};
  LRESULT (*thunk)(const MessageRow& row, CWnd& window, WPARAM wParam, LPARAM lParam) = nullptr;
};

/// The window of a handle in a message's parameter; null when it is gone.
COREGUI_API CWnd* WindowOfParameter(std::uintptr_t handle);

/// The forms of handlers, by the parameters that they unpack.
enum class HandlerKind {
  raw,
  plain,
  mouse,
  wheel,
  key,
  focus,
  size,
  move,
  timer,
  scroll,
  erase,
  cursor,
  flag,
  menu,
  code,
  activate
};

constexpr HandlerKind HandlerKindOf(UINT message) {
  switch (message) {
    case WM_PAINT:
    case WM_DESTROY:
    case WM_CLOSE:
    case WM_MOUSELEAVE:
    case WM_NCDESTROY:
    case WM_THEMECHANGED:
    case WM_SYSCOLORCHANGE:
      return HandlerKind::plain;
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
    case WM_MBUTTONDBLCLK:
      return HandlerKind::mouse;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
      return HandlerKind::wheel;
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYDOWN:
    case WM_CHAR:
      return HandlerKind::key;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      return HandlerKind::focus;
    case WM_SIZE:
      return HandlerKind::size;
    case WM_MOVE:
      return HandlerKind::move;
    case WM_TIMER:
      return HandlerKind::timer;
    case WM_HSCROLL:
    case WM_VSCROLL:
      return HandlerKind::scroll;
    case WM_ERASEBKGND:
      return HandlerKind::erase;
    case WM_SETCURSOR:
      return HandlerKind::cursor;
    case WM_SHOWWINDOW:
    case WM_ENABLE:
      return HandlerKind::flag;
    case WM_CONTEXTMENU:
      return HandlerKind::menu;
    case WM_GETDLGCODE:
      return HandlerKind::code;
    case WM_ACTIVATE:
      return HandlerKind::activate;
    default:
      return HandlerKind::raw;
  }
}

/// Gives a kind's function type and the call that unpacks a message's parameters for it.
template <HandlerKind kind>
struct HandlerForm;

template <>
struct HandlerForm<HandlerKind::raw> {
  using Type = LRESULT(WPARAM, LPARAM);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM lParam) {
    return call(wParam, lParam);
  }
};

template <>
struct HandlerForm<HandlerKind::plain> {
  using Type = void();
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    return call(), 0;
  }
};

template <>
struct HandlerForm<HandlerKind::mouse> {
  using Type = void(UINT, CPoint);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM lParam) {
    return call(static_cast<UINT>(wParam), CPoint::FromLParam(lParam)), 0;
  }
};

template <>
struct HandlerForm<HandlerKind::wheel> {
  using Type = BOOL(UINT, short, CPoint);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM lParam) {
    return call(LOWORD(wParam), static_cast<short>(HIWORD(wParam)), CPoint::FromLParam(lParam));
  }
};

template <>
struct HandlerForm<HandlerKind::key> {
  using Type = void(UINT, UINT, UINT);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM lParam) {
    const auto bits = static_cast<std::uintptr_t>(lParam);
    return call(static_cast<UINT>(wParam), LOWORD(bits), HIWORD(bits)), 0;
  }
};

template <>
struct HandlerForm<HandlerKind::focus> {
  using Type = void(CWnd*);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM /*lParam*/) {
    return call(WindowOfParameter(wParam)), 0;
  }
};

template <>
struct HandlerForm<HandlerKind::size> {
  using Type = void(UINT, int, int);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM lParam) {
    const auto bits = static_cast<std::uintptr_t>(lParam);
    return call(static_cast<UINT>(wParam), int{LOWORD(bits)}, int{HIWORD(bits)}), 0;
  }
};

template <>
struct HandlerForm<HandlerKind::move> {
  using Type = void(int, int);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM /*wParam*/, LPARAM lParam) {
    return call(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)), 0;
  }
};

template <>
struct HandlerForm<HandlerKind::timer> {
  using Type = void(UINT);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM /*lParam*/) {
    return call(static_cast<UINT>(wParam)), 0;
  }
};

template <>
struct HandlerForm<HandlerKind::scroll> {
  using Type = void(int, CWnd*);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM lParam) {
    return call(int{LOWORD(wParam)}, WindowOfParameter(static_cast<std::uintptr_t>(lParam))), 0;
  }
};

template <>
struct HandlerForm<HandlerKind::erase> {
  using Type = BOOL(CDC*);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM /*lParam*/) {
    return call(reinterpret_cast<CDC*>(wParam));
  }
};

template <>
struct HandlerForm<HandlerKind::cursor> {
  using Type = BOOL(CWnd*, UINT, UINT);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM lParam) {
    const auto bits = static_cast<std::uintptr_t>(lParam);
    return call(WindowOfParameter(wParam), LOWORD(bits), HIWORD(bits));
  }
};

template <>
struct HandlerForm<HandlerKind::flag> {
  using Type = void(BOOL);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM /*lParam*/) {
    return call(wParam != 0 ? TRUE : FALSE), 0;
  }
};

template <>
struct HandlerForm<HandlerKind::menu> {
  using Type = void(CWnd*, CPoint);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM lParam) {
    return call(WindowOfParameter(wParam), CPoint::FromLParam(lParam)), 0;
  }
};

template <>
struct HandlerForm<HandlerKind::code> {
  using Type = UINT();
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    return call();
  }
};

template <>
struct HandlerForm<HandlerKind::activate> {
  using Type = void(UINT, CWnd*);
  template <class Call>
  static LRESULT Unpack(Call call, WPARAM wParam, LPARAM lParam) {
    return call(LOWORD(wParam), WindowOfParameter(static_cast<std::uintptr_t>(lParam))), 0;
  }
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
/// - WM_PAINT, WM_DESTROY, WM_CLOSE, WM_MOUSELEAVE, WM_NCDESTROY, WM_THEMECHANGED, WM_SYSCOLORCHANGE:
///   `void ()`
/// - mouse buttons and WM_MOUSEMOVE: `void (UINT flags, CPoint client)`
/// - WM_MOUSEWHEEL, WM_MOUSEHWHEEL: `BOOL (UINT flags, short delta, CPoint screen)`
/// - WM_KEYDOWN, WM_KEYUP, WM_SYSKEYDOWN, WM_CHAR: `void (UINT key, UINT repeat, UINT flags)`
/// - WM_SETFOCUS, WM_KILLFOCUS: `void (CWnd* other)`
/// - WM_SIZE: `void (UINT type, int width, int height)`
/// - WM_MOVE: `void (int x, int y)`
/// - WM_TIMER: `void (UINT id)`
/// - WM_HSCROLL, WM_VSCROLL: `void (int code, CWnd* bar)`
/// - WM_ERASEBKGND: `BOOL (CDC* dc)`
/// - WM_SETCURSOR: `BOOL (CWnd* window, UINT hitTest, UINT message)`
/// - WM_SHOWWINDOW, WM_ENABLE: `void (BOOL on)`
/// - WM_CONTEXTMENU: `void (CWnd* window, CPoint screen)`
/// - WM_GETDLGCODE: `UINT ()`
/// - WM_ACTIVATE: `void (UINT state, CWnd* other)`
/// - every other: `LRESULT (WPARAM, LPARAM)`
///
/// A handler that wants the default as well calls `CWnd::Default()` inside it.
class COREGUI_API MessageTable {
 public:
  MessageTable() = default;

  template <UINT message, class T, class R, class... A>
  requires std::is_same_v<R(A...), typename HandlerForm<HandlerKindOf(message)>::Type> MessageTable &&
      On(R (T::*handler)(A...)) && {
    Add(message, -1, -1, handler, &Call<HandlerKindOf(message), T, R, A...>);
    return std::move(*this);
  }
  /// The control `id` sent notification `code` (WM_COMMAND); handler `void ()`. -1 matches any id or code.
  template <class T>
  MessageTable&& OnCommand(int id, int code, void (T::*handler)()) && {
    Add(WM_COMMAND, id, code, handler, &Call<HandlerKind::plain, T, void>);
    return std::move(*this);
  }
  /// Any message number, known only when the program runs; handler `LRESULT (WPARAM, LPARAM)`.
  template <class T>
  MessageTable&& OnMessage(UINT message, LRESULT (T::*handler)(WPARAM, LPARAM)) && {
    Add(message, -1, -1, handler, &Call<HandlerKind::raw, T, LRESULT, WPARAM, LPARAM>);
    return std::move(*this);
  }

  /// The row that answers the message, the most derived first; null when there is none.
  const MessageRow* Find(UINT message, WPARAM wParam) const;

 private:
  template <HandlerKind kind, class T, class R, class... A>
  static LRESULT Call(const MessageRow& row, CWnd& window, WPARAM wParam, LPARAM lParam) {
    using Handler = R (T::*)(A...);
    Handler handler = nullptr;
    std::copy_n(row.handler, sizeof(Handler), reinterpret_cast<unsigned char*>(&handler));
    T& self = static_cast<T&>(window);
    return HandlerForm<kind>::Unpack([&self, handler](A... a) { return (self.*handler)(a...); }, wParam,
                                     lParam);
  }
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
