#pragma once

#include "platform/Types.h"

class CWnd;

namespace coregui {

/// The SB_ code of an action of the toolkit's sliders; SB_THUMBTRACK for one that has none of its own.
int ScrollCodeOf(int sliderAction);
/// Tells the parent of a scroll bar or slider what a person does with it.
void TellScroll(const CWnd& control, bool vertical, int code, int position);

}  // namespace coregui
