#include "grid/control/AxisMoves.h"

#include <algorithm>

#include "grid/control/CGridAxis.h"

namespace coregui {

bool DragTarget(const CGridAxis& axis, int code, long& target) {
  switch (code) {
    case moveStepBack:
      target = axis.drag - 1;
      return true;
    case moveStepForward:
      target = axis.drag + 1;
      return true;
    case movePageBack:
      target = axis.PageTarget(axis.drag, -1);
      return true;
    case movePageForward:
      target = axis.PageTarget(axis.drag, 1);
      return true;
    case moveToFirst:
      target = 0;
      return true;
    case moveToLast:
      target = axis.Count() - 1;
      return true;
    default:
      return false;
  }
}

bool ViewTarget(const CGridAxis& axis, int code, long& target) {
  const long first = axis.First();
  switch (code) {
    case moveStepBack:
      target = axis.NearestShown(first - 1, -1);
      return true;
    case moveStepForward:
      target = std::max(axis.NearestShown(first + 1, 1), first);
      return true;
    case movePageBack:
      target = std::min(axis.PageTarget(first, -1), first - 1);
      return true;
    case movePageForward:
      target = std::max(axis.PageTarget(first, 1), first + 1);
      return true;
    case moveToFirst:
      target = 0;
      return true;
    case moveToLast:
      target = axis.MaxFirst();
      return true;
    default:
      return false;
  }
}

bool BringIntoAxis(const CGridAxis& axis, long& target) {
  if (axis.Count() <= 0) {
    return false;
  }
  target = std::clamp(target, 0L, axis.Count() - 1);
  const int direction = target < axis.drag ? -1 : 1;
  long shown = axis.NearestShown(target, direction);
  if (shown < 0) {
    shown = axis.NearestShown(target, -direction);
  }
  target = shown < 0 ? target : shown;
  return true;
}

}  // namespace coregui
