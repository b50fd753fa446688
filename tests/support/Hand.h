#pragma once

#include <functional>
#include <vector>

#include "platform/CWnd.h"

/// A person's hand on one window: the toolkit's own events, as a keyboard, an input method and a mouse bring
/// them.
namespace coregui::test {

/// Presses and releases a key (VK_ value) with the characters that it types.
void PressKey(CWnd& window, UINT key, bool control = false, bool shift = false);
/// Types each character.
void TypeKeys(CWnd& window, const wchar_t* text);
/// An input method commits a text.
void CommitText(CWnd& window, const wchar_t* text);
/// Drops a text behind the last character.
void DropText(CWnd& window, const wchar_t* text);
/// Clicks in the middle, or at a place of the client area.
void Click(CWnd& window);
void ClickAt(CWnd& window, CPoint at);
/// Presses the button at one place and releases it at another; `held` is called before the release.
void Drag(
    CWnd& window, CPoint from, CPoint to, const std::function<void()>& held = [] {});
enum class MouseStep { press, move, release, doubleClick };
/// One step of the mouse at a place of the client area. Moves are made with the button held that the last
/// press left down.
void StepMouse(CWnd& window, MouseStep step, CPoint at, bool right = false);
/// Turns the wheel; 120 are one notch away from the hand.
void TurnWheel(CWnd& window, CPoint at, int delta);
/// The text of the tip that is shown; empty when none is.
CString ShownTip();
/// Moves the pointer over a place; `flags` are the buttons and keys held (MK_).
void MovePointer(CWnd& window, CPoint at, UINT flags = 0);
/// Presses or releases one button (MK_LBUTTON, MK_RBUTTON or MK_MBUTTON).
void PressButton(CWnd& window, UINT button, CPoint at);
void ReleaseButton(CWnd& window, UINT button, CPoint at);
/// The pointer leaves the window.
void TakePointerAway(CWnd& window);
/// One step of two fingers on a touchpad.
void SlideTwoFingers(CWnd& window, CPoint at, CSize by);
/// The colour of the pixel that the window shows there, children included.
COLORREF ShownPixel(CWnd& window, CPoint at);
/// All dots of the screen that the window shows, children included, row by row, as 0xRRGGBB.
std::vector<DWORD> ShownDots(CWnd& window);
/// How many pixels of the window differ from the one in its corner.
int InkPixels(CWnd& window);
/// What a screen reader says besides the name.
CString AccessibleDescription(CWnd& window);
/// Whether the pointer is a hand over the window.
bool HasHandCursor(CWnd& window);

}  // namespace coregui::test
