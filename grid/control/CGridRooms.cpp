#include "grid/control/CGridRooms.h"

#include "grid/control/CGridCtrl.h"

namespace coregui {

CGridRooms::CGridRooms(CGridCtrl& control)
    : parts(control),
      sheets(control),
      sources(sheets, control),
      cells(sheets, sources, control),
      joins(sheets, cells),
      geometry(sheets, joins),
      types(cells, control),
      vetoes(sources, control),
      moveSelection(sheets, parts),
      moveReport(sources, cells, types, control),
      navigator({sheets, joins, vetoes, moveSelection, moveReport, control, parts}),
      counts({sheets, sources, joins, navigator, parts}),
      sizing({sheets, cells, types, navigator, parts}),
      sorting(sheets),
      finder(sheets),
      clipboard({sheets, cells, navigator, control, parts}),
      menu(control, control) {}

}  // namespace coregui
