#pragma once

namespace coregui {

class CGridAxis;

// Codes of moves, for the current entry and for the view.
inline constexpr int moveStepBack = 0;
inline constexpr int moveStepForward = 1;
inline constexpr int movePageBack = 2;
inline constexpr int movePageForward = 3;
inline constexpr int moveToFirst = 4;
inline constexpr int moveToLast = 5;

/// Where a move code takes the drag entry; it may lie outside the axis. False, with `target` unchanged, for
/// other codes.
bool DragTarget(const CGridAxis& axis, int code, long& target);
/// The same for the first entry in view. A page leaves the last whole entry of the old view in the new one.
bool ViewTarget(const CGridAxis& axis, int code, long& target);
/// Brings a target of the drag entry into the axis, off hidden entries where others are shown. False when the
/// axis is empty.
bool BringIntoAxis(const CGridAxis& axis, long& target);

}  // namespace coregui
