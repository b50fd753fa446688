#include "grid/celltypes/CGridArrowType.h"

#include "grid/celltypes/AbuttingLine.h"
#include "grid/celltypes/ArrowPlan.h"
#include "platform/CDC.h"

using namespace coregui;

const wchar_t* CGridArrowType::GetName() {
  return L"Side Arrows";
}

GridID CGridArrowType::GetGridID() {
  return {0x6B1C52A0, 0x2F47, 0x4C0E, {0x9D, 0x11, 0x5E, 0x70, 0xC4, 0x2A, 0x83, 0x03}};
}

void CGridArrowType::OnDraw(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected,
                            int current) {
  RECT inner;
  DrawBorder(dc, rect, &inner, cell);
  const Colours colours = GetColours(cell, selected, current);
  DrawBackground(dc, &inner, colours.back, col, static_cast<int>(row), cell, current != 0, selected != 0);
  const ArrowGlyph glyph = PlanArrow(*rect, cell->GetCellTypeEx());
  const int saved = dc->SaveDC();
  dc->IntersectClipRect(inner);
  CPen pen(PS_SOLID, 1, colours.text);
  CPen* const before = dc->SelectObject(&pen);
  for (int i = 0; i < glyph.count; ++i) {
    const ArrowGlyph::Line& line = glyph.lines[static_cast<std::size_t>(i)];
    DrawAbuttingLine(*dc, line.from, line.to);
  }
  dc->SelectObject(before);
  dc->RestoreDC(saved);
}

void CGridArrowType::GetBestSize(CDC* dc, CSize* size, CGridCell* cell) {
  CGridCellType::GetBestSize(dc, size, cell);
  size->cx = ArrowWidth(cell->GetCellTypeEx());
}
