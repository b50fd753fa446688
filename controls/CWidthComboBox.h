#pragma once

#include "platform/CComboBox.h"

/// A drop-down list of line widths in millimetres, each drawn as a line of that width beside its value. The
/// lines are as wide as on paper at the screen's dots per inch, one pixel at least and no wider than the item
/// is high. A width of 0 is the thinnest line that a device can draw.
class COREGUI_API CWidthComboBox : public CComboBox {
 public:
  /// Widths are kept in hundredths of a millimetre.
  static constexpr double kWidest = 10.0;

  /// Fills the list with the widths of technical drawing, 0 to 2 mm (the pen series that grows by the root of
  /// two, and the steps between). Chooses none.
  void AddStandardWidths();
  /// Puts a width in its place in the list. Returns its index, also when it is there already; CB_ERR for a
  /// negative one, one beyond kWidest or none at all (NaN).
  int AddWidth(double millimetres);
  /// Chooses a width, which joins the list when it is not there. False for one that AddWidth refuses.
  bool SetWidth(double millimetres);
  /// The chosen width; negative when none is.
  double GetWidth() const;

  BOOL PreCreateWindow(CREATESTRUCT& create) override;

 protected:
  void DrawItem(CDC& dc, const RECT& rect, int index, bool selected) override;
  int GetItemHeight() const override;

 private:
  /// The line's width on the screen, in pixels.
  static int PixelsOf(LPARAM hundredths);
};
