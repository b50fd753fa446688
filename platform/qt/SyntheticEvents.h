#pragma once

#include "platform/Types.h"

class QWidget;

namespace coregui {

bool IsWheel(UINT message);
/// Mouse, wheel and key messages: those that stand for events of the toolkit.
bool IsInput(UINT message);
/// Gives a control's widget the event that an input message stands for: for messages that code sent.
/// False for other messages.
bool GiveAsEvent(QWidget& widget, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace coregui
