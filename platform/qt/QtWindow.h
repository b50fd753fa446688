#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>

#include "platform/NativeWindow.h"
#include "platform/WheelGatherer.h"

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;
class QNativeGestureEvent;
class QInputMethodEvent;

namespace coregui {

/// A window over a widget of the toolkit. It filters the widget's events and turns them into messages of the
/// window; a control's class derives from it and gives it the real widget (a line edit, a button ...).
///
/// What becomes of an event: each one that has messages is sent as messages and goes no further, except that
/// the default handling of the message gives it to the widget. So a handler that swallows a key keeps it from
/// the widget, and one that calls Default() sees the widget's state after it.
///
/// The object owns its widget. When the toolkit destroys the widget first (a program's own parent widget
/// went), the window is destroyed.
class QtWindow : public QObject, public NativeWindow {
 public:
  /// `widget` has no parent yet; it gets the window's own.
  QtWindow(CWnd& window, const CREATESTRUCT& create, std::unique_ptr<QWidget> widget);
  /// For a widget that is not ours: its life and its events are left alone.
  QtWindow(CWnd& window, QWidget& borrowed);
  ~QtWindow() override;

  /// The window of a widget or of the nearest parent that has one; null when there is none.
  static QtWindow* Of(const QWidget* widget);
  CWnd& Window() const { return m_window; }
  QWidget* GetWidget() const { return m_widget; }
  /// Filters the events of a widget inside the control too (the line edit of a combo box).
  void Watch(QWidget* inner);

  void Move(const CRect& rect) override;
  void Show(int command) override;
  void Enable(bool enable) override;
  void SetText(const CString& text) override;
  bool ReadText(CString& text) const override;
  void SetAccessibleName(const CString& name) override;
  void SetFont(const CFont* font) override;
  void SetParent(NativeWindow* parent) override;
  void Raise() override;
  void StackUnder(NativeWindow& sibling) override;
  void StyleChanged() override;
  void TakeFocus() override;
  void Activate() override;
  void SetModal(bool modal) override;
  CPoint ClientOrigin() const override;
  double Scale() const override;
  void StartTimer(UINT id, UINT milliseconds) override;
  void StopTimer(UINT id) override;
  std::shared_ptr<DrawTarget> Target() override { return nullptr; }
  void Expose(const CRect& rect) override;
  /// Whether the surface changed since it was last shown.
  virtual bool HasDamage() const { return false; }
  /// Shows what changed on the surface since the last call: now, with all else that waits to be shown, or
  /// with the next thing that is.
  virtual void ShowDamage(bool /*now*/) {}
  bool MovePixels(const CRect& rect, const CRect& clip, int dx, int dy) override;
  void PrintTo(CDC& dc) override;
  bool DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
  void* Widget() const override { return m_widget; }

  bool eventFilter(QObject* receiver, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 protected:
  /// For a control: an event of its widget that is not turned into a message; true keeps it from the widget.
  virtual bool FilterOther(QWidget& receiver, QEvent& event);
  /// Whether the widget gets the events that the window's handlers leave over.
  virtual bool HasOwnBehaviour() const { return true; }
  /// Gives an event to the widget that it is for.
  virtual void Deliver(QWidget& receiver, QEvent& event);
  /// The widget's scale, or its place in the window at the top, may have changed.
  virtual void NoteGrid() {}
  virtual void NoteWidgetSize() {}
  /// Has the toolkit paint this part of the widget, at once or at its next chance.
  void Expose(const QRegion& part, bool now);

 private:
  friend class EventRoad;
  void WidgetLost();
  void NoteState();
  void NoteGeometry();
  void NoteDots();
  bool IsTopLevel() const;
  Qt::WindowFlags FlagsOf(DWORD style) const;
  void Place(CRect rect, DWORD style);
  int ParentsBorder() const;
  void Forget();

  CWnd& m_window;
  QPointer<QWidget> m_widget;
  bool m_borrowed = false;
  QRect m_shownAt;  ///< of a child between whole scales: what of its parent it covers
  std::map<UINT, QBasicTimer> m_timers;
  WPARAM m_lastCode = 0;        ///< of WM_SIZE when it was not minimised
  QBasicTimer m_resizeAwaited;  ///< of a maximised or restored window: both are told together
  WheelGatherer m_wheel[2];     ///< vertical, horizontal

  /// The toolkit's event behind the message at hand.
  struct InFlight {
    QWidget* receiver = nullptr;
    QEvent* event = nullptr;
    UINT message = 0;  ///< the message whose default gives the event to the widget
    bool delivered = false;
  };
  InFlight* m_inFlight = nullptr;
};

}  // namespace coregui
