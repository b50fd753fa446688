#pragma once

#include <memory>

#include "core/Export.h"
#include "platform/CObject.h"
#include "platform/CString.h"
#include "platform/Geometry.h"
#include "platform/Keys.h"
#include "platform/MessageTable.h"
#include "platform/Messages.h"
#include "platform/WindowStyles.h"

class CFont;
class CMenu;
class CScrollBar;

namespace coregui {
class NativeWindow;
class WindowState;
}  // namespace coregui

/// What a window is created with; PreCreateWindow may change it.
struct CREATESTRUCT {
  const wchar_t* name = L"";
  const wchar_t* className = L"";
  DWORD style = 0;
  DWORD exStyle = 0;
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  HWND parent = nullptr;
  UINT id = 0;
};

/// One window. The object exists before its native window is created and after it is destroyed; everything
/// that needs no pixels works without one: text, style, id, parent and children, rectangle, enabled and
/// visible state, the update region, timers' bookkeeping, messages.
///
/// Whatever reaches a window (mouse, key, wheel, focus, timer, paint request, SendMessage) arrives as one
/// call of WindowProc, which looks the message up in the class's message table and hands the rest to
/// DefWindowProc. CWnd has no notification members of its own, so that a derived class's notifications
/// neither hide nor clash.
///
/// Coordinates are logical pixels of the window's own scale: a window at scale 2 has surfaces with twice the
/// dots, which device contexts take into account. Client coordinates start at the client's top left corner,
/// screen coordinates at the primary screen's.
///
/// A window that is painted by us (every class that is not a control over a widget) owns a retained surface.
/// InvalidateRect, ValidateRect, GetUpdateRect and UpdateWindow act on the update region; WM_PAINT is sent
/// while the region is not empty, when the queue is idle or UpdateWindow asks.
///
/// The object does not delete itself when its native window is destroyed. Destroying the object destroys the
/// native window and those of all children first.
class COREGUI_API CWnd : public CObject {
 public:
  CWnd();
  ~CWnd() override;
  CWnd(const CWnd&) = delete;
  CWnd& operator=(const CWnd&) = delete;

  // --- Creation and destruction

  /// Creates the native window. Sends WM_CREATE (a handler that answers -1 refuses), WM_SIZE and WM_MOVE.
  /// A child needs a parent whose native window exists. 0 when the window exists already or was refused.
  virtual BOOL Create(const wchar_t* className, const wchar_t* name, DWORD style, const RECT& rect,
                      CWnd* parent, UINT id);
  BOOL CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* name, DWORD style, const RECT& rect,
                CWnd* parent, UINT id);
  /// Called before the native window is made; 0 refuses. The default allows.
  virtual BOOL PreCreateWindow(CREATESTRUCT& create);
  /// Destroys the native window after WM_DESTROY to it, to the windows it owns and to its children. May be
  /// called inside a handler of this window: the rest of the handler runs without a window. 0 when there is
  /// none.
  virtual BOOL DestroyWindow();
  /// Takes over the place, id and parent of an existing child control and destroys that control.
  BOOL SubclassDlgItem(UINT id, CWnd* parent);
  HWND GetSafeHwnd() const;
  bool HasWindow() const { return GetSafeHwnd() != nullptr; }
  /// The object of a native window, null when it is gone or null.
  static CWnd* FromHandle(HWND window);
  static CWnd* GetDesktopWindow();

  // --- Messages

  LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
  /// Queues the message; delivered by the pump, dropped when the window is destroyed before.
  BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
  /// Every message of this window passes here. The object may be destroyed by a handler.
  virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
  virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
  /// Sees queued key and mouse messages for this window and its children first; true swallows. Asked from
  /// the target window up through its parents.
  virtual BOOL PreTranslateMessage(MSG* message);
  /// The table of this class; a derived class that handles messages overrides it.
  virtual const coregui::MessageTable& GetMessageTable() const;

  // --- Place and size

  CRect GetClientRectangle() const;
  void GetClientRect(RECT* rect) const { *rect = GetClientRectangle(); }
  void GetWindowRect(RECT* rect) const;  ///< in screen coordinates
  void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
  void MoveWindow(const RECT& rect, BOOL repaint = TRUE);
  /// `after`: null puts the window on top of its siblings (unless SWP_NOZORDER).
  BOOL SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags);
  void BringWindowToTop();
  void ClientToScreen(POINT* point) const;
  void ClientToScreen(RECT* rect) const;
  void ScreenToClient(POINT* point) const;
  void ScreenToClient(RECT* rect) const;

  // --- Family

  CWnd* GetParent() const;
  /// Moves the window, native one included, under another parent (null: top level). Returns the old parent.
  CWnd* SetParent(CWnd* parent);
  CWnd* GetOwner() const;
  CWnd* GetTopLevelParent() const;
  CWnd* GetDlgItem(int id) const;  ///< the direct child with the id, or null
  int GetDlgCtrlID() const;
  void SetDlgCtrlID(int id);
  CWnd* GetWindow(UINT relation) const;
  bool IsChild(const CWnd* window) const;
  DWORD GetStyle() const;
  DWORD GetExStyle() const;
  BOOL ModifyStyle(DWORD remove, DWORD add);

  // --- State

  BOOL ShowWindow(int command);
  BOOL IsWindowVisible() const;  ///< shown, and every parent too
  BOOL EnableWindow(BOOL enable = TRUE);
  BOOL IsWindowEnabled() const;
  void SetWindowText(const wchar_t* text);
  virtual CString GetWindowTextString() const;
  void GetWindowText(CString& text) const { text = GetWindowTextString(); }
  int GetWindowTextLength() const { return GetWindowTextString().GetLength(); }
  /// Borrowed: the font must outlive the window or be replaced. Null: the system's font.
  virtual void SetFont(CFont* font, BOOL redraw = TRUE);
  CFont* GetFont() const;
  /// What a screen reader says for the window.
  void SetAccessibleName(const wchar_t* name);

  // --- Focus and capture. Borrowed pointers: null once the window is destroyed.

  /// Gives the focus; WM_KILLFOCUS to the old window, WM_SETFOCUS to this one. Returns the old window.
  CWnd* SetFocus();
  static CWnd* GetFocus();
  CWnd* SetCapture();
  static CWnd* GetCapture();
  static void ReleaseCapture();
  CWnd* SetActiveWindow();
  static CWnd* GetActiveWindow();
  /// Asks for one WM_MOUSELEAVE when the pointer leaves this window.
  void TrackMouseLeave();
  /// The window under a screen position, by our own z-order; null when none of ours.
  static CWnd* WindowFromPoint(POINT screen);

  // --- Painting

  void Invalidate(BOOL erase = TRUE);
  void InvalidateRect(const RECT* rect, BOOL erase = TRUE);  ///< null: the whole client area
  void ValidateRect(const RECT* rect);                       ///< null: the whole client area
  /// The bounding rectangle of the update region; false and all zero when it is empty.
  bool GetUpdateRect(RECT* rect, BOOL erase = FALSE);
  void UpdateWindow();
  void RedrawWindow();  ///< Invalidate and UpdateWindow
  /// Moves the pixels of `rect` (null: the client area) by (dx, dy) inside `clip` (null: the same) and
  /// invalidates what is uncovered. An update region inside moves along.
  void ScrollWindow(int dx, int dy, const RECT* rect = nullptr, const RECT* clip = nullptr,
                    BOOL erase = TRUE);
  /// Off: invalidations are recorded but no WM_PAINT is sent; on again: repaints what was invalid.
  void SetRedraw(BOOL redraw);
  /// Dots per surface dot of a logical pixel (1, 1.25, 2 ...).
  double GetScaleFactor() const;
  /// Logical dots per inch of the window's scale: 96 times the system's text scale.
  int GetDpi() const;
  /// Sends WM_PRINTCLIENT, or copies the surface, of this window and its visible children into `dc`.
  void PrintTo(class CDC* dc);

  // --- Timers

  /// Starts or restarts; WM_TIMER with the id every `milliseconds`. Returns the id, 0 on failure.
  UINT SetTimer(UINT id, UINT milliseconds);
  BOOL KillTimer(UINT id);

  // --- Scroll bars of the window

  virtual CScrollBar* GetScrollBarCtrl(int bar) const;

  /// Modal boxes of the platform, in the style of the well-known flags (MessageBox.h).
  int MessageBox(const wchar_t* text, const wchar_t* caption = nullptr, UINT type = 0);

  /// Internal: the state shared with the native side.
  coregui::WindowState& State() { return *m_state; }
  const coregui::WindowState& State() const { return *m_state; }

 protected:
  /// Sends WM_COMMAND with this window's id and `code` to the parent: what controls notify with.
  LRESULT NotifyParent(int code);
  /// Inside a handler: the default handling of the message at hand, with its own parameters.
  LRESULT Default();
  static const coregui::MessageTable& Messages();
  /// Makes the native side; a control over a toolkit's widget overrides it. The default is a window that we
  /// paint. Null refuses.
  virtual std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create);

 private:
  BOOL CreateNative(const CREATESTRUCT& create, CWnd* family);
  BOOL FinishCreation(bool show);
  void DestroyOwned();
  void DestroyChildren();
  void ReleaseNative();
  friend class coregui::NativeWindow;
  void Place(const CRect& rect);
  void PlaceChanged(const CRect& old, WPARAM oldCode);
  void StackBelow(const CWnd* after);
  std::unique_ptr<coregui::WindowState> m_state;
};

/// The same as the members, for handles: false or null for a window that is gone.
COREGUI_API bool IsWindow(HWND window);
COREGUI_API LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
COREGUI_API BOOL PostMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
