#pragma once

#include <memory>
#include <string>

#include "core/Export.h"
#include "grid/data/CellText.h"
#include "platform/CObject.h"
#include "platform/CString.h"
#include "platform/Types.h"

class CBitmap;
class CFont;
class CGridCell;
class CGridCellFormat;
class CPen;

// Property mask bits: which properties of a cell are set.
inline constexpr long CELLPROP_TEXT = 0x00000001;         ///< the value: text and number
inline constexpr long CELLPROP_MASK = 0x00000002;         ///< input mask
inline constexpr long CELLPROP_LABEL = 0x00000004;        ///< label text
inline constexpr long CELLPROP_DATATYPE = 0x00000008;     ///< data type
inline constexpr long CELLPROP_PARAM = 0x00000010;        ///< param
inline constexpr long CELLPROP_CELLTYPE = 0x00000020;     ///< cell type
inline constexpr long CELLPROP_CELLTYPEEX = 0x00000040;   ///< cell type extended style
inline constexpr long CELLPROP_TEXTCOLOR = 0x00000080;    ///< text colour
inline constexpr long CELLPROP_BACKCOLOR = 0x00000100;    ///< back colour
inline constexpr long CELLPROP_HTEXTCOLOR = 0x00000200;   ///< highlight text colour
inline constexpr long CELLPROP_HBACKCOLOR = 0x00000400;   ///< highlight back colour
inline constexpr long CELLPROP_BORDER = 0x00000800;       ///< border style
inline constexpr long CELLPROP_BORDERCOLOR = 0x00001000;  ///< border pen
inline constexpr long CELLPROP_FONT = 0x00002000;         ///< font
inline constexpr long CELLPROP_BITMAP = 0x00004000;       ///< bitmap
inline constexpr long CELLPROP_ALIGNMENT = 0x00008000;    ///< alignment
inline constexpr long CELLPROP_EXTRAMEM = 0x00010000;     ///< extra memory block
inline constexpr long CELLPROP_JOIN = 0x00020000;         ///< join information
inline constexpr long CELLPROP_FORMAT = 0x00200000;       ///< format class
inline constexpr long CELLPROP_STYLE = 0x00800000;        ///< cell style
inline constexpr long CELLPROP_READONLY = 0x01000000;     ///< read-only
inline constexpr long CELLPROP_DECIMALS = 0x02000000;     ///< number decimals
/// A number's text does not pass through the user's number format. Set through SetPropertyFlags only.
inline constexpr long CELLPROP_NOLOCALEFORMAT = 0x04000000;
/// Set in every freshly defaulted cell; the grid never reads it.
inline constexpr long CELLPROP_DEFAULTMARK = 0x08000000;

// Data types. Numbers, times and currency amounts are the numeric types: their value is the number field.
inline constexpr short CELLDATA_TEXT = 1;
inline constexpr short CELLDATA_NUMBER = 2;
inline constexpr short CELLDATA_BOOL = 3;
inline constexpr short CELLDATA_TIME = 4;  ///< an automation date
inline constexpr short CELLDATA_CURRENCY = 5;

namespace coregui {

class CellCodec;

/// The properties of a cell that many cells have in common, with the mask of all properties. The pointers are
/// borrowed.
struct CellLook {
  DWORD flags = 0;
  short dataType = CELLDATA_TEXT;
  short alignment = 1;
  CGridCellFormat* format = nullptr;
  CGridCell* style = nullptr;
  CPen* borderPen = nullptr;
  CFont* font = nullptr;
  CBitmap* bitmap = nullptr;
  int readOnly = 0;
  int decimals = 0;
  int cellType = -1;
  int cellTypeEx = -1;
  COLORREF textColor = 0;
  COLORREF backColor = 0;
  COLORREF highlightTextColor = 0;
  COLORREF highlightBackColor = 0;
  int border = 0;
  int unused = 0;  // no padding: looks are compared and hashed as bytes

  /// Copies the properties of `source` whose bits its mask has; leaves this mask alone.
  void CopySetFieldsFrom(const CellLook& source);
};

/// A cell's join information: in the first cell of a block its extent, in the others the way back to the
/// first.
struct CellJoin {
  int origin = 0;
  int col = -1;
  int row = -1;
};

/// A cell's extra memory. `pointer` is what the cell shows; the block itself lives as long as a cell holds
/// it.
struct CellExtraMemory {
  BYTE* pointer = nullptr;
  long size = 0;
  std::shared_ptr<BYTE[]> block;
};

}  // namespace coregui

/// The value and appearance of one cell, a sparse record: a property whose bit in the mask is clear is not
/// set, its getter answers a fallback, and merging does not copy it.
///
/// Setters return 0. Getters that take a pointer return 0, or 1 when the property is not set. Fonts, pens,
/// bitmaps, format classes and style cells are borrowed: their owner outlives every cell that refers to them.
/// Snapshots and extra memory are shared between the cells that merging gave them to and released with the
/// last one.
class COREGUI_API CGridCell : public CObject {
 public:
  /// The default state: data type, colours of the system, alignment 1; no value.
  CGridCell();
  ~CGridCell() override;
  CGridCell(const CGridCell&) = default;
  CGridCell& operator=(const CGridCell&) = default;

  // --- The value

  /// A text, of type CELLDATA_TEXT. An empty one leaves the cell without a value.
  int SetText(const wchar_t* text);
  /// 1 when there is no value to append to.
  int AppendText(const wchar_t* text);
  /// Null without a value. A number's text is made from the number, in the user's number format. The pointer
  /// stays valid until the cell changes or the text is asked for again.
  const wchar_t* GetText() const;
  int GetText(CString* text) const;
  /// The length of the text as stored: a number has one only once its text was asked for.
  int GetTextLength() const;
  int SetNumber(double number);
  /// Reads a text as a number when the type is not numeric; integer forms truncate towards zero.
  int GetNumber(double* number) const;
  int GetNumber(float* number) const;
  int GetNumber(long* number) const;
  int GetNumber(int* number) const;
  double GetNumber() const;
  /// Digits after the decimal separator in a number's text.
  int SetNumberDecimals(int decimals);
  int GetNumberDecimals() const;
  int SetBool(int value);
  /// 1 for a value above 0 or a text that begins with T or t.
  int GetBool() const;
  /// A date and time; its text is the user's date text.
  int SetTime(short second, short minute, short hour, short day, short month, short year);
  /// -1 in each field when there is no date. Always 0.
  int GetTime(int* second, int* minute, int* hour, int* day, int* month, int* year) const;
  /// Changes the type and converts the value to it: text to number, text to date, text to currency.
  int SetDataType(short type);
  short GetDataType() const;
  /// Removes the value and keeps the data type.
  int ClearDisplayText();

  // --- Further contents

  /// What types show beside or instead of the value: the check box its text, the drop list its choices,
  /// parted by LF.
  int SetLabelText(const wchar_t* label);
  const wchar_t* GetLabelText() const;
  int GetLabelText(CString* label) const;
  /// For a masked editor; cells are not edited yet.
  int SetMask(const wchar_t* mask);
  const wchar_t* GetMask() const;
  int GetMask(CString* mask) const;
  /// A number for the application's use, 32 bits of it; 0 until set.
  int SetParam(long param);
  long GetParam() const;

  // --- Behaviour

  /// The ID of the type that draws the cell: 0 normal, 1 drop list, 2 check box, 3 arrow, or what
  /// CGridCtrl::AddCellType gave.
  int SetCellType(int type);
  int GetCellType() const;
  /// Bits that refine the drawing: coregui::kExtendedWrap and so on for the normal type (CellStyleBits.h),
  /// those of the other types in CheckBoxPlan.h and ArrowPlan.h.
  int SetCellTypeEx(long style);
  long GetCellTypeEx() const;
  /// 1 keeps a person from cutting, checking and choosing. Pasting asks the stored cell alone, not the
  /// column's default.
  int SetReadOnly(int readOnly);
  int GetReadOnly() const;
  int SetFormatClass(CGridCellFormat* format);
  CGridCellFormat* GetFormatClass() const;
  int SetCellStyle(CGridCell* style);
  CGridCell* GetCellStyle() const;

  // --- Appearance

  /// Black and white are replaced by whichever of them shows on the back colour.
  int SetTextColor(COLORREF color);
  COLORREF GetTextColor() const;
  /// Re-derives a text colour of black or white.
  int SetBackColor(COLORREF color);
  COLORREF GetBackColor() const;
  /// H: of the selected cell, and of the current one where the current-cell mode says so.
  int SetHTextColor(COLORREF color);
  COLORREF GetHTextColor() const;
  int SetHBackColor(COLORREF color);
  COLORREF GetHBackColor() const;
  /// Sides and widths: coregui::kBorderThin and so on (CellStyleBits.h).
  int SetBorder(short border);
  short GetBorder() const;
  /// Null: the control's own pen.
  int SetBorderColor(CPen* pen);
  CPen* GetBorderColor() const;
  int SetFont(CFont* font);
  CFont* GetFont() const;
  int SetBitmap(CBitmap* bitmap);
  CBitmap* GetBitmap() const;
  /// coregui::kAlignRight and so on, one across and one down together (CellStyleBits.h).
  int SetAlignment(short alignment);
  short GetAlignment() const;

  // --- Joins and extra memory

  /// `origin` 1 and the block's extent in its first cell; 0 and the negative way back to it in the others.
  int SetJoinInfo(int origin, int colValue, long rowValue);
  int GetJoinInfo(int* origin, int* colValue, long* rowValue) const;
  /// A block of `size` uninitialised bytes for the cell type, in place of any before. Null when `size` is
  /// negative.
  void* AllocExtraMem(long size);
  void* GetExtraMemPtr() const;
  long GetExtraMemSize() const;
  int ClearExtraMem();

  // --- The property mask

  /// 1 when any of the bits is set.
  int IsPropertySet(long bits) const;
  int ClearProperty(long bits);
  int ClearPropertySetFlag(long bits);
  /// The mask itself; changes no field.
  int SetPropertyFlags(long flags);
  long GetPropertyFlags() const;
  int SetDefaultInfo();
  /// The default state; extra memory is left alone.
  int ClearAll();

  // --- Merging. Copying takes over the source's mask; adding unites the masks. Both then copy the properties
  // that the
  //     source has set. A source without extra memory loses its pointer, and so does the target.

  int CopyInfoFrom(CGridCell* source);
  int CopyInfoTo(CGridCell* target);
  static int CopyCellInfo(CGridCell* source, CGridCell* target);
  int AddInfoFrom(CGridCell* source);
  int AddInfoTo(CGridCell* target);
  static int AddCellInfo(CGridCell* source, CGridCell* target);

  // --- Life cycle

  /// Takes a snapshot, in place of any before.
  int SetInitialState();
  /// Goes back to the snapshot, if there is one; it stays.
  int LoadInitialState();
  /// Releases the snapshot and the extra memory. Data sources call it before they destroy a cell.
  int ClearMemory();

  // --- Conversions in the user's locale

  /// The number that the text begins with, 0 when none.
  static int StringToNumber(const CString* text, double* number);
  /// 0 for a text that begins with 0, F or f; else 1.
  static int StringToBool(const CString* text, int* value);
  /// 1 when the text is no date.
  static int StringToTime(const CString* text, int* second, int* minute, int* hour, int* day, int* month,
                          int* year);

 private:
  friend class coregui::CellCodec;
  bool Has(long bits) const { return (m_look.flags & static_cast<DWORD>(bits)) != 0; }
  void Mark(long bits) { m_look.flags |= static_cast<DWORD>(bits); }
  void Unmark(long bits) { m_look.flags &= ~static_cast<DWORD>(bits); }
  void ConvertValue(short type);
  void DeriveTextColor(COLORREF color);
  void MergeFrom(CGridCell& source);

  coregui::CellLook m_look;
  double m_number = 0.0;
  mutable coregui::CellText m_text;  // for a number the text last made from it
  CString m_label;
  CString m_mask;
  int m_param = -1;
  coregui::CellJoin m_join;
  coregui::CellExtraMemory m_extra;
  std::shared_ptr<CGridCell> m_initial;  // the snapshot, shared by the cells that merging gave it to
};
