#pragma once

#include "grid/celltypes/CGridCellType.h"

/// An arrow in the cell, for row headings and marks; drawn in the cell's text colour, by its extended style.
class COREGUI_API CGridArrowType : public CGridCellType {
 public:
  const wchar_t* GetName() override;
  GridID GetGridID() override;
  void OnDraw(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected, int current) override;
  void GetBestSize(CDC* dc, CSize* size, CGridCell* cell) override;
};
