#pragma once

#include <functional>

#include "core/Export.h"
#include "platform/Geometry.h"

class CDC;
class CGridDrawHint;

namespace coregui {

/// What the rooms of a grid may ask of its windows. Everything works, and does nothing, while there is no
/// native window. A test gives its own.
class COREGUI_API CGridScreen {
 public:
  virtual ~CGridScreen() = default;

  /// The position or the current cell has changed: the body and the headings repaint what that changes and
  /// what their hints hold.
  virtual void ShowMoved() = 0;
  /// Repaints a range of cells, heading cells included.
  virtual void ShowRange(int startCol, long startRow, int endCol, long endRow) = 0;
  /// Repaints everything.
  virtual void ShowAll() = 0;
  /// Sets both scroll bars to the present sheet's counts, view and position.
  virtual void ShowScrollBars() = 0;
  /// The sheets, their names or the current one have changed.
  virtual void ShowSheets() = 0;
  /// Puts the child windows into the places that the present layout gives them.
  virtual void LayOut() = 0;
  /// The hints of the body; null while there is no body.
  virtual CGridDrawHint* BodyHints() = 0;
  /// Calls `measure` with a device context of the grid window in the grid's default font; false, without
  /// calling it, when there is no window.
  virtual bool Measure(const std::function<void(CDC& dc)>& measure) = 0;
  /// Gives the body the focus.
  virtual void FocusBody() = 0;

 protected:
  CGridScreen() = default;
  CGridScreen(const CGridScreen&) = default;
  CGridScreen& operator=(const CGridScreen&) = default;
};

}  // namespace coregui
