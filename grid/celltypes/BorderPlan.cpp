#include "grid/celltypes/BorderPlan.h"

#include <algorithm>

#include "grid/celltypes/CellStyleBits.h"

namespace coregui {
namespace {

constexpr int kSides = 4;
constexpr int kMostEdgeWidth = 4;  // keeps every plan within its fixed array

/// The width of the cell's own line on a side (0 none): the widest of those that are asked for.
constexpr int OwnWidth(int bits, int side) {
  if ((bits & (kBorderThick << side)) != 0) return 3;
  if ((bits & (kBorderMedium << side)) != 0) return 2;
  return (bits & (kBorderThin << side)) != 0 ? 1 : 0;
}

}  // namespace

BorderPlan::BorderPlan(const CRect& cell, int bits, bool spreadsheet, int height3d) : m_inner(cell) {
  const bool edged = (bits & (kBorderSunken | kBorderRaised)) != 0;
  if (edged) {
    const bool raised = (bits & kBorderRaised) != 0;
    const int width = std::clamp(height3d, 0, kMostEdgeWidth);
    for (int side = left; side < kSides; ++side) {
      const bool lit = (side == left || side == top) == raised;
      AddSide(cell, static_cast<Side>(side), width, lit ? BorderInk::light : BorderInk::shadow);
    }
  }
  for (int side = left; side < kSides; ++side) {
    const int own = OwnWidth(bits, side);
    if (own > 0) {
      AddSide(cell, static_cast<Side>(side), own, BorderInk::cellPen);
    } else if (spreadsheet && !edged && (side == right || side == bottom)) {
      AddSide(cell, static_cast<Side>(side), 1, BorderInk::gridPen);
    }
  }
  m_inner.right = std::max(m_inner.left, m_inner.right);
  m_inner.bottom = std::max(m_inner.top, m_inner.bottom);
}

void BorderPlan::AddSide(const CRect& cell, Side side, int width, BorderInk ink) {
  for (int depth = 0; depth < width; ++depth) {
    AddLine(cell, side, depth, ink);
    m_lines[static_cast<std::size_t>(m_count - 1)].wide = width > 1;
  }
  switch (side) {
    case left:
      m_inner.left = std::max(m_inner.left, cell.left + width);
      break;
    case top:
      m_inner.top = std::max(m_inner.top, cell.top + width);
      break;
    case right:
      m_inner.right = std::min(m_inner.right, cell.right - width);
      break;
    case bottom:
      m_inner.bottom = std::min(m_inner.bottom, cell.bottom - width);
      break;
  }
}

void BorderPlan::AddLine(const CRect& cell, Side side, int depth, BorderInk ink) {
  BorderLine line;
  line.ink = ink;
  switch (side) {
    case left:
      line.from = CPoint(cell.left + depth, cell.top);
      line.to = CPoint(cell.left + depth, cell.bottom);
      break;
    case top:
      line.from = CPoint(cell.left, cell.top + depth);
      line.to = CPoint(cell.right, cell.top + depth);
      break;
    case right:
      line.from = CPoint(cell.right - 1 - depth, cell.top);
      line.to = CPoint(cell.right - 1 - depth, cell.bottom);
      break;
    case bottom:
      line.from = CPoint(cell.left, cell.bottom - 1 - depth);
      line.to = CPoint(cell.right, cell.bottom - 1 - depth);
      break;
  }
  m_lines[static_cast<std::size_t>(m_count++)] = line;
}

}  // namespace coregui
