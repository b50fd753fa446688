#include "controls/CWidthComboBox.h"

#include <algorithm>
#include <cmath>

#include "platform/CDC.h"
#include "platform/Locale.h"
#include "platform/System.h"

namespace {

constexpr int kItemHeight = 22;  // at 96 dots per inch
constexpr int kTextWidth = 64;
constexpr int kMargin = 6;
constexpr double kPerMillimetre = 100.0;

/// Line widths of technical product documentation (ISO 128-2) from 0.13 mm, with the usual steps between, in
/// hundredths of a millimetre.
constexpr int kStandard[] = {0,  5,  9,  13, 15, 18,  20,  25,  30,  35,  40, 50,
                             53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200};

CString TextOf(int hundredths) {
  const CString plain = CString::Formatted(L"%d.%02d", hundredths / 100, hundredths % 100);
  return coregui::FormatNumberText(plain, 2) + L" mm";
}

}  // namespace

void CWidthComboBox::AddStandardWidths() {
  for (const int hundredths : kStandard) AddWidth(hundredths / kPerMillimetre);
  SetCurSel(-1);
}

int CWidthComboBox::AddWidth(double millimetres) {
  if (!(millimetres >= 0 && millimetres <= kWidest)) return CB_ERR;
  const auto hundredths = static_cast<int>(std::lround(millimetres * kPerMillimetre));
  int place = 0;
  while (place < GetCount() && GetItemData(place) < hundredths) ++place;
  if (place < GetCount() && GetItemData(place) == hundredths) return place;
  const int added = InsertString(place, TextOf(hundredths));
  SetItemData(added, hundredths);
  return added;
}

bool CWidthComboBox::SetWidth(double millimetres) {
  const int index = AddWidth(millimetres);
  return index >= 0 && SetCurSel(index) == index;
}

double CWidthComboBox::GetWidth() const {
  const int chosen = GetCurSel();
  return chosen < 0 ? -1.0 : static_cast<double>(GetItemData(chosen)) / kPerMillimetre;
}

BOOL CWidthComboBox::PreCreateWindow(CREATESTRUCT& create) {
  constexpr DWORD kKinds = CBS_SIMPLE | CBS_DROPDOWN | CBS_SORT;
  create.style = (create.style & ~kKinds) | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED;
  return CComboBox::PreCreateWindow(create);
}

int CWidthComboBox::GetItemHeight() const {
  return ScaleByDpi(kItemHeight);
}

int CWidthComboBox::PixelsOf(LPARAM hundredths) {
  constexpr double kDotsPerInch = 96.0;
  constexpr double kMillimetresPerInch = 25.4;
  const double millimetres = static_cast<double>(hundredths) / kPerMillimetre;
  const double pixels = millimetres / kMillimetresPerInch * kDotsPerInch * GetDpiScale();
  return std::max(1, static_cast<int>(std::lround(pixels)));
}

void CWidthComboBox::DrawItem(CDC& dc, const RECT& rect, int index, bool selected) {
  const COLORREF ink = GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT);
  dc.FillSolidRect(rect, GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  if (index < 0) return;
  CString text;
  GetLBText(index, text);
  CRect inside(rect);
  inside.DeflateRect(ScaleByDpi(kMargin), 0);
  CRect label(inside);
  label.right = std::min(inside.right, inside.left + ScaleByDpi(kTextWidth));
  dc.SetTextColor(ink);
  dc.SetBkMode(TRANSPARENT);
  dc.DrawText(text, text.GetLength(), &label, DT_SINGLELINE | DT_VCENTER | DT_RIGHT | DT_NOPREFIX);
  const int thick = std::min(PixelsOf(GetItemData(index)), inside.Height() - 2);
  const int top = inside.top + (inside.Height() - thick) / 2;
  const CRect line(label.right + ScaleByDpi(kMargin), top, inside.right, top + thick);
  if (line.Width() > 0) dc.FillSolidRect(line, ink);
}
