#include "grid/celltypes/CGridCellType.h"

#include <cwchar>

#include "grid/celltypes/AbuttingLine.h"
#include "grid/celltypes/BorderPlan.h"
#include "grid/celltypes/CellStyleBits.h"
#include "grid/celltypes/FontInUse.h"
#include "grid/celltypes/TextPlaces.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/DarkInk.h"
#include "platform/CDC.h"
#include "platform/System.h"

namespace {

using namespace coregui;

constexpr COLORREF kGreyedText = 0x8C8C8C;
constexpr int kHighlightsCurrent = 2;  // of the current-cell mode

/// The size of a line as far as its placing needs it: measuring is what costs.
CSize MeasureLine(const CDC& dc, const wchar_t* text, int length, int alignment) {
  if ((alignment & (kAlignCentre | kAlignRight)) != 0) return dc.GetTextExtent(text, length);
  if ((alignment & (kAlignMiddle | kAlignBottom)) == 0) return {};
  TEXTMETRIC metrics;
  dc.GetTextMetrics(&metrics);
  return {0, metrics.tmHeight};
}

void DrawLines(CDC* dc, const BorderPlan& plan, CPen* cellPen, CPen* gridPen) {
  CPen light(PS_SOLID, 1, GetSysColor(COLOR_BTNHIGHLIGHT));
  CPen shadow(PS_SOLID, 1, GetSysColor(COLOR_BTNSHADOW));
  CPen* const pens[] = {cellPen, gridPen, &light, &shadow};
  CPen* const before = dc->GetCurrentPen();
  for (int i = 0; i < plan.Count(); ++i) {
    dc->SelectObject(pens[static_cast<int>(plan[i].ink)]);
    if (plan[i].wide) {
      DrawAbuttingLine(*dc, plan[i].from, plan[i].to);
    } else {
      dc->MoveTo(plan[i].from.x, plan[i].from.y);
      dc->LineTo(plan[i].to.x, plan[i].to.y);
    }
  }
  dc->SelectObject(before);
}

}  // namespace

// --- Drawing

void CGridCellType::OnDraw(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected,
                           int current) {
  if (MayOverlap(col, row, cell)) {
    const wchar_t* const text = cell->GetText();
    const bool empty = text == nullptr || *text == L'\0';
    if (!empty) {
      HintRightNeighbour(col, row);
    } else if (DrawSpilledText(dc, rect, col, row, cell, selected, current)) {
      HintRightNeighbour(col, row);
      return;
    }
  }
  RECT inner;
  DrawBorder(dc, rect, &inner, cell);
  DrawText(dc, &inner, 0, col, row, cell, selected, current);
}

void CGridCellType::DrawBorder(CDC* dc, RECT* rect, RECT* inner, CGridCell* cell) {
  const CRect area = *rect;  // rect and inner may be one
  *inner = area;
  const bool own = cell->IsPropertySet(CELLPROP_BORDER) != 0;
  const bool spreadsheet = m_control != nullptr && m_control->GetExcelBorders() != 0;
  if (!own && !spreadsheet) return;
  static CPen plain;
  CPen* const gridPen = m_control != nullptr ? m_control->GetGridLinePen() : &plain;
  CPen* const cellPen = cell->GetBorderColor() != nullptr ? cell->GetBorderColor() : gridPen;
  const BorderPlan plan(area, own ? cell->GetBorder() : 0, spreadsheet,
                        m_control != nullptr ? m_control->Get3DHeight() : 1);
  if (cellPen->GetStyle() != PS_SOLID)
    dc->FillSolidRect(area, cell->GetBackColor());  // shows between the dashes
  DrawLines(dc, plan, cellPen, gridPen);
  *inner = plan.Inner();
}

void CGridCellType::DrawBackground(CDC* dc, RECT* rect, COLORREF backColor, int, int, CGridCell*, bool,
                                   bool) {
  dc->FillSolidRect(*rect, backColor);
  dc->SetBkMode(TRANSPARENT);
}

int CGridCellType::DrawBitmap(CDC* dc, CBitmap* bitmap, RECT* rect, COLORREF) {
  const CRect area = *rect;
  if (bitmap == nullptr || !bitmap->IsCreated() || area.IsRectEmpty()) return 0;
  const CSize size = bitmap->GetSize();
  const int saved = dc->SaveDC();
  dc->IntersectClipRect(area);
  dc->DrawBitmap(*bitmap, area.left, area.top + (area.Height() - size.cy) / 2);
  dc->RestoreDC(saved);
  return size.cx;
}

void CGridCellType::DrawText(CDC* dc, RECT* rect, int offset, int col, long row, CGridCell* cell,
                             int selected, int current) {
  const Colours colours = GetColours(cell, selected, current);
  DrawBackground(dc, rect, colours.back, col, static_cast<int>(row), cell, current != 0, selected != 0);
  if (CBitmap* const bitmap = cell->GetBitmap(); bitmap != nullptr) {
    RECT area = *rect;
    area.left += offset;
    offset += DrawBitmap(dc, bitmap, &area, colours.back);
  }
  const wchar_t* const text = GetShownText(cell);
  if (*text == L'\0') return;
  const FontInUse font(*dc, cell->GetFont());
  dc->SetTextColor(colours.text);
  PutText(dc, *rect, offset, text, cell);
}

void CGridCellType::PutText(CDC* dc, const RECT& rect, int offset, const wchar_t* text,
                            CGridCell* cell) const {
  const int length = static_cast<int>(std::wcslen(text));
  const TextPlacement place{rect, cell->GetAlignment(), m_control != nullptr ? m_control->GetMargin() : 0,
                            offset};
  switch (ChooseTextOutput(cell->GetCellTypeEx())) {
    case TextOutput::line: {
      const CPoint at = PlaceLine(place, MeasureLine(*dc, text, length, place.alignment));
      dc->ExtTextOut(at.x, at.y, ETO_CLIPPED, &rect, text, length);
      break;
    }
    case TextOutput::ellipsis: {
      const int height = MeasureLine(*dc, text, length, place.alignment & (kAlignMiddle | kAlignBottom)).cy;
      CRect line = PlaceEllipsisLine(place, height);
      dc->DrawText(text, length, &line, DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
      break;
    }
    case TextOutput::wrapped: {
      CRect area = WrapArea(place);
      const UINT format = WrapFormat(place.alignment);
      if (NeedsWrappedHeight(place.alignment)) {
        CRect measured = area;
        area.top = WrapTop(place, dc->DrawText(text, length, &measured, format | DT_CALCRECT));
      }
      const int saved = dc->SaveDC();
      dc->IntersectClipRect(rect);
      dc->DrawText(text, length, &area, format);
      dc->RestoreDC(saved);
      break;
    }
  }
}

CGridCellType::Colours CGridCellType::GetColours(CGridCell* cell, int selected, int current) const {
  if ((cell->GetCellTypeEx() & kExtendedDisabled) != 0) return {kGreyedText, cell->GetBackColor(), false};
  const bool currentMarked =
      current != 0 && m_control != nullptr && (m_control->GetCurrentCellMode() & kHighlightsCurrent) != 0;
  if (selected == 0 && !currentMarked) {
    const COLORREF back = cell->GetBackColor();
    return {ReadableText(cell->GetTextColor(), back), back, false};
  }
  return {cell->GetHTextColor(), cell->GetHBackColor(), true};
}

const wchar_t* CGridCellType::GetShownText(CGridCell* cell) const {
  const bool label = m_drawLabel != 0 || (cell->GetCellTypeEx() & kExtendedLabel) != 0;
  const wchar_t* const text = label ? cell->GetLabelText() : cell->GetText();
  return text != nullptr ? text : L"";
}

// --- Measuring

void CGridCellType::GetBestSize(CDC* dc, CSize* size, CGridCell* cell) {
  const int margin = m_control != nullptr ? m_control->GetMargin() : 0;
  const wchar_t* const text = GetShownText(cell);
  const FontInUse font(*dc, cell->GetFont());
  TEXTMETRIC metrics;
  dc->GetTextMetrics(&metrics);
  CRect lines;
  if (*text != L'\0') {
    const UINT single = ChooseTextOutput(cell->GetCellTypeEx()) == TextOutput::wrapped ? 0 : DT_SINGLELINE;
    dc->DrawText(text, static_cast<int>(std::wcslen(text)), &lines, DT_CALCRECT | DT_NOPREFIX | single);
  }
  CSize content(lines.Width() + 2 * margin, std::max<LONG>(lines.Height(), metrics.tmHeight) + 2);
  if (const CBitmap* const bitmap = cell->GetBitmap(); bitmap != nullptr) {
    content.cx += bitmap->GetSize().cx;
    content.cy = std::max(content.cy, bitmap->GetSize().cy);
  }
  const CRect outer(0, 0, 1000, 1000);
  const bool spreadsheet = m_control != nullptr && m_control->GetExcelBorders() != 0;
  const BorderPlan border(outer, cell->GetBorder(), spreadsheet,
                          m_control != nullptr ? m_control->Get3DHeight() : 1);
  size->cx = content.cx + outer.Width() - border.Inner().Width();
  size->cy = content.cy + outer.Height() - border.Inner().Height();
}

// --- What the type is

const wchar_t* CGridCellType::GetName() {
  return L"Normal Cell Type (default)";
}

GridID CGridCellType::GetGridID() {
  return {0x6B1C52A0, 0x2F47, 0x4C0E, {0x9D, 0x11, 0x5E, 0x70, 0xC4, 0x2A, 0x83, 0x00}};
}

int CGridCellType::OnCellTypeNotify(long id, int col, long row, long message, long param) {
  return m_control != nullptr ? m_control->OnCellTypeNotify(id, col, row, message, param) : 1;
}

int CGridCellType::SetTextEditMode(int on) {
  m_textEdit = on != 0 ? 1 : 0;
  return 0;
}

void CGridCellType::Attach(CGridCtrl* control, int id) {
  m_control = control;
  m_id = id;
}
