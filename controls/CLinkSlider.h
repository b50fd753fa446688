#pragma once

#include "platform/CSliderCtrl.h"
#include "platform/WindowRef.h"

class CFloatEdit;

/// A slider that shows and sets the number of an edit box. Moving it sets the box before the parent hears of
/// the move; a change of the box moves it. Numbers beyond its ends show at the nearest end and stay as they
/// are.
class COREGUI_API CLinkSlider : public CSliderCtrl {
 public:
  /// Ties the slider to a box, both created already; null unties it. Its left end stands for `first`, its
  /// right end for `last`, in `steps` equal steps (1 at least). Borrowed: held weakly.
  void SetLink(CFloatEdit* edit, double first, double last, int steps = 100);
  CFloatEdit* GetLink() const;

 protected:
  void OnMoved(int position) override;

 private:
  void Follow();

  coregui::WindowRef m_edit;
  double m_first = 0;
  double m_last = 1;
  int m_steps = 100;
  bool m_moving = false;  ///< the slider is setting the box
};
