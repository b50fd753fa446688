#pragma once

#include <memory>
#include <vector>

#include "coregui/coregui.h"

namespace gallery {

/// Every control of the library, in two columns of labelled rows and a column of trees.
class ControlPane {
 public:
  /// Makes the controls as children of the window, in the order that Tab goes through. `width` of the client
  /// area, in pixels. Returns the lower edge.
  int Create(CWnd& parent, int width);
  CString WebAddress() const { return m_link.GetLink(); }

 private:
  struct Column {
    CWnd* parent;
    int left;
    int width;
    int top;
  };
  void AddTitle(Column& column, const wchar_t* text);
  /// A label, and the place for its control behind it.
  CRect AddRow(Column& column, const wchar_t* label);
  void Name(CWnd& control, const wchar_t* name);
  void AddEdits(Column& column);
  void AddNumbers(Column& column);
  void AddChoices(Column& column);
  void AddTrees(Column& column, int bottom);
  void FillTree();

  std::vector<std::unique_ptr<CStatic>> m_labels;
  CNameEdit m_name;
  CNameEdit m_road;
  CHexEdit m_hex;
  CAdvEdit m_advanced;
  CSmartEdit m_chainage;
  CSmartEdit m_integer;
  CFloatEdit m_float;
  CFloatSpinCtrl m_floatSpin;
  CIntEdit m_int;
  CIntSpinCtrl m_intSpin;
  CFloatEdit m_linked;
  CLinkSlider m_slider;
  CFontCombo m_font;
  CWidthComboBox m_width;
  CLinkButton m_link;
  CLinkButton m_command;
  CCustomTreeCtrl m_tree;
  CEmptyTreeCtrl m_empty;
  UINT m_nextId = 200;
};

/// The ids of the links that open the help and a web page.
inline constexpr UINT kHelpCommand = 190;
inline constexpr UINT kWebLink = 191;

}  // namespace gallery
