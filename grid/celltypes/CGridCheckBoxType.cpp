#include "grid/celltypes/CGridCheckBoxType.h"

#include <algorithm>

#include "grid/celltypes/CellStyleBits.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/DarkInk.h"
#include "platform/CDC.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

using namespace coregui;

namespace {

constexpr COLORREF kWhite = 0xFFFFFF;
constexpr COLORREF kLightGrey = 0xE1E1E1;
constexpr UINT kSpace = L' ';
constexpr int kLabelGap = 6;

/// Selects a one-pixel pen while it lives.
class PenInUse {
 public:
  PenInUse(CDC& dc, COLORREF colour)
      : m_dc(dc), m_pen(PS_SOLID, 1, colour), m_before(dc.SelectObject(&m_pen)) {}
  ~PenInUse() { m_dc.SelectObject(m_before); }
  PenInUse(const PenInUse&) = delete;
  PenInUse& operator=(const PenInUse&) = delete;

 private:
  CDC& m_dc;
  CPen m_pen;
  CPen* m_before;
};

void Frame(CDC& dc, const CRect& box, COLORREF colour) {
  dc.FrameRect(box, colour);
}

}  // namespace

/// What decides how the box looks.
struct CGridCheckBoxType::Look {
  long state = 0;
  long style = 0;
  bool readOnly = false;
  COLORREF ink = 0;    ///< of the lines and the mark
  COLORREF light = 0;  ///< of the frames' outer lines
  COLORREF grey = 0;   ///< of the mark of the third state
};

CGridCheckBoxType::CGridCheckBoxType() {
  m_textEdit = 0;
  m_canOverlap = 0;
}

const wchar_t* CGridCheckBoxType::GetName() {
  return L"CheckBox";
}

GridID CGridCheckBoxType::GetGridID() {
  return {0x6B1C52A0, 0x2F47, 0x4C0E, {0x9D, 0x11, 0x5E, 0x70, 0xC4, 0x2A, 0x83, 0x02}};
}

// --- Clicks and keys

int CGridCheckBoxType::OnLClicked(int col, long row, int updn, RECT* rect, POINT* point) {
  if (updn == 0 || m_control == nullptr) return 0;
  m_control->GetCellIndirect(col, row, &m_clicked);
  RECT box = *rect;
  AdjustRect(&box, &m_clicked);
  return CRect(box).PtInRect(*point) && Toggle(col, row) ? 1 : 0;
}

int CGridCheckBoxType::OnDClicked(int col, long row, RECT* rect, POINT* point) {
  return OnLClicked(col, row, 1, rect, point);
}

int CGridCheckBoxType::OnCharDown(int col, long row, UINT* key) {
  return *key == kSpace && Toggle(col, row) ? 1 : 0;
}

/// False for a read-only or disabled cell.
bool CGridCheckBoxType::Toggle(int col, long row) {
  if (m_control == nullptr) return false;
  m_control->GetCellIndirect(col, row, &m_clicked);
  const long style = m_clicked.GetCellTypeEx();
  if (m_clicked.GetReadOnly() != 0 || (style & kExtendedDisabled) != 0) return false;
  const long state = NextCheckState(static_cast<long>(m_clicked.GetNumber()), style);
  const WindowRef alive(m_control);
  m_clicked.SetNumber(static_cast<double>(state));
  m_control->SetCell(col, row, &m_clicked);
  if (alive) m_control->RedrawCell(col, row);
  if (alive) OnCellTypeNotify(m_id, col, row, kCheckChanged, state);
  return true;
}

// --- Drawing

void CGridCheckBoxType::AdjustRect(RECT* rect, CGridCell* cell) const {
  *rect = CheckBoxRect(*rect, cell->GetAlignment(), cell->GetCellTypeEx());
}

void CGridCheckBoxType::OnDraw(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected,
                               int current) {
  RECT inner;
  DrawBorder(dc, rect, &inner, cell);
  const Colours colours = GetColours(cell, selected, current);
  Look look;
  look.state = static_cast<long>(cell->GetNumber());
  look.style = cell->GetCellTypeEx();
  look.readOnly = cell->GetReadOnly() != 0;
  look.ink = colours.highlighted ? kWhite : LineInk(colours.back);
  const bool dark = Brightness(look.ink) > Brightness(colours.back) && !colours.highlighted;
  look.light = dark ? GetSysColor(COLOR_3DLIGHT) : kLightGrey;
  look.grey = GetSysColor(dark ? COLOR_GRAYTEXT : COLOR_BTNSHADOW);
  const int size = CheckBoxSize(CRect(*rect).Height());
  const bool labelled = (look.style & kCheckAligned) == 0;
  if (labelled) {
    // Fills the cell too.
    m_drawLabel = 1;
    DrawText(dc, &inner, std::max(size, 0) + kLabelGap, col, row, cell, selected, current);
  } else {
    DrawBackground(dc, &inner, colours.back, col, static_cast<int>(row), cell, current != 0, selected != 0);
  }
  if (size < kSmallestCheckBox) return;
  RECT box = *rect;
  AdjustRect(&box, cell);
  const int saved = dc->SaveDC();
  dc->IntersectClipRect(inner);
  if ((look.style & kCheckRound) != 0) {
    DrawRoundBox(*dc, box, look);
  } else {
    DrawBox(*dc, box, look);
  }
  dc->RestoreDC(saved);
}

void CGridCheckBoxType::DrawBox(CDC& dc, const CRect& box, const Look& look) const {
  if (look.readOnly || look.state > 1) FillDitheredRect(&dc, box);
  DrawFrame(dc, box, look);
  if (look.state > 0) DrawMark(dc, box, look);
}

void CGridCheckBoxType::DrawFrame(CDC& dc, const CRect& box, const Look& look) const {
  CRect inside = box;
  inside.DeflateRect(1, 1);
  if ((look.style & kCheckFramed3d) != 0) {
    dc.Draw3dRect(box, look.grey, look.light);
    dc.Draw3dRect(inside, look.ink, look.light);
  } else if ((look.style & kCheckFramedFlat) != 0) {
    Frame(dc, box, look.light);
    Frame(dc, inside, look.ink);
  } else {
    Frame(dc, box, look.ink);
  }
}

void CGridCheckBoxType::DrawMark(CDC& dc, const CRect& box, const Look& look) const {
  const PenInUse pen(dc, look.state > 1 ? look.grey : look.ink);
  const CheckMark mark = (look.style & kCheckTick) != 0 ? TickMark(box) : CrossMark(box);
  for (int i = 0; i < mark.lines; ++i) {
    const CPoint& from = mark.points[static_cast<std::size_t>(2 * i)];
    const CPoint& to = mark.points[static_cast<std::size_t>(2 * i + 1)];
    dc.MoveTo(from.x, from.y);
    dc.LineTo(to.x, to.y);
  }
}

/// A full circle; the mark is a filled dot.
void CGridCheckBoxType::DrawRoundBox(CDC& dc, const CRect& box, const Look& look) const {
  if (look.readOnly) FillDitheredRect(&dc, box);
  const bool smooth = dc.SetAntiAliasing(true);
  {
    const PenInUse pen(dc, look.ink);
    CBrush none;
    CBrush* const before = dc.SelectObject(&none);
    dc.Ellipse(box);
    dc.SelectObject(before);
  }
  if (look.state > 0) {
    const COLORREF colour = look.state > 1 ? look.grey : look.ink;
    CRect dot = box;
    dot.DeflateRect(2, 2);
    const PenInUse pen(dc, colour);
    CBrush fill(colour);
    CBrush* const before = dc.SelectObject(&fill);
    dc.Ellipse(dot);
    dc.SelectObject(before);
  }
  dc.SetAntiAliasing(smooth);
}

bool CGridCheckBoxType::CreateDitherBitmap(CBitmap& bitmap) const {
  constexpr int kSide = 8;
  const auto dot = [](COLORREF colour) {
    return 0xFF000000U |
           static_cast<DWORD>(GetRValue(colour) << 16 | GetGValue(colour) << 8 | GetBValue(colour));
  };
  const DWORD face = dot(GetSysColor(COLOR_BTNFACE));
  const DWORD light = dot(GetSysColor(COLOR_BTNHIGHLIGHT));
  std::vector<DWORD> dots;
  for (int y = 0; y < kSide; ++y) {
    for (int x = 0; x < kSide; ++x) dots.push_back((x + y) % 2 == 0 ? light : face);
  }
  return bitmap.CreateFromPixels(kSide, kSide, dots) != 0;
}

void CGridCheckBoxType::FillDitheredRect(CDC* dc, const RECT& rect) const {
  CBitmap pattern;
  if (!CreateDitherBitmap(pattern)) {
    dc->FillSolidRect(rect, GetSysColor(COLOR_WINDOW));
    return;
  }
  const int saved = dc->SaveDC();
  dc->IntersectClipRect(rect);
  const CSize size = pattern.GetSize();
  for (int y = rect.top; y < rect.bottom; y += size.cy) {
    for (int x = rect.left; x < rect.right; x += size.cx) dc->DrawBitmap(pattern, x, y);
  }
  dc->RestoreDC(saved);
}

void CGridCheckBoxType::GetBestSize(CDC* dc, CSize* size, CGridCell* cell) {
  constexpr int kLargest = 12;
  m_drawLabel = 1;
  CGridCellType::GetBestSize(dc, size, cell);
  size->cx += kLargest + kLabelGap;
  size->cy = std::max<LONG>(size->cy, kLargest + kLabelGap);
}
