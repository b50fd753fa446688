#pragma once

#include <memory>
#include <vector>

#include "ControlPane.h"
#include "PictureSheet.h"
#include "coregui/coregui.h"

namespace gallery {

/// The gallery: every control, and a button for every dialog. Tab goes through all of them.
class GalleryWindow : public CDialog {
 public:
  GalleryWindow() : CDialog(L"Controls and dialogs") {}
  /// Opens each dialog once, pictures it and closes it, and writes a sheet with all pictures. False when a
  /// dialog did not show or the file cannot be written.
  bool WriteSheet(const CString& path);

  const coregui::MessageTable& GetMessageTable() const override;
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  BOOL OnInitDialog() override;
  void OnOK() override {}
  void OnCancel() override { DestroyWindow(); }

 private:
  static constexpr UINT kFirstDialog = 400;
  static constexpr UINT kPictureTimer = 1;

  void MakeButtons(int top);
  void HandleHelp();
  void HandleDeadLink();
  void HandleTimer(UINT id);
  std::unique_ptr<CBitmap> PictureOfWindow();

  ControlPane m_pane;
  CStatic m_title;
  std::vector<std::unique_ptr<CButton>> m_buttons;
  std::unique_ptr<CBitmap> m_taken;  ///< of the dialog that is open, once it shows
};

}  // namespace gallery
