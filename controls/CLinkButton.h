#pragma once

#include "platform/CButton.h"

/// A button that looks like a link: underlined, in the theme's colour of links, with the hand cursor. Space
/// and Enter follow it as a click does.
///
/// With a link it opens that (a web address, "mailto:", a file's path) with the desktop's program and changes
/// its colour; when that fails it notifies its parent with kLinkFailed. Without one it is a push button
/// and notifies with BN_CLICKED.
class COREGUI_API CLinkButton : public CButton {
 public:
  /// The code of the notification that a link could not be opened.
  static constexpr int kLinkFailed = 0x0601;

  /// Where it leads; empty: it sends its command.
  void SetLink(const wchar_t* link);
  CString GetLink() const { return m_link; }
  bool IsVisited() const { return m_visited; }

  BOOL PreTranslateMessage(MSG* message) override;
  const coregui::MessageTable& GetMessageTable() const override;

 protected:
  void OnPressed() override;
  /// Opens the link; false when it could not be. The default asks the desktop.
  virtual bool OnOpenLink(const CString& link);

 private:
  LRESULT HandleCreate(WPARAM wParam, LPARAM lParam);
  BOOL HandleSetCursor(CWnd* window, UINT hitTest, UINT message);

  CString m_link;
  bool m_visited = false;
};
