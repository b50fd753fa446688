// Texts that spill over their empty neighbours.

#include <cwchar>
#include <optional>

#include "grid/celltypes/BorderPlan.h"
#include "grid/celltypes/CGridCellType.h"
#include "grid/celltypes/CellStyleBits.h"
#include "grid/celltypes/FontInUse.h"
#include "grid/celltypes/TextPlaces.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridDrawHint.h"
#include "grid/control/CGridInfo.h"
#include "platform/CBitmap.h"
#include "platform/CDC.h"

using namespace coregui;

namespace {

// A text that starts further left is not looked for: it would need some six hundred characters to reach.
constexpr int kLongestSpill = 4096;

bool HasText(CGridCell& cell) {
  const wchar_t* const text = cell.GetText();
  return text != nullptr && *text != L'\0';
}

int BitmapWidth(const CGridCell& cell) {
  const CBitmap* const bitmap = cell.GetBitmap();
  return bitmap != nullptr ? static_cast<int>(bitmap->GetSize().cx) : 0;
}

}  // namespace

bool CGridCellType::MayOverlap(int col, long row, CGridCell* cell) const {
  return m_control != nullptr && col >= 0 && row >= 0 && m_control->GetCellOverLap() != 0 &&
         CanOverLap(cell) != 0;
}

bool CGridCellType::DrawSpilledText(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected,
                                    int current) {
  if (cell->GetBitmap() != nullptr) return false;
  int startCol = 0;
  const int offset = GetCellOverlapInfo(dc, col, row, &startCol, &m_spilling);
  if (offset == 0) return false;
  RECT inner;
  DrawBorder(dc, rect, &inner, cell);
  const int saved = dc->SaveDC();
  dc->IntersectClipRect(inner);  // a bitmap before the text lies outside
  DrawText(dc, &inner, offset - (inner.left - rect->left), startCol, row, &m_spilling, selected, current);
  dc->RestoreDC(saved);
  if (CGridDrawHint* const hints = m_control->GetDrawHints(); hints != nullptr)
    hints->NoteDrawnAsOne({startCol, row, col, row});
  return true;
}

/// A text may go on, or may have gone on before, in the next cell in view.
void CGridCellType::HintRightNeighbour(int col, long row) {
  CGridDrawHint* const hints = m_control->GetDrawHints();
  if (hints == nullptr) return;
  int next = col + 1;
  while (next < m_control->GetNumberCols() && m_control->GetColWidth(next) == 0) ++next;
  if (next < m_control->GetNumberCols() && hints->IsInvalid(next, row) == 0) {
    hints->AddHint(col + 1, row, next, row);
  }
}

int CGridCellType::CanOverLap(CGridCell* cell) const {
  if (cell->IsPropertySet(CELLPROP_CELLTYPEEX | CELLPROP_JOIN) != 0 ||
      cell->IsPropertySet(CELLPROP_ALIGNMENT) == 0) {
    return 0;
  }
  return (cell->GetAlignment() & kAlignLeft) != 0 ? m_canOverlap : 0;
}

int CGridCellType::GetCellOverlapInfo(CDC* dc, int col, long row, int* startCol, CGridCell* startCell) {
  if (m_control == nullptr) return 0;
  CGridDrawHint* const hints = m_control->GetDrawHints();
  const std::optional<int> offset = FindSpillFromLeft(dc, col, row, startCol, startCell, hints);
  if (!offset && hints != nullptr) hints->NoteUnreached(col, row);
  return offset.value_or(0);
}

/// Walks left to a text. Past a cell that no text reaches there is none to be found, so that a row of empty
/// cells costs each of them one step and not the way to the row's start.
std::optional<int> CGridCellType::FindSpillFromLeft(CDC* dc, int col, long row, int* startCol,
                                                    CGridCell* startCell, const CGridDrawHint* hints) {
  const CGridColumns& columns = m_control->GetInfo().columns;
  // What is locked ends where the scrolled columns begin: no text reaches across.
  const long first = col >= columns.Locked() && columns.First() > columns.Locked() ? columns.Locked() : 0;
  int distance = 0;
  for (int left = col - 1; left >= first; --left) {
    const int width = m_control->GetColWidth(left);
    distance += width;
    if (distance > kLongestSpill) return std::nullopt;
    if (width == 0) continue;
    m_control->GetCellIndirect(left, row, startCell);
    const CGridCellType* const type = m_control->GetCellType(startCell->GetCellType());
    if (type == nullptr || type->CanOverLap(startCell) == 0) return std::nullopt;
    if (HasText(*startCell)) {
      const std::optional<int> offset = SpillOver(dc, distance, startCell);
      if (offset) *startCol = left;
      return offset;
    }
    if (startCell->GetBitmap() != nullptr) return std::nullopt;
    if (hints != nullptr && hints->IsUnreached(left, row)) return std::nullopt;
  }
  return std::nullopt;
}

/// The offset of the cell's text seen from so many pixels behind its start; none when it ends before.
std::optional<int> CGridCellType::SpillOver(CDC* dc, int distance, CGridCell* cell) const {
  const int indent = LeftBorderWidth(*cell);
  const wchar_t* const text = cell->GetText();
  const FontInUse font(*dc, cell->GetFont());
  const int textWidth = dc->GetTextExtent(text, static_cast<int>(std::wcslen(text))).cx;
  const int used = indent + m_control->GetMargin() + BitmapWidth(*cell);
  return TextReaches(distance, used, textWidth) ? std::optional(indent - distance) : std::nullopt;
}

int CGridCellType::LeftBorderWidth(const CGridCell& cell) const {
  constexpr CRect kRoomy(0, 0, 100, 100);
  return cell.IsPropertySet(CELLPROP_BORDER) != 0
             ? BorderPlan(kRoomy, cell.GetBorder(), false, m_control->Get3DHeight()).Inner().left
             : 0;
}
