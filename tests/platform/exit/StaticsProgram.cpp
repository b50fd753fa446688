// A program whose application object and windows are statics, as many are: they go at its exit, after
// everything that was made later. It must end well; the address sanitizer sees to that.

#include "platform/CDC.h"
#include "platform/CDialog.h"
#include "platform/CEdit.h"
#include "platform/CToolTipCtrl.h"
#include "platform/CWinApp.h"

namespace {

constexpr int kDone = 7;

/// Paints, has the focus and a timer, and writes to the profile when it goes.
class Frame : public CWnd {
 public:
  ~Frame() override {
    DestroyWindow();
    PostMessage(WM_USER);
    CWinApp::Get()->GetProfileInt(L"window", L"left", 0);
  }
  void Open() {
    Create(L"", L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 300, 200), nullptr, 0);
    m_edit.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 90, 30), this, 1);
    m_tips.CreateTips(this);
    m_tips.AddTool(&m_edit, L"Level");
    m_dialog.CreateModeless();
    m_edit.SetFocus();
    m_font.CreatePointFont(120, L"DejaVu Sans");
    CClientDC dc(this);
    dc.SelectObject(&m_font);
    dc.TextOut(10, 50, L"1.25", 4);
    SetTimer(1, 1);
  }
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_TIMER) PostQuitMessage(kDone);
    return CWnd::WindowProc(message, wParam, lParam);
  }

 private:
  CFont m_font;
  CEdit m_edit;
  CToolTipCtrl m_tips;
  CDialog m_dialog{L"modeless", this};
};

class Application : public CWinApp {
 public:
  BOOL InitInstance() override {
    m_frame.Open();
    SetMainWnd(&m_frame);
    return TRUE;
  }

 private:
  Frame m_frame;
};

Application theApplication;

}  // namespace

int main() {
  return theApplication.Main() == kDone ? 0 : 1;
}
