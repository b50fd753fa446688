#pragma once

#include <QCursor>

#include "platform/Types.h"

class QWidget;

/// A cursor of the toolkit behind the opaque handle.
struct coregui_cursor {
  QCursor cursor;
};

namespace coregui {

/// For the windows' side: the widget that the pointer is over, whose cursor SetCursor changes. Held weakly.
void SetCursorTarget(QWidget* widget);

}  // namespace coregui
