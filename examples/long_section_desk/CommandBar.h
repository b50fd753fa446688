#pragma once

#include <memory>
#include <vector>

#include "coregui/coregui.h"

namespace desk {

/// One button of a command bar.
struct BarCommand {
  UINT id;
  const wchar_t* text;  ///< with its access key
  const wchar_t* tip;
};

/// A control that lets tips see its messages.
template <class Control>
class WithTip : public Control {
 public:
  /// `tips` is borrowed and must outlive the control's window.
  explicit WithTip(CToolTipCtrl& tips) : m_tips(tips) {}
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    m_tips.RelayEvent({this->GetSafeHwnd(), message, wParam, lParam});
    return Control::WindowProc(message, wParam, lParam);
  }

 private:
  CToolTipCtrl& m_tips;
};

/// A row of buttons with tips, and a choice of vertical exaggerations behind them. What a narrow window has
/// no room for, the last buttons first, stands in the menu of one more button. Everything is sent to the
/// parent as WM_COMMAND.
class CommandBar : public CWnd {
 public:
  static constexpr UINT kId = 107;
  static constexpr UINT kExaggerationId = 190;
  static constexpr UINT kMoreId = 192;
  static constexpr double kLeastExaggeration = 0.01;
  static constexpr double kMostExaggeration = 1'000'000.0;

  static int Height() { return ScaleByDpi(34); }
  BOOL CreateBar(CWnd* parent, const std::vector<BarCommand>& commands);
  /// The chosen exaggeration; 0 for the last entry of the list, which asks for another one.
  double GetExaggeration() const;
  void ShowExaggeration(double times);
  void EnableCommand(UINT id, bool on);
  /// The controls in the order of the Tab key.
  std::vector<CWnd*> Stops();
  /// Fills a menu with the commands that have no room.
  void FillMore(CMenu& menu) const;
  /// Where a menu of a command opens: below its button, or below the one that has it in its menu.
  CPoint MenuPlace(UINT id) const;

 protected:
  const coregui::MessageTable& GetMessageTable() const override;

 private:
  int WidthOf(const wchar_t* text);
  BOOL AddButton(CButton& button, const wchar_t* text, const wchar_t* tip, UINT id);
  void Arrange();
  std::size_t CountWithRoom(int width) const;
  void OpenMore();
  void FillExaggerations(double extra);
  void HandlePaint();
  void HandleSize(UINT type, int width, int height);
  LRESULT HandleCommand(WPARAM wParam, LPARAM lParam);

  CToolTipCtrl m_tips;
  std::vector<std::unique_ptr<CButton>> m_buttons;
  std::vector<int> m_widths;  ///< of the buttons
  std::size_t m_shown = 0;    ///< how many of them have room
  WithTip<CButton> m_more{m_tips};
  CStatic m_label;
  WithTip<CComboBox> m_exaggeration{m_tips};
  std::vector<double> m_times;  ///< of the list's entries
};

}  // namespace desk
