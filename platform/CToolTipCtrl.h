#pragma once

#include <functional>
#include <vector>

#include "platform/CWnd.h"
#include "platform/TipClock.h"
#include "platform/WindowRef.h"

namespace coregui {

/// One tip: the area that it is for (client coordinates of the tool's window) and its text.
struct Tip {
  CRect area;
  CString text;
};

/// Finds the area under a client position, and its text when `wantText`; false when nothing there has a tip.
using TipFinder = std::function<bool(CPoint client, bool wantText, Tip& tip)>;

}  // namespace coregui

/// The window of tips. A program gives it its tools and relays the mouse and key messages of their windows
/// (from PreTranslateMessage or WindowProc); or it decides by itself and calls ShowTip and HideTip.
class COREGUI_API CToolTipCtrl : public CWnd {
 public:
  CToolTipCtrl();
  ~CToolTipCtrl() override;

  /// Makes the (hidden) window. The tips stand in front of `owner`'s top-level window.
  BOOL CreateTips(CWnd* owner);

  /// A tip for a window, or for a part of it (null: the whole client area).
  void AddTool(CWnd* window, const wchar_t* text, const RECT* rect = nullptr);
  /// Tips that are found, and their texts asked for, when the pointer rests: one per cell, say.
  void AddTool(CWnd* window, coregui::TipFinder finder);
  void RemoveTools(const CWnd* window);
  /// Watches a message of a tool's window: moves bring tips, buttons, keys and the wheel take them away.
  void RelayEvent(const MSG& message);

  void SetDelays(const coregui::TipClock::Delays& delays) { m_clock.delays = delays; }
  /// Longer texts wrap at words; 0: never. In pixels.
  void SetMaxTipWidth(int width) { m_widest = width; }
  void Activate(bool active);

  /// Shows a text below and right of a screen position, kept on the screen. An empty text shows nothing.
  void ShowTip(const wchar_t* text, CPoint screen);
  void HideTip();
  bool IsTipShown() const { return (GetStyle() & WS_VISIBLE) != 0; }

  const coregui::MessageTable& GetMessageTable() const override;

 private:
  struct Tool {
    coregui::WindowRef window;
    coregui::TipFinder finder;
  };
  bool Find(CWnd& window, CPoint client, bool wantText, coregui::Tip& tip) const;
  void Follow(CWnd& window, CPoint client);
  void Obey(coregui::TipClock::Action action);
  void ShowFound();
  CSize TextSize(int widest);
  void HandleTimer(UINT id);
  void HandlePaint();

  std::vector<Tool> m_tools;
  coregui::TipClock m_clock;
  coregui::WindowRef m_over;  ///< the tool's window that the pointer is over
  CPoint m_pointer;           ///< in its client area
  int m_widest = 0;
  bool m_active = true;
};
