#include "DeskWindow.h"

#include <algorithm>

namespace desk {

namespace {

constexpr wchar_t kDeskName[] = L"Long-section desk";

std::wstring FileName(const std::wstring& path) {
  return coreExtractFileName(path.c_str());
}

}  // namespace

BOOL DeskWindow::CreateDesk(CSize size) {
  const CRect rect(CPoint(80, 60), size);
  if (!Create(L"LongSectionDesk", kDeskName, WS_OVERLAPPEDWINDOW, rect, nullptr, 0)) {
    return FALSE;
  }
  const CRect client = GetClientRectangle();
  if (!m_grid.CreateGrid(WS_CHILD | WS_VISIBLE, client, this, kGridId) || !m_status.CreateLine(this)) {
    return FALSE;
  }
  m_grid.SetAccessibleName(L"Survey table");
  HandleSize(SIZE_RESTORED, client.Width(), client.Height());
  m_status.Show(L"Open a survey with Ctrl+O.");
  return TRUE;
}

bool DeskWindow::Open(const std::wstring& path) {
  m_opening = FileName(path);
  m_report = ReadSurvey(path, *this);
  if (!m_report.error.empty()) {
    m_status.Show(path + L": " + m_report.error, true);
    ShowTitle();
    return false;
  }
  m_path = path;
  m_grid.EndTable(m_report.rows);
  m_status.Show(m_opening + L": " + m_report.Summary(), m_report.HasOddities());
  ShowTitle();
  return true;
}

void DeskWindow::ShowTitle() {
  std::wstring title = kDeskName;
  if (!m_report.error.empty()) {
    title = m_opening + L" (not read) - " + title;
  } else if (!m_path.empty()) {
    title = FileName(m_path) + L" (" + m_report.RowsText() + L") - " + title;
  }
  SetWindowText(title.c_str());
}

void DeskWindow::Begin(const CsvDialect& dialect) {
  m_grid.BeginTable(dialect);
}

void DeskWindow::Row(std::uint64_t row, const std::vector<std::wstring_view>& fields) {
  m_grid.StoreRow(row, fields);
}

bool DeskWindow::Progress(double part) {
  m_status.Show(L"Reading " + m_opening + L" " + std::to_wstring(static_cast<int>(part * 100.0)) + L" %");
  return true;
}

const coregui::MessageTable& DeskWindow::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_SIZE>(&DeskWindow::HandleSize)
                                                 .On<WM_SETFOCUS>(&DeskWindow::HandleSetFocus)
                                                 .On<WM_CLOSE>(&DeskWindow::HandleClose);
  return table;
}

BOOL DeskWindow::PreTranslateMessage(MSG* message) {
  if (message->message == WM_KEYDOWN && GetKeyState(VK_CONTROL) < 0) {
    if (message->wParam == 'O') {
    }
    if (message->wParam == 'Q') {
      PostMessage(WM_CLOSE);
      return TRUE;
    }
  }
  return CWnd::PreTranslateMessage(message);
}

void DeskWindow::HandleSize(UINT /*type*/, int width, int height) {
  if (!m_grid.HasWindow() || !m_status.HasWindow()) {
    return;
  }
  const int gridHeight = std::max(0, height - StatusLine::Height());
  m_grid.MoveWindow(0, 0, width, gridHeight);
  m_status.MoveWindow(0, gridHeight, width, StatusLine::Height());
}

void DeskWindow::HandleSetFocus(CWnd* /*other*/) {
  if (CWnd* body = m_grid.GetGridWnd()) {
    body->SetFocus();
  }
}

void DeskWindow::HandleClose() {
  DestroyWindow();
}

}  // namespace desk
