#pragma once

#include "grid/control/CGridCells.h"
#include "grid/control/CGridClipboard.h"
#include "grid/control/CGridCounts.h"
#include "grid/control/CGridFinder.h"
#include "grid/control/CGridFonts.h"
#include "grid/control/CGridGeometry.h"
#include "grid/control/CGridJoins.h"
#include "grid/control/CGridMenu.h"
#include "grid/control/CGridMoveReport.h"
#include "grid/control/CGridMoveSelection.h"
#include "grid/control/CGridNavigator.h"
#include "grid/control/CGridParts.h"
#include "grid/control/CGridSheets.h"
#include "grid/control/CGridSizing.h"
#include "grid/control/CGridSorting.h"
#include "grid/control/CGridSourceTable.h"
#include "grid/control/CGridTypeTable.h"
#include "grid/control/CGridVetoes.h"

class CGridCtrl;

namespace coregui {

/// The rooms that a grid is made of, each built from those above it.
struct CGridRooms {
  explicit CGridRooms(CGridCtrl& control);

  CGridParts parts;
  CGridSheets sheets;
  CGridFonts fonts;
  CGridSourceTable sources;
  CGridCells cells;
  CGridJoins joins;
  CGridGeometry geometry;
  CGridTypeTable types;
  CGridVetoes vetoes;
  CGridMoveSelection moveSelection;
  CGridMoveReport moveReport;
  CGridNavigator navigator;
  CGridCounts counts;
  CGridSizing sizing;
  CGridSorting sorting;
  CGridFinder finder;
  CGridClipboard clipboard;
  CGridMenu menu;

  bool updates = true;  ///< the control's redraw switch
  bool initialSizing = false;
  int editInProgress = 0;
};

}  // namespace coregui
