#include "platform/CWinApp.h"

#include "platform/CWnd.h"
#include "platform/MachineIdentity.h"
#include "platform/MessageQueue.h"
#include "platform/Toolkit.h"

namespace {

struct Quit {
  bool asked = false;
  int code = 0;
};
Quit quit;
CWinApp* application = nullptr;

/// More rounds than any sane chain of messages needs; a window that never validates itself would go on for
/// ever.
constexpr int kMostRounds = 200;

}  // namespace

CWinApp::CWinApp() {
  application = this;
  quit = Quit();
  coregui::SetUpUserName();
}

CWinApp::~CWinApp() {
  if (application == this) application = nullptr;
  quit = Quit();
}

CWinApp* CWinApp::Get() {
  return application;
}

int CWinApp::Main() {
  if (InitInstance() != FALSE) {
    Run();
  }
  return ExitInstance();
}

BOOL CWinApp::InitInstance() {
  return TRUE;
}

int CWinApp::Run() {
  if (!quit.asked && coregui::EnsureToolkit()) {
    coregui::MakeEventLoop()->Run();
  }
  return quit.code;
}

int CWinApp::ExitInstance() {
  return quit.code;
}

void CWinApp::SetMainWnd(CWnd* window) {
  m_mainWindow = coregui::WindowRef(window);
}

CWnd* CWinApp::GetMainWnd() const {
  return m_mainWindow.Get();
}

bool CWinApp::PumpMessage() {
  if (!quit.asked && coregui::EnsureToolkit()) {
    coregui::HandleEvents(true);
  }
  return !quit.asked;
}

bool CWinApp::PumpPending() {
  bool more = true;
  for (int round = 0; more && round < kMostRounds; ++round) {
    more = coregui::HasToolkit() ? coregui::HandleEvents(false) : coregui::DeliverPosted();
  }
  return !quit.asked;
}

bool CWinApp::IsQuitting() {
  return application != nullptr && quit.asked;
}

void CWinApp::NoteDestroyed(const CWnd& window) {
  if (application != nullptr && application->GetMainWnd() == &window) {
    application->SetMainWnd(nullptr);
    PostQuitMessage(0);
  }
}

void PostQuitMessage(int exitCode) {
  quit = Quit{true, exitCode};
  coregui::ExitEventLoops();
}
