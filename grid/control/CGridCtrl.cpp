// The part of the grid's face that is a window: creation, the parts, painting on request, selection, cell
// types, fonts.

#include "grid/control/CGridCtrl.h"

#include <algorithm>

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridLayout.h"
#include "grid/control/CGridMultiSelect.h"
#include "grid/control/CGridRooms.h"
#include "platform/CDC.h"
#include "platform/System.h"

using coregui::CGridParts;

CGridCtrl::CGridCtrl() : m_rooms(std::make_unique<coregui::CGridRooms>(*this)) {
  m_rooms->parts.RegisterBuiltInTypes();
}

CGridCtrl::~CGridCtrl() {
  // A derived control's source, fonts, pens and styles are gone already: losing the focus must not paint with
  // them.
  CGridCtrl::SetPaintMode(0);
  CGridCtrl::DestroyWindow();
}

// --- Creation

BOOL CGridCtrl::CreateGrid(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  const BOOL created =
      CWnd::Create(L"CoreGuiGrid", L"", style, rect, parent, id) != FALSE && m_rooms->parts.CreateWindows()
          ? TRUE
          : FALSE;
  if (created != FALSE) {
    OnSetup();
    OnSetupFinished();
    OnSheetSetup(0);
    if (m_rooms->initialSizing) {
      SetInitialSizes();
      SetInitialCellStates();
    }
  }
  StartPainting();
  return created;
}

BOOL CGridCtrl::AttachGrid(CWnd* dialog, UINT id) {
  if (CWnd::SubclassDlgItem(id, dialog) == FALSE || !m_rooms->parts.CreateWindows()) {
    return FALSE;
  }
  OnSetup();
  OnSheetSetup(0);
  StartPainting();
  return TRUE;
}

void CGridCtrl::StartPainting() {
  for (int sheet = 0; sheet < GetNumberSheets(); ++sheet) {
    m_rooms->sheets.At(sheet).view.paintEnabled = 1;
  }
  AdjustComponentSizes();
}

int CGridCtrl::EnableInitialSizing(int on) {
  m_rooms->initialSizing = on != 0;
  return 0;
}

void CGridCtrl::SetInitialSizes() {
  m_rooms->parts.Measure([this](CDC& dc) {
    TEXTMETRIC metrics;
    dc.GetTextMetrics(&metrics);
    SetDefRowHeight(std::max<int>(GetDefRowHeight(), metrics.tmHeight + GetMargin()));
  });
  if (GetNumberCols() > 0) {
    BestFit(0, GetNumberCols() - 1);
  }
}

void CGridCtrl::SetInitialCellStates() {
  GotoCell(0, 0);
}

int CGridCtrl::AdjustComponentSizes() {
  m_rooms->parts.LayOut();
  return 0;
}

void CGridCtrl::TakeViewSize(const SIZE& body) {
  m_rooms->sizing.SetViewSize(CSize(body));
}

const coregui::MessageTable& CGridCtrl::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_SIZE>(&CGridCtrl::HandleSize)
                                                 .On<WM_ERASEBKGND>(&CGridCtrl::HandleErase)
                                                 .On<WM_SETFOCUS>(&CGridCtrl::HandleFocus)
                                                 .On<WM_VSCROLL>(&CGridCtrl::HandleVScroll)
                                                 .On<WM_HSCROLL>(&CGridCtrl::HandleHScroll)
                                                 .OnMessage(WM_MOUSEWHEEL, &CGridCtrl::HandleMouseWheel)
                                                 .OnMessage(WM_MOUSEHWHEEL, &CGridCtrl::HandleMouseHWheel)
                                                 .On<WM_SYSCOLORCHANGE>(&CGridCtrl::HandleSystemChange);
  return table;
}

void CGridCtrl::HandleSize(UINT, int, int) {
  AdjustComponentSizes();
}

/// The windows on it leave the square between the scroll bars, which looks like a part of them.
BOOL CGridCtrl::HandleErase(CDC* dc) {
  dc->FillSolidRect(GetClientRectangle(), GetSysColor(COLOR_SCROLLBAR));
  return TRUE;
}

void CGridCtrl::HandleFocus(CWnd*) {
  m_rooms->parts.FocusBody();
}
void CGridCtrl::HandleVScroll(int code, CWnd*) {
  m_rooms->parts.OnScroll(SB_VERT, code);
}
void CGridCtrl::HandleHScroll(int code, CWnd*) {
  m_rooms->parts.OnScroll(SB_HORZ, code);
}

// Over the headings the wheel turns the cells too.
LRESULT CGridCtrl::HandleMouseWheel(WPARAM wParam, LPARAM lParam) {
  return GetGridWnd() == nullptr ? 0 : GetGridWnd()->SendMessage(WM_MOUSEWHEEL, wParam, lParam);
}
LRESULT CGridCtrl::HandleMouseHWheel(WPARAM wParam, LPARAM lParam) {
  return GetGridWnd() == nullptr ? 0 : GetGridWnd()->SendMessage(WM_MOUSEHWHEEL, wParam, lParam);
}

void CGridCtrl::HandleSystemChange() {
  m_rooms->sheets.FollowSystemColours();
  m_rooms->types.TellSystemChange();
  Invalidate(TRUE);
  RedrawAll();
}

// --- State for the parts

CGridInfo& CGridCtrl::GetInfo() {
  return m_rooms->sheets.Current();
}
const CGridInfo& CGridCtrl::GetInfo() const {
  return m_rooms->sheets.Current();
}
CWnd* CGridCtrl::GetGridWnd() const {
  return m_rooms->parts.Body();
}
CWnd* CGridCtrl::GetTopHdgWnd() const {
  return m_rooms->parts.TopHeading();
}
CWnd* CGridCtrl::GetSideHdgWnd() const {
  return m_rooms->parts.SideHeading();
}
CWnd* CGridCtrl::GetCornerWnd() const {
  return m_rooms->parts.CornerButton();
}
CGridDrawHint* CGridCtrl::GetDrawHints() const {
  return m_rooms->parts.BodyHints();
}
CScrollBar* CGridCtrl::GetScrollBarCtrl(int bar) const {
  return m_rooms->parts.ScrollBar(bar);
}
int CGridCtrl::GetEditInProgress() const {
  return m_rooms->editInProgress;
}
int CGridCtrl::IsFindDialogOpen() const {
  return 0;
}

// --- Selection

int CGridCtrl::SetMultiSelectMode(int mode) {
  GetInfo().view.multiSelectMode = mode;
  return Shown(GetInfo().selection->SelectMode(mode));
}

int CGridCtrl::GetMultiSelectMode() const {
  return GetInfo().view.multiSelectMode;
}

int CGridCtrl::SetNewMultiSelectClass(CGridMultiSelect* selection) {
  CGridInfo& info = GetInfo();
  info.selection = selection == nullptr ? info.ownSelection.get() : selection;
  info.selection->SetGridCtrl(this);
  return Shown(info.selection->SelectMode(info.view.multiSelectMode));
}

CGridMultiSelect* CGridCtrl::GetMultiSelect() const {
  return GetInfo().selection;
}

int CGridCtrl::ClearSelections() {
  GetInfo().selection->AddTotalRangeToDrawHints(GetDrawHints());
  const int cleared = GetInfo().selection->ClearAll();
  m_rooms->parts.ShowMoved();
  return cleared;
}

int CGridCtrl::SelectRange(int startCol, long startRow, int endCol, long endRow) {
  if (startCol > endCol || startRow > endRow) {
    return 1;
  }
  CGridMultiSelect& selection = *GetInfo().selection;
  selection.StartBlock(startCol, startRow);
  const int ended = selection.EndBlock(endCol, endRow);
  m_rooms->parts.ShowMoved();
  return ended;
}

int CGridCtrl::IsSelected(int col, long row, int* block) {
  return GetInfo().selection->IsSelected(col, row, block);
}
int CGridCtrl::EnumFirstSelected(int* col, long* row) {
  return GetInfo().selection->EnumFirstSelected(col, row);
}
int CGridCtrl::EnumNextSelected(int* col, long* row) {
  return GetInfo().selection->EnumNextSelected(col, row);
}

// --- Cell types

int CGridCtrl::AddCellType(CGridCellType* type) {
  return m_rooms->types.Add(CGridParts::ToDelegate(type));
}
CGridCellType* CGridCtrl::GetCellType(int id) {
  return CGridParts::ToType(GetCellDelegate(id));
}
CGridCellType* CGridCtrl::GetCellType(int col, long row) {
  return CGridParts::ToType(GetCellDelegate(col, row));
}
int CGridCtrl::GetCellType(CGridCellType* type) {
  return m_rooms->types.IdOf(CGridParts::ToDelegate(type));
}

int CGridCtrl::RemoveCellType(int id) {
  if (id >= 0 && id < CGridParts::builtInTypes) {
    return 1;
  }
  const std::unique_ptr<coregui::CGridCellDelegate> removed(m_rooms->types.Remove(id));
  return removed == nullptr ? 1 : 0;
}

bool CGridCtrl::HasOwnCellTypes() const {
  return m_rooms->types.Count() > CGridParts::builtInTypes;
}
coregui::CGridCellDelegate* CGridCtrl::GetCellDelegate(int id) {
  return m_rooms->types.Get(id);
}
coregui::CGridCellDelegate* CGridCtrl::GetCellDelegate(int col, long row) {
  return m_rooms->types.Of(col, row);
}

// --- Fonts

int CGridCtrl::AddFont(const LOGFONT& font) {
  return m_rooms->fonts.Add(font);
}
int CGridCtrl::AddFont(int tenthsOfPoint, const wchar_t* face) {
  return m_rooms->fonts.Add(tenthsOfPoint, face);
}
CFont* CGridCtrl::GetFont(int index) const {
  return m_rooms->fonts.At(index);
}

int CGridCtrl::SetDefFont(int index) {
  if (index >= 0 && m_rooms->fonts.At(index) == nullptr) {
    return 1;
  }
  GetInfo().view.defaultFont = std::max(index, -1);
  return 0;
}

CFont* CGridCtrl::GetDefFont() const {
  return m_rooms->fonts.At(GetInfo().view.defaultFont);
}

// --- Redrawing

int CGridCtrl::EnableUpdate(int on) {
  m_rooms->updates = on != 0;
  return 0;
}

int CGridCtrl::GetUpdate() const {
  return m_rooms->updates ? 1 : 0;
}

int CGridCtrl::RedrawAll() {
  m_rooms->parts.ShowAll();
  return 0;
}

int CGridCtrl::RedrawCell(int col, long row) {
  return RedrawRange(col, row, col, row);
}

int CGridCtrl::RedrawRow(long row) {
  return RedrawRange(-GetSH_NumberCols(), row, GetNumberCols() - 1, row);
}

int CGridCtrl::RedrawCol(int col) {
  return RedrawRange(col, -GetTH_NumberRows(), col, GetNumberRows() - 1);
}

int CGridCtrl::RedrawRange(int startCol, long startRow, int endCol, long endRow) {
  m_rooms->parts.ShowRange(startCol, startRow, endCol, endRow);
  return 0;
}

void CGridCtrl::Show(bool changed) {
  if (changed && m_rooms->updates) {
    RedrawAll();
  }
}

int CGridCtrl::SetDoubleBufferMode(int mode) {
  return m_rooms->parts.SetDoubleBufferMode(mode);
}

int CGridCtrl::SetPaintMode(int on) {
  GetInfo().view.paintEnabled = on != 0 ? 1 : 0;
  return 0;
}

int CGridCtrl::GetPaintMode() const {
  return GetInfo().view.paintEnabled;
}
void CGridCtrl::TempDisableFocusRect() {
  m_rooms->parts.TempDisableFocusRect();
}

// --- Context menu

CMenu* CGridCtrl::GetMenu() {
  return m_rooms->menu.Get();
}
int CGridCtrl::StartMenu(int col, long row, POINT* point, int section) {
  return m_rooms->menu.Start(col, row, *point, section);
}
