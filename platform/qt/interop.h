#pragma once

#include "core/Export.h"
#include "platform/Types.h"

class CWnd;
class QWidget;

// For programs that are written with the toolkit: windows of both worlds inside and in front of each other.
//
// Our window inside a widget of yours: create it with WS_CHILD and WindowOf(widget) as its parent; a layout
// may take WidgetOf(window). Our dialog in front of your window: give the dialog WindowOf(widget) as its
// owner.

namespace coregui {

/// The widget behind a window; null for one that is gone or has no native window. Borrowed: the window owns
/// it.
COREGUI_API QWidget* WidgetOf(const CWnd* window);
COREGUI_API QWidget* WidgetOf(HWND window);

/// A window object for a widget: our own window when the widget is (in) one of ours, otherwise one that
/// stands for your widget until that is destroyed. It can be a parent and an owner, knows its place, size and
/// text, and neither paints nor takes the widget's events. Borrowed. Null for null.
COREGUI_API CWnd* WindowOf(QWidget* widget);
COREGUI_API HWND HandleOf(QWidget* widget);

}  // namespace coregui
