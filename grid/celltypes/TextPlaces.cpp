#include "grid/celltypes/TextPlaces.h"

#include "grid/celltypes/CellStyleBits.h"

namespace coregui {
namespace {

constexpr int kEllipsisIndent = 3;

int LineTop(const TextPlacement& place, int height) {
  if ((place.alignment & kAlignMiddle) != 0) return place.cell.top + (place.cell.Height() - height) / 2;
  if ((place.alignment & kAlignBottom) != 0) return place.cell.bottom - height - 1;
  return place.cell.top + 1;
}

}  // namespace

TextOutput ChooseTextOutput(long extended) {
  if ((extended & kExtendedEllipsis) != 0) return TextOutput::ellipsis;
  return (extended & kExtendedWrap) != 0 ? TextOutput::wrapped : TextOutput::line;
}

CPoint PlaceLine(const TextPlacement& place, const CSize& text) {
  int x = place.cell.left + place.margin + place.offset;
  if ((place.alignment & kAlignCentre) != 0) {
    x = place.cell.left + (place.cell.Width() - text.cx) / 2;
  } else if ((place.alignment & kAlignRight) != 0) {
    x = place.cell.right - place.margin - text.cx;
  }
  return {x, LineTop(place, text.cy)};
}

CRect PlaceEllipsisLine(const TextPlacement& place, int textHeight) {
  CRect line = place.cell;
  line.left += place.offset + kEllipsisIndent;
  line.top = LineTop(place, textHeight);
  return line;
}

CRect WrapArea(const TextPlacement& place) {
  CRect area = place.cell;
  const int inset = place.margin + place.offset;
  if ((place.alignment & kAlignCentre) != 0) {
    area.left += inset;
    area.right -= inset;
  } else if ((place.alignment & kAlignRight) != 0) {
    area.right -= inset;
  } else {
    // Kept: left-aligned wrapped text has no margin; callers lay cells out by it. A bitmap or a box still
    // pushes it.
    area.left += place.offset;
  }
  return area;
}

UINT WrapFormat(int alignment) {
  UINT format = DT_WORDBREAK | DT_NOPREFIX;
  if ((alignment & kAlignCentre) != 0) {
    format |= DT_CENTER;
  } else if ((alignment & kAlignRight) != 0) {
    format |= DT_RIGHT;
  }
  return format;
}

bool NeedsWrappedHeight(int alignment) {
  return (alignment & (kAlignMiddle | kAlignBottom)) != 0;
}

int WrapTop(const TextPlacement& place, int height) {
  if ((place.alignment & kAlignMiddle) != 0) return place.cell.top + (place.cell.Height() - height) / 2;
  if ((place.alignment & kAlignBottom) != 0) return place.cell.bottom - height;
  return place.cell.top;
}

bool TextReaches(int distance, int before, int textWidth) {
  return before + textWidth > distance;
}

}  // namespace coregui
