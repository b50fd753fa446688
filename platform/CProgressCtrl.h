#pragma once

#include "platform/CWnd.h"

/// A progress bar. Positions outside the range show as its nearest end.
class COREGUI_API CProgressCtrl : public CWnd {
 public:
  using CWnd::Create;
  BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

  void SetRange32(int lower, int upper);
  void GetRange(int& lower, int& upper) const;
  /// Returns the old position. The position is kept as given.
  int SetPos(int position);
  int GetPos() const { return m_position; }
  int SetStep(int step);  ///< returns the old one; 10 at first
  /// Steps on; beyond the upper end it starts again. Returns the old position.
  int StepIt();

 protected:
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override;

 private:
  void Show();

  int m_lower = 0;
  int m_upper = 100;
  int m_position = 0;
  int m_step = 10;
};
