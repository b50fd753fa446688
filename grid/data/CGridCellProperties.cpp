#include "grid/data/CGridCell.h"
#include "platform/System.h"

// The properties that are only kept: each setter marks its bit, each getter answers a fallback without it.

int CGridCell::SetLabelText(const wchar_t* label) {
  m_label = CString(label);
  Mark(CELLPROP_LABEL);
  return 0;
}

const wchar_t* CGridCell::GetLabelText() const {
  return Has(CELLPROP_LABEL) ? m_label.GetString() : nullptr;
}

int CGridCell::GetLabelText(CString* label) const {
  if (!Has(CELLPROP_LABEL)) return 1;
  *label = m_label;
  return 0;
}

int CGridCell::SetMask(const wchar_t* mask) {
  m_mask = CString(mask);
  Mark(CELLPROP_MASK);
  return 0;
}

const wchar_t* CGridCell::GetMask() const {
  return Has(CELLPROP_MASK) ? m_mask.GetString() : nullptr;
}

int CGridCell::GetMask(CString* mask) const {
  if (!Has(CELLPROP_MASK)) return 1;
  *mask = m_mask;
  return 0;
}

int CGridCell::SetParam(long param) {
  m_param = static_cast<int>(param);
  Mark(CELLPROP_PARAM);
  return 0;
}

long CGridCell::GetParam() const {
  return Has(CELLPROP_PARAM) ? m_param : 0;
}

int CGridCell::SetCellType(int type) {
  m_look.cellType = type;
  Mark(CELLPROP_CELLTYPE);
  return 0;
}

int CGridCell::GetCellType() const {
  return Has(CELLPROP_CELLTYPE) ? m_look.cellType : 0;
}

int CGridCell::SetCellTypeEx(long style) {
  m_look.cellTypeEx = static_cast<int>(style);
  Mark(CELLPROP_CELLTYPEEX);
  return 0;
}

long CGridCell::GetCellTypeEx() const {
  return Has(CELLPROP_CELLTYPEEX) ? m_look.cellTypeEx : 0;
}

int CGridCell::SetReadOnly(int readOnly) {
  m_look.readOnly = readOnly != 0 ? 1 : 0;
  Mark(CELLPROP_READONLY);
  return 0;
}

int CGridCell::GetReadOnly() const {
  return Has(CELLPROP_READONLY) ? m_look.readOnly : 0;
}

int CGridCell::SetFormatClass(CGridCellFormat* format) {
  m_look.format = format;
  if (format != nullptr) {
    Mark(CELLPROP_FORMAT);
  } else {
    Unmark(CELLPROP_FORMAT);
  }
  return 0;
}

CGridCellFormat* CGridCell::GetFormatClass() const {
  return Has(CELLPROP_FORMAT) ? m_look.format : nullptr;
}

int CGridCell::SetCellStyle(CGridCell* style) {
  m_look.style = style;
  Mark(CELLPROP_STYLE);
  return 0;
}

CGridCell* CGridCell::GetCellStyle() const {
  return Has(CELLPROP_STYLE) ? m_look.style : nullptr;
}

void CGridCell::DeriveTextColor(COLORREF color) {
  constexpr COLORREF BLACK = 0x000000;
  constexpr COLORREF WHITE = 0xFFFFFF;
  // Kept: blue does not count for brightness.
  const bool dark = GetRValue(m_look.backColor) + GetGValue(m_look.backColor) < 255;
  const bool derived = color == BLACK || color == WHITE;
  m_look.textColor = !derived ? color : dark ? WHITE : BLACK;
  Mark(CELLPROP_TEXTCOLOR);
}

int CGridCell::SetTextColor(COLORREF color) {
  DeriveTextColor(color);
  return 0;
}

COLORREF CGridCell::GetTextColor() const {
  return Has(CELLPROP_TEXTCOLOR) ? m_look.textColor : GetSysColor(COLOR_WINDOWTEXT);
}

int CGridCell::SetBackColor(COLORREF color) {
  m_look.backColor = color;
  Mark(CELLPROP_BACKCOLOR);
  DeriveTextColor(m_look.textColor);
  return 0;
}

COLORREF CGridCell::GetBackColor() const {
  return Has(CELLPROP_BACKCOLOR) ? m_look.backColor : GetSysColor(COLOR_WINDOW);
}

int CGridCell::SetHTextColor(COLORREF color) {
  m_look.highlightTextColor = color;
  Mark(CELLPROP_HTEXTCOLOR);
  return 0;
}

COLORREF CGridCell::GetHTextColor() const {
  return Has(CELLPROP_HTEXTCOLOR) ? m_look.highlightTextColor : GetSysColor(COLOR_HIGHLIGHTTEXT);
}

int CGridCell::SetHBackColor(COLORREF color) {
  m_look.highlightBackColor = color;
  Mark(CELLPROP_HBACKCOLOR);
  return 0;
}

COLORREF CGridCell::GetHBackColor() const {
  return Has(CELLPROP_HBACKCOLOR) ? m_look.highlightBackColor : GetSysColor(COLOR_HIGHLIGHT);
}

int CGridCell::SetBorder(short border) {
  m_look.border = border;
  Mark(CELLPROP_BORDER);
  return 0;
}

short CGridCell::GetBorder() const {
  return Has(CELLPROP_BORDER) ? static_cast<short>(m_look.border) : short{0};
}

int CGridCell::SetBorderColor(CPen* pen) {
  m_look.borderPen = pen;
  Mark(CELLPROP_BORDERCOLOR);
  return 0;
}

CPen* CGridCell::GetBorderColor() const {
  return Has(CELLPROP_BORDERCOLOR) ? m_look.borderPen : nullptr;
}

int CGridCell::SetFont(CFont* font) {
  m_look.font = font;
  Mark(CELLPROP_FONT);
  return 0;
}

CFont* CGridCell::GetFont() const {
  return Has(CELLPROP_FONT) ? m_look.font : nullptr;
}

int CGridCell::SetBitmap(CBitmap* bitmap) {
  m_look.bitmap = bitmap;
  if (bitmap != nullptr) {
    Mark(CELLPROP_BITMAP);
  } else {
    Unmark(CELLPROP_BITMAP);
  }
  return 0;
}

CBitmap* CGridCell::GetBitmap() const {
  return Has(CELLPROP_BITMAP) ? m_look.bitmap : nullptr;
}

int CGridCell::SetAlignment(short alignment) {
  m_look.alignment = alignment;
  Mark(CELLPROP_ALIGNMENT);
  return 0;
}

short CGridCell::GetAlignment() const {
  return Has(CELLPROP_ALIGNMENT) ? m_look.alignment : short{0};
}

int CGridCell::SetJoinInfo(int origin, int colValue, long rowValue) {
  m_join = {origin, colValue, static_cast<int>(rowValue)};
  Mark(CELLPROP_JOIN);
  return 0;
}

int CGridCell::GetJoinInfo(int* origin, int* colValue, long* rowValue) const {
  if (!Has(CELLPROP_JOIN)) return 1;
  *origin = m_join.origin;
  *colValue = m_join.col;
  *rowValue = m_join.row;
  return 0;
}

void* CGridCell::AllocExtraMem(long size) {
  ClearExtraMem();
  if (size < 0) return nullptr;
  m_extra.block = std::make_shared_for_overwrite<BYTE[]>(static_cast<std::size_t>(size));
  m_extra.pointer = m_extra.block.get();
  m_extra.size = size;
  Mark(CELLPROP_EXTRAMEM);
  return m_extra.pointer;
}

void* CGridCell::GetExtraMemPtr() const {
  return Has(CELLPROP_EXTRAMEM) ? m_extra.pointer : nullptr;
}

long CGridCell::GetExtraMemSize() const {
  return Has(CELLPROP_EXTRAMEM) ? m_extra.size : 0;
}

int CGridCell::ClearExtraMem() {
  m_extra = {};
  Unmark(CELLPROP_EXTRAMEM);
  return 0;
}

int CGridCell::IsPropertySet(long bits) const {
  return Has(bits) ? 1 : 0;
}

int CGridCell::ClearProperty(long bits) {
  // Kept: a subtraction, so that bits which are not set borrow from others; callers pass one bit.
  if (Has(bits)) m_look.flags -= static_cast<DWORD>(bits);
  return 0;
}

int CGridCell::ClearPropertySetFlag(long bits) {
  return ClearProperty(bits);
}

int CGridCell::SetPropertyFlags(long flags) {
  m_look.flags = static_cast<DWORD>(flags);
  return 0;
}

long CGridCell::GetPropertyFlags() const {
  return static_cast<long>(m_look.flags);
}
