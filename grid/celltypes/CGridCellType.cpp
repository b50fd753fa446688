#include "grid/celltypes/CGridCellType.h"

#include <cwchar>

#include "grid/celltypes/AbuttingLine.h"
#include "grid/celltypes/BorderPlan.h"
#include "grid/celltypes/CellStyleBits.h"
#include "grid/celltypes/TextPlaces.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridDrawHint.h"
#include "grid/control/CGridInfo.h"
#include "grid/control/DarkInk.h"
#include "platform/CDC.h"
#include "platform/System.h"

namespace {

using namespace coregui;

constexpr COLORREF kGreyedText = 0x8C8C8C;
constexpr int kHighlightsCurrent = 2;  // of the current-cell mode
// A text that starts further left is not looked for: it would need some six hundred characters to reach.
constexpr int kLongestSpill = 4096;

/// The size of a line as far as its placing needs it: measuring is what costs.
CSize MeasureLine(const CDC& dc, const wchar_t* text, int length, int alignment) {
  if ((alignment & (kAlignCentre | kAlignRight)) != 0) return dc.GetTextExtent(text, length);
  if ((alignment & (kAlignMiddle | kAlignBottom)) == 0) return {};
  TEXTMETRIC metrics;
  dc.GetTextMetrics(&metrics);
  return {0, metrics.tmHeight};
}

/// Selects a cell's font while it lives; none when the cell has none.
class FontInUse {
 public:
  FontInUse(CDC& dc, CFont* font) : m_dc(dc), m_used(font != nullptr) {
    if (m_used) m_before = dc.SelectObject(font);
  }
  ~FontInUse() {
    if (m_used) m_dc.SelectObject(m_before);
  }
  FontInUse(const FontInUse&) = delete;
  FontInUse& operator=(const FontInUse&) = delete;

 private:
  CDC& m_dc;
  bool m_used;
  CFont* m_before = nullptr;
};

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

bool HasText(CGridCell& cell) {
  const wchar_t* const text = cell.GetText();
  return text != nullptr && *text != L'\0';
}

int BitmapWidth(const CGridCell& cell) {
  const CBitmap* const bitmap = cell.GetBitmap();
  return bitmap != nullptr ? static_cast<int>(bitmap->GetSize().cx) : 0;
}

}  // namespace

// --- Drawing

void CGridCellType::OnDraw(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected,
                           int current) {
  if (MayOverlap(col, row, cell)) {
    if (HasText(*cell)) {
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
  if (CGridDrawHint* const hints = m_control->GetDrawHints(); hints != nullptr) hints->NoteSpill(col, row);
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

// --- Overlap

int CGridCellType::CanOverLap(CGridCell* cell) const {
  if (cell->IsPropertySet(CELLPROP_CELLTYPEEX | CELLPROP_JOIN) != 0 ||
      cell->IsPropertySet(CELLPROP_ALIGNMENT) == 0) {
    return 0;
  }
  return (cell->GetAlignment() & kAlignLeft) != 0 ? m_canOverlap : 0;
}

int CGridCellType::GetCellOverlapInfo(CDC* dc, int col, long row, int* startCol, CGridCell* startCell) {
  if (m_control == nullptr) return 0;
  const CGridColumns& columns = m_control->GetInfo().columns;
  // What is locked ends where the scrolled columns begin: no text reaches across.
  const long first = col >= columns.Locked() && columns.First() > columns.Locked() ? columns.Locked() : 0;
  int distance = 0;
  for (int left = col - 1; left >= first; --left) {
    const int width = m_control->GetColWidth(left);
    distance += width;
    if (distance > kLongestSpill) return 0;
    if (width == 0) continue;
    m_control->GetCellIndirect(left, row, startCell);
    const CGridCellType* const type = m_control->GetCellType(startCell->GetCellType());
    if (type == nullptr || type->CanOverLap(startCell) == 0) return 0;
    if (!HasText(*startCell)) {
      if (startCell->GetBitmap() != nullptr) return 0;
      continue;  // the text may pass over it
    }
    const int indent = LeftBorderWidth(*startCell);
    const wchar_t* const text = startCell->GetText();
    const FontInUse font(*dc, startCell->GetFont());
    const int textWidth = dc->GetTextExtent(text, static_cast<int>(std::wcslen(text))).cx;
    const int used = indent + m_control->GetMargin() + BitmapWidth(*startCell);
    if (!TextReaches(distance, used, textWidth)) return 0;
    *startCol = left;
    return indent - distance;
  }
  return 0;
}

int CGridCellType::LeftBorderWidth(const CGridCell& cell) const {
  constexpr CRect kRoomy(0, 0, 100, 100);
  return cell.IsPropertySet(CELLPROP_BORDER) != 0
             ? BorderPlan(kRoomy, cell.GetBorder(), false, m_control->Get3DHeight()).Inner().left
             : 0;
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

// --- Device-independent bitmap rules

int CGridCellType::DIBNumColors(int bitsPerPixel, int used) {
  if (used != 0) return used;
  return bitsPerPixel == 1 || bitsPerPixel == 4 || bitsPerPixel == 8 ? 1 << bitsPerPixel : 0;
}

int CGridCellType::PaletteSize(int headerSize, int bitsPerPixel, int used) {
  constexpr int kOlderHeader = 12;
  return DIBNumColors(bitsPerPixel, used) * (headerSize == kOlderHeader ? 3 : 4);
}

std::vector<BYTE> CGridCellType::BitmapToDIB(const CBitmap& bitmap) {
  constexpr int kHeader = 40;
  constexpr int kBytes = 4;
  const CSize size = bitmap.GetSize();
  if (size.cx <= 0 || size.cy <= 0) return {};
  std::vector<BYTE> dib;
  dib.reserve(kHeader + static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy) * kBytes);
  const auto put = [&dib](DWORD value, int bytes) {
    for (int i = 0; i < bytes; ++i) dib.push_back(static_cast<BYTE>(value >> (8 * i)));
  };
  put(kHeader, 4);
  put(static_cast<DWORD>(size.cx), 4);
  put(static_cast<DWORD>(size.cy), 4);
  put(1, 2);                              // planes
  put(8 * kBytes, 2);                     // bits per pixel
  for (int i = 0; i < 6; ++i) put(0, 4);  // uncompressed; sizes and colours follow from the rest
  for (int y = size.cy - 1; y >= 0; --y) {
    for (int x = 0; x < size.cx; ++x) {
      const COLORREF dot = bitmap.GetPixel(x, y);
      put(static_cast<DWORD>(GetBValue(dot) | GetGValue(dot) << 8 | GetRValue(dot) << 16), kBytes);
    }
  }
  return dib;
}
