#include "grid/control/CGridParts.h"

#include <algorithm>

#include "grid/celltypes/CGridArrowType.h"
#include "grid/celltypes/CGridCellType.h"
#include "grid/celltypes/CGridCheckBoxType.h"
#include "grid/celltypes/CGridDropListType.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "grid/display/CGrid.h"
#include "grid/display/CGridCnrBtn.h"
#include "grid/display/CGridHScroll.h"
#include "grid/display/CGridSideHdg.h"
#include "grid/display/CGridTab.h"
#include "grid/display/CGridTopHdg.h"
#include "grid/display/CGridVScroll.h"
#include "platform/CDC.h"
#include "platform/WindowRef.h"

namespace coregui {

namespace {

// Child ids behind those of the sections.
constexpr int idOfTabs = GRIDSECTION_CORNERBUTTON + 1;
constexpr int idOfVScroll = idOfTabs + 1;
constexpr int idOfHScroll = idOfTabs + 2;

}  // namespace

struct CGridParts::Types {
  CGridCellType normal;
  CGridDropListType dropList;
  CGridCheckBoxType checkBox;
  CGridArrowType arrow;
};

struct CGridParts::Windows {
  explicit Windows(CGridCtrl& control)
      : body(&control),
        topHeading(&control),
        sideHeading(&control),
        corner(&control),
        vScroll(&control),
        hScroll(&control),
        tabs(&control) {}

  CGrid body;
  CGridTopHdg topHeading;
  CGridSideHdg sideHeading;
  CGridCnrBtn corner;
  CGridVScroll vScroll;
  CGridHScroll hScroll;
  CGridTab tabs;
};

CGridParts::CGridParts(CGridCtrl& control) : m_control(control), m_types(std::make_unique<Types>()) {}
CGridParts::~CGridParts() = default;

void CGridParts::RegisterBuiltInTypes() {
  m_control.AddCellType(&m_types->normal);
  m_control.AddCellType(&m_types->dropList);
  m_control.AddCellType(&m_types->checkBox);
  m_control.AddCellType(&m_types->arrow);
}

bool CGridParts::CreateWindows() {
  m_windows = std::make_unique<Windows>(m_control);
  constexpr DWORD style = WS_CHILD | WS_CLIPSIBLINGS;
  const auto create = [this](CWnd& window, const wchar_t* name, UINT id) {
    return window.Create(name, L"", style, CRect(), &m_control, id) != FALSE;
  };
  const bool created =
      create(m_windows->body, L"CoreGuiGridBody", GRIDSECTION_GRID) &&
      create(m_windows->topHeading, L"CoreGuiGridTopHeading", GRIDSECTION_TOPHEADING) &&
      create(m_windows->sideHeading, L"CoreGuiGridSideHeading", GRIDSECTION_SIDEHEADING) &&
      create(m_windows->corner, L"CoreGuiGridCorner", GRIDSECTION_CORNERBUTTON) &&
      create(m_windows->tabs, L"CoreGuiGridTabs", idOfTabs) &&
      m_windows->vScroll.Create(style | SBS_VERT, CRect(), &m_control, idOfVScroll) != FALSE &&
      m_windows->hScroll.Create(style | SBS_HORZ, CRect(), &m_control, idOfHScroll) != FALSE;
  if (created) {
    m_windows->body.SetDoubleBufferMode(m_doubleBuffer);
  }
  return created;
}

CGridCellDelegate* CGridParts::ToDelegate(CGridCellType* type) {
  return type;
}
CGridCellType* CGridParts::ToType(CGridCellDelegate* type) {
  return static_cast<CGridCellType*>(type);
}

CWnd* CGridParts::Body() const {
  return m_windows == nullptr ? nullptr : &m_windows->body;
}
CWnd* CGridParts::TopHeading() const {
  return m_windows == nullptr ? nullptr : &m_windows->topHeading;
}
CWnd* CGridParts::SideHeading() const {
  return m_windows == nullptr ? nullptr : &m_windows->sideHeading;
}
CWnd* CGridParts::CornerButton() const {
  return m_windows == nullptr ? nullptr : &m_windows->corner;
}
CScrollBar* CGridParts::ScrollBar(int bar) const {
  if (m_windows == nullptr) {
    return nullptr;
  }
  return bar == SB_VERT ? static_cast<CScrollBar*>(&m_windows->vScroll) : &m_windows->hScroll;
}

int CGridParts::SetDoubleBufferMode(int mode) {
  m_doubleBuffer = mode;
  return m_windows == nullptr ? 0 : m_windows->body.SetDoubleBufferMode(mode);
}

void CGridParts::TempDisableFocusRect() {
  if (m_windows != nullptr) {
    m_windows->body.TempDisableFocusRect();
  }
}

void CGridParts::OnScroll(int bar, int code) {
  if (m_windows == nullptr) {
    return;
  }
  if (bar == SB_VERT) {
    m_windows->vScroll.OnScroll(code);
  } else {
    m_windows->hScroll.OnScroll(code);
  }
}

void CGridParts::ShowMoved() {
  if (m_windows == nullptr) {
    return;
  }
  // A handler inside a paint pass may destroy the grid.
  const WindowRef alive(&m_control);
  m_windows->body.Moved();
  if (alive) {
    m_windows->topHeading.Moved();
  }
  if (alive) {
    m_windows->sideHeading.Moved();
  }
}

void CGridParts::ShowRange(int startCol, long startRow, int endCol, long endRow) {
  if (m_windows == nullptr) {
    return;
  }
  const WindowRef alive(&m_control);
  // A joined block may reach from one window into the other.
  const auto drawsAsOne = [&](auto& window) {
    return window.GetDrawHints().IsDrawnAsOne({startCol, startRow, endCol, endRow});
  };
  const auto show = [&](auto& window, bool hasCells) {
    if (alive && (hasCells || drawsAsOne(window))) {
      window.RedrawRange(startCol, startRow, endCol, endRow);
    }
  };
  if ((startCol < 0 && startRow < 0) || drawsAsOne(m_windows->corner)) {
    m_windows->corner.Invalidate(TRUE);
  }
  show(m_windows->topHeading, startRow < 0 && endCol >= 0);
  show(m_windows->sideHeading, startCol < 0 && endRow >= 0);
  show(m_windows->body, endCol >= 0 && endRow >= 0);
}

void CGridParts::ShowAll() {
  if (m_windows == nullptr) {
    return;
  }
  m_windows->body.Invalidate(TRUE);
  m_windows->topHeading.Invalidate(TRUE);
  m_windows->sideHeading.Invalidate(TRUE);
  m_windows->corner.Invalidate(TRUE);
}

void CGridParts::ShowScrollBars() {
  const CGridLayout wanted = CGridLayout::Of(m_control.GetInfo(), m_control.GetClientRectangle().Size());
  if (!(wanted == m_layout)) {
    LayOut();
    return;
  }
  if (m_windows != nullptr) {
    m_windows->vScroll.ShowPosition();
    m_windows->hScroll.ShowPosition();
  }
}

void CGridParts::ShowSheets() {
  if (m_windows != nullptr) {
    m_windows->tabs.ShowSheets();
  }
}

void CGridParts::LayOut() {
  if (m_layingOut) {
    return;
  }
  m_layingOut = true;
  m_layout = CGridLayout::Of(m_control.GetInfo(), m_control.GetClientRectangle().Size());
  m_control.TakeViewSize(m_layout.body.Size());
  if (m_windows != nullptr) {
    PlaceWindows();
  }
  m_layingOut = false;
  ShowScrollBars();
}

void CGridParts::PlaceWindows() {
  const auto place = [](CWnd& window, const CRect& rect) {
    if (!rect.IsRectEmpty()) {
      window.MoveWindow(rect);
    }
    window.ShowWindow(rect.IsRectEmpty() ? SW_HIDE : SW_SHOW);
  };
  place(m_windows->body, m_layout.body);
  place(m_windows->topHeading, m_layout.topHeading);
  place(m_windows->sideHeading, m_layout.sideHeading);
  place(m_windows->corner, m_layout.corner);
  place(m_windows->vScroll, m_layout.vScroll);
  place(m_windows->hScroll, m_layout.hScroll);
  place(m_windows->tabs, m_layout.tabs);
}

CGridDrawHint* CGridParts::BodyHints() {
  return m_windows == nullptr ? nullptr : &m_windows->body.GetDrawHints();
}

bool CGridParts::Measure(const std::function<void(CDC& dc)>& measure) {
  if (m_windows == nullptr || !m_windows->body.HasWindow()) {
    return false;
  }
  CClientDC dc(&m_windows->body);
  dc.SelectObject(m_control.GetDefFont());
  measure(dc);
  return true;
}

void CGridParts::FocusBody() {
  if (m_windows != nullptr) {
    m_windows->body.SetFocus();
  }
}

}  // namespace coregui
