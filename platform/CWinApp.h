#pragma once

#include "core/Export.h"
#include "platform/CObject.h"
#include "platform/Profile.h"
#include "platform/Types.h"
#include "platform/WindowRef.h"

/// The program. One object at most; windows and dialogs work without one too, as in a host program that runs
/// its own event loop. The toolkit's application is made when the first window needs it.
class COREGUI_API CWinApp : public CObject {
 public:
  /// Gives the environment the user's name where the desktop did not.
  CWinApp();
  ~CWinApp() override;
  CWinApp(const CWinApp&) = delete;
  CWinApp& operator=(const CWinApp&) = delete;
  /// The program's object; null when there is none.
  static CWinApp* Get();

  /// What main() calls: InitInstance, Run unless that answered 0, ExitInstance. Returns ExitInstance's
  /// result.
  int Main();
  /// Makes the main window; 0 ends the program.
  virtual BOOL InitInstance();
  /// The event loop, until PostQuitMessage or the end of the main window. Returns the exit code.
  virtual int Run();
  /// The default returns the exit code.
  virtual int ExitInstance();

  /// Borrowed and weak. When its native window is destroyed, the program quits.
  void SetMainWnd(CWnd* window);
  CWnd* GetMainWnd() const;

  /// Waits for events and handles them; false once the program is to quit.
  static bool PumpMessage();
  /// Handles everything that is waiting, paint requests included, without waiting for more. What keeps a long
  /// operation's windows alive. False once the program is to quit.
  static bool PumpPending();

  // --- The program's profile (coregui::Profile), which windows without a program object reach as well

  void SetRegistryKey(const wchar_t* company) { coregui::Profile::Get().SetCompany(company); }
  void SetProfileName(const wchar_t* name) { coregui::Profile::Get().SetName(name); }
  UINT GetProfileInt(const wchar_t* section, const wchar_t* entry, int fallback) const {
    return static_cast<UINT>(coregui::Profile::Get().GetInt(section, entry, fallback));
  }
  BOOL WriteProfileInt(const wchar_t* section, const wchar_t* entry, int value) {
    return coregui::Profile::Get().WriteInt(section, entry, value) ? TRUE : FALSE;
  }
  CString GetProfileString(const wchar_t* section, const wchar_t* entry,
                           const wchar_t* fallback = L"") const {
    return coregui::Profile::Get().GetString(section, entry, fallback);
  }
  BOOL WriteProfileString(const wchar_t* section, const wchar_t* entry, const wchar_t* value) {
    return coregui::Profile::Get().WriteString(section, entry, value) ? TRUE : FALSE;
  }

  /// True between PostQuitMessage and the end of the program's object: no modal dialog opens any more.
  static bool IsQuitting();

  /// Internal: a native window is gone.
  static void NoteDestroyed(const CWnd& window);

 private:
  coregui::WindowRef m_mainWindow;
};

/// Ends every event loop, those of modal dialogs included; Run returns the code.
COREGUI_API void PostQuitMessage(int exitCode);
