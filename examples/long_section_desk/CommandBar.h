#pragma once

#include <memory>
#include <vector>

#include "coregui/coregui.h"

namespace desk {

/// One button of a command bar.
struct BarCommand {
  UINT id;
  const wchar_t* text;  ///< with its access key
};

/// A row of buttons, and a choice of vertical exaggerations at its end. Everything is sent to the parent as
/// WM_COMMAND.
class CommandBar : public CWnd {
 public:
  static constexpr UINT kId = 107;
  static constexpr UINT kExaggerationId = 190;

  static int Height() { return ScaleByDpi(34); }
  BOOL CreateBar(CWnd* parent, const std::vector<BarCommand>& commands);
  /// The chosen exaggeration; 0 when none of the list is shown.
  double GetExaggeration() const;
  void ShowExaggeration(double times);
  void EnableCommand(UINT id, bool on);

 protected:
  const coregui::MessageTable& GetMessageTable() const override;

 private:
  void HandlePaint();
  LRESULT HandleCommand(WPARAM wParam, LPARAM lParam);

  std::vector<std::unique_ptr<CButton>> m_buttons;
  CStatic m_label;
  CComboBox m_exaggeration;
};

}  // namespace desk
