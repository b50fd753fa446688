#pragma once

#include "platform/CComboBox.h"

/// A drop-down list of the screen's font families, each name written in its own face (a family of symbols:
/// its name in the system's face, then a few of its signs). The box fills itself when it is created; the
/// families come from a cache that the program builds once at the start, and that is built on first use
/// otherwise.
class COREGUI_API CFontCombo : public CComboBox {
 public:
  /// Looks the font families up for all font combo boxes, once. Returns how many there are.
  static int BuildFontCache();

  /// Chooses a family, ignoring case. False, with the choice unchanged, for one that the screen does not
  /// have.
  bool SelectFont(const wchar_t* family);
  /// The family that is chosen; empty when none is.
  CString GetSelectedFont() const;

  BOOL PreCreateWindow(CREATESTRUCT& create) override;
  const coregui::MessageTable& GetMessageTable() const override;

 protected:
  void DrawItem(CDC& dc, const RECT& rect, int index, bool selected) override;
  int GetItemHeight() const override;

 private:
  LRESULT HandleCreate(WPARAM wParam, LPARAM lParam);
};
