#pragma once

#include <memory>

#include "platform/CString.h"
#include "platform/Geometry.h"
#include "platform/Types.h"

class CDC;
class CFont;
class CWnd;
struct CREATESTRUCT;

namespace coregui {

class DrawTarget;

/// The native side of one window: what CWnd asks of the toolkit. Its owner is the window's state; it is made
/// by CWnd::MakeNative and lives until DestroyWindow. It never decides anything: it moves, shows and paints
/// what it is told, and turns the toolkit's events into messages.
///
/// Coordinates are logical pixels: of the parent's client area for a child, of the screen for a top-level
/// window.
class NativeWindow {
 public:
  virtual ~NativeWindow() = default;
  NativeWindow(const NativeWindow&) = delete;
  NativeWindow& operator=(const NativeWindow&) = delete;

  virtual void Move(const CRect& rect) = 0;
  virtual void Show(int command) = 0;
  virtual void Enable(bool enable) = 0;
  virtual void SetText(const CString& text) = 0;
  /// The text when the native side keeps it (an edit control); false when the window's own state does.
  virtual bool ReadText(CString& text) const = 0;
  virtual void SetAccessibleName(const CString& name) = 0;
  virtual void SetFont(const CFont* font) = 0;
  /// Under another native window (null: top level). The old and the new parent are alive.
  virtual void SetParent(NativeWindow* parent) = 0;
  virtual void Raise() = 0;
  /// Directly below a sibling.
  virtual void StackUnder(NativeWindow& sibling) = 0;
  virtual void StyleChanged() = 0;
  virtual void TakeFocus() = 0;
  /// Puts the window's top level in front and makes it the active one.
  virtual void Activate() = 0;
  /// A top-level window that keeps input from all others while it is shown.
  virtual void SetModal(bool modal) = 0;
  virtual CPoint ClientOrigin() const = 0;  ///< of the client area on the screen
  virtual double Scale() const = 0;
  virtual void StartTimer(UINT id, UINT milliseconds) = 0;
  virtual void StopTimer(UINT id) = 0;

  /// The retained surface; null for a control over a widget, which paints itself.
  virtual std::shared_ptr<DrawTarget> Target() = 0;
  /// Copies this part of the surface to the screen at the toolkit's next chance (empty: nothing).
  virtual void Expose(const CRect& rect) = 0;
  /// Moves the pixels of `rect` inside `clip`, and the exposure with them. False when they cannot be moved (a
  /// fraction of a dot): nothing happened.
  virtual bool MovePixels(const CRect& rect, const CRect& clip, int dx, int dy) = 0;
  /// Draws the window as it is shown (a control over a widget: the widget) at the context's origin.
  virtual void PrintTo(CDC& dc) = 0;

  /// The default handling of a message: a control over a widget gives the toolkit's event that stands behind
  /// the message to its widget, or an event made from the message when code sent it. True: `result` is the
  /// answer.
  virtual bool DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) = 0;
  /// The widget behind the window, for interop.h and the classes of platform/qt.
  virtual void* Widget() const = 0;

 protected:
  NativeWindow() = default;
  /// The toolkit moved the window (a person dragged its frame, or made it as large as the screen): takes the
  /// place and the code of WM_SIZE over and tells the window.
  static void NotePlace(CWnd& window, const CRect& rect, WPARAM sizeCode);
};

/// A window that we paint ourselves: what CWnd::MakeNative gives. Null when the toolkit cannot start.
std::unique_ptr<NativeWindow> MakePaintedWindow(CWnd& window, const CREATESTRUCT& create);

}  // namespace coregui
