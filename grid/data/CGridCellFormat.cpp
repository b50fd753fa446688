#include "grid/data/CGridCellFormat.h"

void CGridCellFormat::ApplyDisplayFormat(CGridCell* /*cell*/) {}

int CGridCellFormat::ValidateCellInfo(CGridCell* /*cell*/) {
  return 0;
}
