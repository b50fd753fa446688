#pragma once

#include "platform/Types.h"

class CGridCtrl;

namespace coregui {

/// The help number of the place under a client point of a section's window (GRIDSECTION_…); 0: none. `point`
/// is as in WM_HELPHITTEST. The control is asked with col and row -1 where no cell is.
LRESULT HelpNumberAt(CGridCtrl& control, int section, LPARAM point);

/// Asks the windows that the grid stands in, the nearest first, to show the help of the current cell, until
/// one answers WM_HELP. Nothing where the cell has no help number.
void AskForHelp(CGridCtrl& control);

}  // namespace coregui
