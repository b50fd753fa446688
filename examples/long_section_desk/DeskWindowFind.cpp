#include <chrono>

#include "DeskWindow.h"
#include "WaitCursor.h"

// How the desk looks for texts. In millions of rows that takes a while; the windows are kept alive meanwhile.

namespace desk {

/// Keeps the desk alive while the table is searched, and says how far the search has come. The table and the
/// plots can still be moved; Esc, another search, closing the find dialog and closing the desk end it.
class DeskWindow::Searching {
 public:
  explicit Searching(DeskWindow& desk)
      : m_desk(desk), m_what(L"Looking for \"" + desk.m_finder.Text().Str() + L"\", ") {
    m_desk.m_working = m_desk.m_searching = true;
    m_desk.m_stop = m_desk.m_findAfter = m_desk.m_closeAfter = false;
  }
  ~Searching() {
    m_desk.m_working = m_desk.m_searching = false;
    m_desk.m_commands.EnableWindow(TRUE);
    DragAcceptFiles(m_desk.GetSafeHwnd(), TRUE);
    CWnd* focus = m_focus.Get();
    if (focus != nullptr && m_desk.m_commands.IsChild(focus)) {
      focus->SetFocus();
    }
  }
  Searching(const Searching&) = delete;
  Searching& operator=(const Searching&) = delete;

  /// Handles the messages that have come; false when the search is to end.
  bool GoesOn(double part) {
    const Clock::time_point now = Clock::now();
    if (now - m_pumped >= kPause) {
      if (now - m_begun >= kSoon) {
        Show(part);
      }
      m_desk.m_stop = !CWinApp::PumpPending() || m_desk.m_stop;
      m_pumped = Clock::now();
    }
    return !m_desk.m_stop;
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::milliseconds kPause{10};
  static constexpr std::chrono::milliseconds kSoon{150};  // what ends earlier shows nothing

  void Show(double part) {
    if (m_percent < 0) {
      m_desk.m_commands.EnableWindow(FALSE);
      DragAcceptFiles(m_desk.GetSafeHwnd(), FALSE);
    }
    if (const int percent = static_cast<int>(part * 100.0); percent != m_percent) {
      m_percent = percent;
      m_desk.m_status.Show(m_what + std::to_wstring(percent) + L" % (Esc stops)");
    }
  }

  WaitCursor m_wait;
  DeskWindow& m_desk;
  std::wstring m_what;
  coregui::WindowRef m_focus{GetFocus()};
  Clock::time_point m_begun = Clock::now();
  Clock::time_point m_pumped;
  int m_percent = -1;
};

void DeskWindow::Find(const CString& text) {
  m_finder.SetText(text);
  FindAgain(false);
}

void DeskWindow::FindAgain(bool back) {
  const auto search = [this, back] {
    const bool alive = TakesAWhile(m_grid.GetNumberRows());
    Searching searching(*this);
    return m_finder.FindAgain(back, [&](double part) { return !alive || searching.GoesOn(part); });
  };
  TableFinder::Result result = search();
  while (std::exchange(m_findAfter, false) && !m_closeAfter) {
    back = false;
    result = search();
  }
  if (std::exchange(m_closeAfter, false)) {
    PostMessage(WM_CLOSE);
    return;
  }
  TellFound(result);
}

void DeskWindow::TellFound(TableFinder::Result result) {
  switch (result) {
    case TableFinder::Result::nothingToFind:
      FindWithDialog();
      break;
    case TableFinder::Result::notFound: {
      const std::wstring text = L"\"" + m_finder.Text().Str() + L"\" is not in the table.";
      m_status.Show(text, true);
      if (!m_unattended) {
        InfoMessage(text.c_str(), m_finder.Dialog() != nullptr && m_finder.Dialog()->HasWindow()
                                      ? m_finder.Dialog()
                                      : this);
      }
      break;
    }
    case TableFinder::Result::foundFromOtherEnd:
      m_status.Show(L"The search went on at the other end of the table.");
      break;
    case TableFinder::Result::givenUp:
      m_status.Show(L"The search was stopped.");
      break;
    case TableFinder::Result::found:
      break;
  }
}

}  // namespace desk
