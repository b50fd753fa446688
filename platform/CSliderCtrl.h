#pragma once

#include "platform/CWnd.h"

inline constexpr DWORD TBS_VERT = 0x2;
inline constexpr DWORD TBS_AUTOTICKS = 0x1;

/// A slider. It moves by itself and tells its parent with WM_HSCROLL or WM_VSCROLL and SB_ codes
/// (SB_THUMBTRACK while dragged, SB_THUMBPOSITION when dropped, SB_ENDSCROLL last); the parent reads GetPos.
/// Range and position live in the native window: set before it is created they are lost.
class COREGUI_API CSliderCtrl : public CWnd {
 public:
  using CWnd::Create;
  BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

  void SetRange(int minimum, int maximum, BOOL redraw = TRUE);
  int GetRangeMin() const;
  int GetRangeMax() const;
  /// Without a notification; brought into the range.
  void SetPos(int position);
  int GetPos() const;
  void SetLineSize(int size);
  void SetPageSize(int size);
  void SetTicFreq(int frequency);

 protected:
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override;
  /// A person moved it; the parent hears of it afterwards. The default does nothing.
  virtual void OnMoved(int position);
};
