#pragma once

#include "platform/CWnd.h"
#include "platform/WindowRef.h"

// Styles of a spin button.
inline constexpr DWORD UDS_WRAP = 0x1;
inline constexpr DWORD UDS_SETBUDDYINT = 0x2;

/// Two arrows that count a position up and down, with the mouse, the wheel and the arrow keys. With
/// UDS_SETBUDDYINT the buddy window's text shows the position. After each step the parent gets WM_VSCROLL
/// with SB_THUMBPOSITION (the position's 16 low bits) and then SB_ENDSCROLL.
class COREGUI_API CSpinButtonCtrl : public CWnd {
 public:
  using CWnd::Create;
  BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

  /// Borrowed: held weakly.
  void SetBuddy(CWnd* buddy);
  CWnd* GetBuddy() const;
  void SetRange32(int lower, int upper);
  void GetRange32(int& lower, int& upper) const;
  /// Returns the old position. The new one is brought into the range.
  int SetPos32(int position);
  int GetPos32() const;

 protected:
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override;
  /// Before a step of `delta` (a multiple of 1, negative downwards): false refuses it. The default allows.
  virtual bool OnDeltaPos(int position, int delta);

 private:
  void Step(int steps);

  int m_lower = 0;
  int m_upper = 100;
  int m_position = 0;
  coregui::WindowRef m_buddy;
  friend class CSpinButtonWindow;
};
