#include "controls/CFontCombo.h"

#include <algorithm>

#include "controls/FontNameCache.h"
#include "platform/CDC.h"
#include "platform/System.h"

namespace {

constexpr UINT kFormat = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
constexpr int kItemHeight = 24;  // at 96 dots per inch
constexpr int kFontHeight = 15;
constexpr int kMargin = 4;
constexpr int kListWidth = 280;  // at least: names are longer than the boxes of a dialog

/// Signs that fonts of symbols have at the places of letters.
const CString kSymbolSample = L"AaBb12";

}  // namespace

int CFontCombo::BuildFontCache() {
  return coregui::FontNameCache::Get().Build();
}

bool CFontCombo::SelectFont(const wchar_t* family) {
  const int found = FindStringExact(-1, family);
  return found >= 0 && SetCurSel(found) == found;
}

CString CFontCombo::GetSelectedFont() const {
  CString name;
  GetLBText(GetCurSel(), name);
  return name;
}

BOOL CFontCombo::PreCreateWindow(CREATESTRUCT& create) {
  constexpr DWORD kKinds = CBS_SIMPLE | CBS_DROPDOWN | CBS_SORT;
  create.style = (create.style & ~kKinds) | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED;
  return CComboBox::PreCreateWindow(create);
}

const coregui::MessageTable& CFontCombo::GetMessageTable() const {
  static const coregui::MessageTable table =
      coregui::MessageTable(CComboBox::Messages()).On<WM_CREATE>(&CFontCombo::HandleCreate);
  return table;
}

LRESULT CFontCombo::HandleCreate(WPARAM /*wParam*/, LPARAM /*lParam*/) {
  for (const auto& family : coregui::FontNameCache::Get().Families()) AddString(family.name);
  SetDroppedWidth(ScaleByDpi(kListWidth));
  return Default();
}

int CFontCombo::GetItemHeight() const {
  return ScaleByDpi(kItemHeight);
}

void CFontCombo::DrawItem(CDC& dc, const RECT& rect, int index, bool selected) {
  const auto& families = coregui::FontNameCache::Get().Families();
  CString name;
  GetLBText(index, name);
  const auto family =
      std::find_if(families.begin(), families.end(), [&name](const auto& f) { return f.name == name; });
  dc.FillSolidRect(rect, GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  if (family == families.end()) return;
  dc.SetTextColor(GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
  dc.SetBkMode(TRANSPARENT);
  CRect inside(rect);
  inside.DeflateRect(ScaleByDpi(kMargin), 0);
  CFont* const own = coregui::FontNameCache::Get().Sample(name, ScaleByDpi(kFontHeight));
  CFont* const system = family->symbols ? dc.GetCurrentFont() : dc.SelectObject(own);
  dc.DrawText(name, name.GetLength(), &inside, kFormat);
  if (family->symbols) {
    inside.left += dc.GetTextExtent(name, name.GetLength()).cx + ScaleByDpi(2 * kMargin);
    dc.SelectObject(own);
    if (inside.left < inside.right) {
      dc.DrawText(kSymbolSample, kSymbolSample.GetLength(), &inside, kFormat);
    }
  }
  dc.SelectObject(system);
}
