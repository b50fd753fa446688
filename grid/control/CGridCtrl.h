#pragma once

#include <memory>

#include "core/Export.h"
#include "grid/control/CGridNotify.h"
#include "grid/data/CGridSourceOwner.h"
#include "platform/CWnd.h"

class CBitmap;
class CFont;
class CGridCell;
class CGridCellFormat;
class CGridCellType;
class CGridDataSource;
class CGridDrawHint;
class CGridInfo;
class CGridMultiSelect;
class CMenu;
class CPen;
struct LOGFONT;

namespace coregui {
class CGridCellDelegate;
class CGridParts;
struct CGridRooms;
}  // namespace coregui

/// The grid: a window of cells with headings, scroll bars and sheet tabs. An application derives from it and
/// overrides the notifications (CGridNotify) that it needs.
///
/// Columns come before rows, both counted from 0; negative ones are heading cells: the top heading rows are
/// the rows -1, -2 … upwards from the cells, the side heading columns the columns -1, -2 … leftwards. Rows
/// are 32-bit in meaning. Sizes and positions are pixels. Unless an operation says otherwise it returns 0
/// when done, 1 when a position or argument is refused, and then nothing has changed.
///
/// Every option and size belongs to the current sheet, cell types, sources and fonts to the control. What all
/// sheets shall have is set in OnSheetSetup, while the new sheet is the current one.
///
/// A grid that was constructed but never created has no window and works for everything but pixels.
/// This class only forwards: what holds is written at the rooms it is made of.
class COREGUI_API CGridCtrl : public CWnd, public coregui::CGridNotify, public coregui::CGridSourceOwner {
 public:
  CGridCtrl();
  ~CGridCtrl() override;

  // --- Creation

  /// Creates the window and its parts, then calls OnSetup, OnSetupFinished and OnSheetSetup(0), sets the
  /// initial sizes when that is switched on, enables painting and lays the parts out. 0 when the window was
  /// refused.
  BOOL CreateGrid(DWORD style, const RECT& rect, CWnd* parent, UINT id);
  /// Takes over the place of a dialog's child control; calls OnSetup and OnSheetSetup(0). False when there is
  /// none.
  BOOL AttachGrid(CWnd* dialog, UINT id);
  /// On: CreateGrid calls SetInitialSizes and SetInitialCellStates. Off at first.
  int EnableInitialSizing(int on);
  /// Fits the default row height to the default font, and every column to its heading.
  virtual void SetInitialSizes();
  /// Makes the first cell current.
  virtual void SetInitialCellStates();
  /// Gives the parts the places that the headings, scroll bars and tabs leave, and brings the view up to
  /// date.
  int AdjustComponentSizes();

  // --- State for the parts

  /// The current sheet. Not to be kept: the current sheet may change in any notification.
  CGridInfo& GetInfo();
  const CGridInfo& GetInfo() const;
  /// The window that shows the cells, null before creation; so are the others.
  CWnd* GetGridWnd() const;
  CWnd* GetTopHdgWnd() const;
  CWnd* GetSideHdgWnd() const;
  CWnd* GetCornerWnd() const;
  /// What the body has to repaint; null before creation.
  CGridDrawHint* GetDrawHints() const;
  CScrollBar* GetScrollBarCtrl(int bar) const override;
  /// 1 while a cell is being edited.
  int GetEditInProgress() const;
  /// 1 while the control's find or replace dialog is open; it has none yet.
  int IsFindDialogOpen() const;

  // --- Cells

  /// The stored cell alone; 1 when `cell` is null, col is behind the last column, or nothing is stored.
  int GetCell(int col, long row, CGridCell* cell);
  /// The cell as displayed: defaults, stored cell, OnGetCell, format class, style.
  int GetCellIndirect(int col, long row, CGridCell* cell);
  /// Calls OnSetCell, then replaces the stored cell. One column or row behind the last is accepted. Redraws
  /// nothing, like the quick operations.
  int SetCell(int col, long row, CGridCell* cell);
  /// Checks no range; the source's answer.
  int DeleteCell(int col, long row);
  /// What the cells of a column have where they set nothing themselves. 1 when col is no column.
  int GetColDefault(int col, CGridCell* cell);
  int SetColDefault(int col, CGridCell* cell);
  /// What the default cells of new columns start from.
  int GetGridDefault(CGridCell* cell);
  int SetGridDefault(CGridCell* cell);
  /// The same for heading cells.
  int GetHeadingDefault(CGridCell* cell);
  int SetHeadingDefault(CGridCell* cell);

  // --- Quick operations: one property of the stored cell, the others are kept. CGridCell's members say what
  // the values mean.

  int QuickSetText(int col, long row, const wchar_t* text);
  /// The displayed text; empty when the cell has none.
  int QuickGetText(int col, long row, CString* text);
  int QuickSetNumber(int col, long row, double number);
  int QuickGetNumber(int col, long row, double* number);
  int QuickSetBool(int col, long row, int value);
  int QuickSetDataType(int col, long row, short type);
  int QuickSetLabelText(int col, long row, const wchar_t* text);
  int QuickSetMask(int col, long row, const wchar_t* mask);
  int QuickSetParam(int col, long row, long param);
  int QuickSetNumberDecimals(int col, long row, int decimals);
  int QuickSetReadOnly(int col, long row, int readOnly);
  int QuickSetCellType(int col, long row, int type);
  int QuickSetCellTypeEx(int col, long row, long style);
  int QuickSetTextColor(int col, long row, COLORREF colour);
  int QuickSetBackColor(int col, long row, COLORREF colour);
  int QuickSetHTextColor(int col, long row, COLORREF colour);
  int QuickSetHBackColor(int col, long row, COLORREF colour);
  int QuickSetBorder(int col, long row, short border);
  int QuickSetBorderColor(int col, long row, CPen* pen);
  int QuickSetFont(int col, long row, CFont* font);
  /// By index into the control's font list; 1 when there is no such font.
  int QuickSetFont(int col, long row, int fontIndex);
  int QuickSetBitmap(int col, long row, CBitmap* bitmap);
  int QuickSetAlignment(int col, long row, short alignment);
  int QuickSetFormatClass(int col, long row, CGridCellFormat* format);
  int QuickSetCellStyle(int col, long row, CGridCell* style);
  /// Copies `data` into a block of the cell; 1 when size is 0, data is null or nothing is stored there.
  int QuickSetCellExtraMem(int col, long row, long size, void* data);

  // --- Data sources

  /// Registers a source (borrowed until it is removed or the control is destroyed: a member of the derived
  /// control may be one); its index, -1 when refused.
  int AddDataSource(CGridDataSource* source);
  /// The sheet's default source, for every column. 0 is the sheet's own memory.
  int SetDefDataSource(int index);
  int GetDefDataSource() const;
  CGridDataSource* GetDataSource(int index) const;
  /// Lets a column show another registered source.
  int SetColDataSource(int col, int index);
  /// Unregisters; columns and sheets that used it go back to the sheet's memory.
  int RemoveDataSource(int index);
  /// The data column, as the sources count them, that a grid column shows. They part when columns are
  /// inserted or moved; notifications give grid columns.
  int GetColTranslation(int col) const override;
  void SetColTranslation(int col, int dataColumn) override;

  // --- Joined cells

  int EnableJoins(int on);
  /// Shows the inclusive range, which may lie in the headings, as one cell with the contents of its first
  /// one.
  int JoinCells(int startCol, long startRow, int endCol, long endRow);
  /// Dissolves every block that has a cell in the range; 1 when there is none.
  int UnJoinCells(int startCol, long startRow, int endCol, long endRow);
  /// In: a cell, out: the first cell of the block that holds it. 1, with the cell itself, when it is not
  /// joined.
  int GetJoinStartCell(int* col, long* row);
  int GetJoinStartCell(int* startCol, long* startRow, int col, long row);
  /// In: a cell, out: the first and the last cell of the block that holds it. 1, with the cell as both, when
  /// it is not joined.
  int GetJoinRange(int* col, long* row, int* endCol, long* endRow);

  // --- Rows and columns

  /// More than 64000 rows have one height for good. `redraw` 0: nothing is redrawn now.
  int SetNumberRows(long rows, int redraw = 1);
  long GetNumberRows() const override;
  int SetNumberCols(int cols, int redraw = 1);
  int GetNumberCols() const override;
  /// In the data sources too: what stood at `row` or `col` moves on by one.
  int InsertRow(long row);
  int AppendRow();
  int DeleteRow(long row);
  int InsertCol(int col);
  int AppendCol();
  int DeleteCol(int col);
  /// Moves a column: before the column `to` with `before` non-zero, else behind it. The data stay where they
  /// are. A joined heading over a group of columns stays over those that are left of the group.
  int MoveColPosition(int from, int to, int before);
  int SetColWidth(int col, int width);  ///< 0 hides
  int GetColWidth(int col) const;       ///< negative columns: heading columns
  int SetDefColWidth(int width);
  int GetDefColWidth() const;
  int SetRowHeight(long row, int height);  ///< 0 hides; with uniform height it sets all rows
  int GetRowHeight(long row) const;        ///< negative rows: heading rows
  int SetDefRowHeight(int height);
  int GetDefRowHeight() const;
  /// On: all rows have the default height.
  int SetUniformRowHeight(int on);
  int GetUniformRowHeight() const;
  /// So many first columns or rows stay in view.
  int LockColumns(int count);
  int GetLockedColumns() const;
  int LockRows(long count);
  long GetLockedRows() const;
  /// Sizes columns from `startCol` to `endCol` to their content and heading, looking at `rows` rows from
  /// the view's first on (0: those in view, -1: all) and at the locked ones. Of several columns the hidden
  /// ones stay hidden. 1 without a window.
  int BestFit(int startCol, int endCol, long rows = 0);
  /// Shares the window's width among the columns in proportion to their widths.
  int FitToWindow(int startCol, int endCol);

  // --- Headings

  // TH: top heading, SH: side heading, VS and HS: the scroll bars.
  int SetTH_NumberRows(int rows);
  int GetTH_NumberRows() const;
  int SetTH_RowHeight(int index, int height);  ///< index 0 is nearest to the cells
  int GetTH_RowHeight(int index) const;
  int SetTH_Height(int height);  ///< of all its rows together
  int GetTH_Height() const;
  int SetSH_NumberCols(int cols);
  int GetSH_NumberCols() const;
  int SetSH_ColWidth(int index, int width);
  int GetSH_ColWidth(int index) const;
  int SetSH_Width(int width);  ///< of all its columns together
  int GetSH_Width() const;
  int SetVS_Width(int width);
  int GetVS_Width() const;
  int SetHS_Height(int height);
  int GetHS_Height() const;

  // --- Sheets

  /// New sheets are set up with OnSheetSetup, each while it is current; then the sheet of before is again.
  /// Sheets beyond the count are destroyed. 1 for a count below 1.
  int SetNumberSheets(int count);
  int GetNumberSheets() const;
  /// Makes a sheet, counted from 0, the current one.
  int SetSheetNumber(int sheet);
  int GetSheetNumber() const;
  int SetSheetName(int sheet, const wchar_t* name);
  CString GetSheetName(int sheet) const;
  /// The room for the tabs, left of the horizontal scroll bar, on every sheet, those that are added later
  /// too; 0: no tabs.
  int SetTabWidth(int width);
  int GetTabWidth() const;

  // --- Position and view. Results of moves: 0 made or nothing to do, 1 no such place, 2 vetoed

  int GotoCell(int col, long row);
  int GotoCol(int col);
  int GotoRow(long row);
  /// 0 back, 1 forward, 2 page back, 3 page forward, 4 first, 5 last.
  int MoveCurrentCol(int code);
  int MoveCurrentRow(int code);
  int AdjustTopRow(long delta);
  int AdjustLeftCol(int delta);
  int SetTopRow(long row);
  int SetLeftCol(int col);
  /// The same codes as MoveCurrentCol, for the view.
  int MoveLeftCol(int code);
  int MoveTopRow(int code);
  int VerifyTopRow(long* row);
  int VerifyLeftCol(int* col);
  /// Bring a row or column into the sheet, off hidden ones; 1 when there is none. Rows are asked for by every
  /// GotoRow and by the paint pass, which asks for the row behind the last one: a control whose rows grow as
  /// they are needed overrides it.
  int VerifyCurrentRow(long* row) override;
  int VerifyCurrentCol(int* col);
  /// Brings current cell, notifications, scroll bars and screen up to date with the drag cell and the view.
  void Moved();
  int GetCurrentCol() const;
  long GetCurrentRow() const;
  int GetLeftCol() const;
  long GetTopRow() const;
  int GetRightCol() const;
  long GetBottomRow() const;
  /// Sets the drag cell to the current one: relative moves start there again.
  void ResetDragCell();

  // --- Rectangles and points, in client pixels of the window that shows the cell (body, heading or corner)

  /// The whole joined block's when the cell is joined. 1 and an empty rectangle when it is out of range.
  int GetCellRect(int col, long row, RECT* rect);
  int GetRangeRect(int startCol, long startRow, int endCol, long endRow, RECT* rect);
  /// The cell under a point of the body; 1 when there is none.
  int GetCellFromPoint(int x, int y, int* col, long* row);
  int GetCellFromPoint(int x, int y, int* col, long* row, RECT* rect);
  /// The same for any section (GRIDSECTION_…), with the section's own coordinates.
  int GetSectionCellFromPoint(int section, int x, int y, int* col, long* row, RECT* rect);

  // --- Selection

  /// 0: the current cell alone; 1: blocks of cells; else MULTISELECT_ bits (CGridMultiSelect.h). Forgets what
  /// is selected.
  int SetMultiSelectMode(int mode);
  int GetMultiSelectMode() const;
  /// Replaces the sheet's selection object (borrowed); null: the built-in one again.
  int SetNewMultiSelectClass(CGridMultiSelect* selection);
  CGridMultiSelect* GetMultiSelect() const;
  int ClearSelections();
  /// Adds a block to what is selected.
  int SelectRange(int startCol, long startRow, int endCol, long endRow);
  int IsSelected(int col, long row, int* block = nullptr);
  /// 0 while a cell is given; with nothing selected that is the current one.
  int EnumFirstSelected(int* col, long* row);
  int EnumNextSelected(int* col, long* row);

  // --- Sorting, finding, clipboard

  /// Sorts the rows of the sheet's default source, whatever sources columns have, and redraws nothing: call
  /// RedrawAll. Flags: 0 or coregui::SORT_DESCENDING. The source's answer.
  int SortBy(int col, int flags);
  /// The first key column decides first. `cols` is changed: it comes back as data columns.
  int SortBy(int* cols, int count, int flags);
  /// Searches the sheet's default source, in column `*col` or with FIND_ALLCOLS in all; on a hit `col` and
  /// `row` receive it. Goes round at the end. `text` is upper-cased with FIND_NOCASE.
  int FindFirst(CString* text, int* col, long* row, long flags);
  /// Searches on from the cell after (`*col`, `*row`), or before it with FIND_UP.
  int FindNext(CString* text, int* col, long* row, int flags);
  /// Whether a find dialog searches every column.
  int FindInAllCols(int on);
  /// The displayed texts of the selected cells: TAB between cells, LF between rows. `cut` empties those that
  /// are not read-only.
  int CreateSelectedString(CString& text, int cut);
  int CopySelected();
  int CopySelected(int cut);
  int CutSelected();
  int CopyToClipBoard(CString* text);
  int CopyFromClipBoard(CString* text);
  /// Writes the clipboard's text from the current cell on, calls OnPaste for each cell and selects what was
  /// reached. Adds no rows or columns. 1 when there is no text.
  int Paste();
  int Paste(CString& text);

  // --- Cell types

  /// Registers a type and gives its ID, from 4 on: 0 is the normal type, 1 the drop list, 2 the check box, 3
  /// the arrow. -1 for null. Borrowed until RemoveCellType: the control's end does not destroy it, so a
  /// member of the derived control may be one.
  int AddCellType(CGridCellType* type);
  /// The normal type for an unknown ID.
  CGridCellType* GetCellType(int id);
  CGridCellType* GetCellType(int col, long row);
  int GetCellType(CGridCellType* type);
  /// Destroys the type with `delete`, so never call it for a member.
  int RemoveCellType(int id);
  /// Whether the application has registered types of its own beside the four built-in ones.
  bool HasOwnCellTypes() const;
  /// The same types as those who show cells see them. Never null.
  coregui::CGridCellDelegate* GetCellDelegate(int id);
  coregui::CGridCellDelegate* GetCellDelegate(int col, long row);

  // --- Fonts

  /// Adds a font to the control's list; its index, -1 when it could not be made.
  int AddFont(const LOGFONT& font);
  int AddFont(int tenthsOfPoint, const wchar_t* face);
  CFont* GetFont(int index) const;
  using CWnd::GetFont;
  /// -1: the system's font.
  int SetDefFont(int index);
  CFont* GetDefFont() const;

  // --- Redrawing

  /// The control's redraw switch: off, operations change without redrawing.
  int EnableUpdate(int on);
  int GetUpdate() const;
  int RedrawAll();
  int RedrawCell(int col, long row);
  int RedrawRow(long row);
  int RedrawCol(int col);
  int RedrawRange(int startCol, long startRow, int endCol, long endRow);
  /// 1: cells are drawn off the screen first; 0: at once. Of all sheets.
  int SetDoubleBufferMode(int mode);
  /// 0: the sheet is not painted at all.
  int SetPaintMode(int on);
  int GetPaintMode() const;
  void TempDisableFocusRect();

  // --- Options of the current sheet. What they are at first is written at coregui::CGridViewState.

  /// Bits: 1 focus rectangle, 2 the current cell in highlight colours.
  int SetCurrentCellMode(int mode);
  int GetCurrentCellMode() const;
  /// On, as at first: the whole current row stands for the current cell. `toEdge`: up to the window's edge.
  int SetHighlightRow(int on, int toEdge = 0);
  int GetHighlightRow() const;
  /// Between a cell's edge and its text.
  int SetMargin(int pixels);
  int GetMargin() const;
  int Set3DHeight(int pixels);
  int Get3DHeight() const;
  /// Whether long texts spill over empty neighbours.
  int EnableCellOverLap(int on);
  int GetCellOverLap() const;
  /// Whether every cell has a line at its right and bottom.
  int EnableExcelBorders(int on);
  int GetExcelBorders() const;
  CPen* GetGridLinePen();
  /// Whether cells have tips: OnHint gives their texts.
  int UseHints(int on);
  int GetUseHints() const;
  /// Rows and columns sized by the mouse: 0 not, 1 with an outline, others at once.
  int SetUserSizingMode(int mode);
  int GetUserSizingMode() const;
  /// Whether columns can be dragged by their headings: OnColSwapStart and OnCanColSwap are asked.
  int EnableColSwapping(int on);
  int GetColSwapping() const;
  /// Whether a right click opens the context menu: OnMenuStart fills it.
  int EnableMenu(int on);
  /// Whether a drag over the partly visible last row or column scrolls.
  int EnableScrollOnPartialCells(int on);
  /// Dragging beyond the window scrolls by the distance to this power, 0 to 3; 0: always one line.
  int SetBallisticMode(int mode);
  int SetBallisticDelay(int milliseconds);
  int SetBallisticKeyMode(int mode);
  int SetBallisticKeyDelay(int milliseconds);
  /// 0: the view moves when the thumb is let go, 1: with it.
  int SetVScrollMode(int mode);
  int SetHScrollMode(int mode);
  /// 0: a tip beside the thumb (OnVScrollHint), 1: none.
  int SetTrackingWindowMode(int mode);
  int SetArrowCursor(HCURSOR cursor);
  int SetWESizingCursor(HCURSOR cursor);
  int SetNSSizingCursor(HCURSOR cursor);
  /// The windows that edit cells (borrowed); null: the control's own. Cells are not edited yet.
  int SetNewEditClass(CWnd* editor);
  int SetNewMaskedEditClass(CWnd* editor);
  CWnd* GetEditClass() const;
  CWnd* GetMaskedEditClass() const;

  // --- Context menu

  /// What EnableMenu opens; empty until OnMenuStart fills it.
  CMenu* GetMenu();
  /// Opens the context menu at a screen position after OnMenuStart; the choice goes to OnMenuCommand.
  int StartMenu(int col, long row, POINT* point, int section);

  const coregui::MessageTable& GetMessageTable() const override;

 private:
  friend class coregui::CGridParts;

  void StartPainting();
  void HandleSize(UINT type, int width, int height);
  BOOL HandleErase(CDC* dc);
  void HandleFocus(CWnd* other);
  void HandleVScroll(int code, CWnd* bar);
  void HandleHScroll(int code, CWnd* bar);
  LRESULT HandleMouseWheel(WPARAM wParam, LPARAM lParam);
  LRESULT HandleMouseHWheel(WPARAM wParam, LPARAM lParam);
  void HandleSystemChange();
  /// The parts have their places: the view has this size now.
  void TakeViewSize(const SIZE& body);
  void Show(bool changed);
  int Shown(int result);
  int LaidOut(int result);
  static int SetSize(int& size, int pixels);

  std::unique_ptr<coregui::CGridRooms> m_rooms;
};
