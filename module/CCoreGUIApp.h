#pragma once

#include "platform/CWinApp.h"

/// The application object of the library. Its initialisation registers the library's classes by name, sets
/// the company key "Fenwarrow" and the profile name "Strandmere 8.1", names the help file and looks the font
/// families up for the font combo boxes; ExitInstance undoes the registration. As every application object it
/// gives the environment the user's name, in "USERNAME", where the desktop did not.
///
/// A program derives from it, calls the base first in InitInstance, and makes its main window there.
class COREGUI_API CCoreGUIApp : public CWinApp {
 public:
  CCoreGUIApp();
  /// Undoes what ExitInstance was not asked to undo.
  ~CCoreGUIApp() override;

  /// May be called again: nothing is registered twice. 0 when another module took a name of the library's.
  BOOL InitInstance() override;
  int ExitInstance() override;

  /// The help file: in the folder that SetHelpFolder gave, else in that of the program.
  CString GetHelpFile() const;
  void SetHelpFolder(const wchar_t* folder) { m_helpFolder = folder; }
  /// Opens the help file with the desktop's program for it. When it is missing or nothing can open it, tells
  /// the user which file that is and answers false.
  bool OpenHelp(CWnd* owner = nullptr);

 protected:
  /// Shows the help file; false when nothing on the desktop can. The default asks the desktop.
  virtual bool OnShowHelp(const CString& file);

 private:
  void Unregister();

  CString m_helpFolder;
  bool m_registered = false;
};
