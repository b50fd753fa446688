#include "ControlPane.h"

namespace gallery {

namespace {

constexpr int kMargin = 14;  // lengths at 96 dots per inch
constexpr int kRowHeight = 26;
constexpr int kRowGap = 8;
constexpr int kLabelWidth = 112;
constexpr int kLabelDrop = 5;  // sets a label on the line of the text beside it
constexpr int kSpinWidth = 20;
constexpr DWORD kControl = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
constexpr DWORD kEdit = kControl | WS_BORDER | ES_AUTOHSCROLL;

}  // namespace

void ControlPane::AddTitle(Column& column, const wchar_t* text) {
  const int height = ScaleByDpi(kRowHeight);
  auto& label = *m_labels.emplace_back(std::make_unique<CStatic>());
  label.Create(text, WS_CHILD | WS_VISIBLE | SS_LEFT,
               CRect(column.left, column.top, column.left + column.width, column.top + height),
               column.parent);
  column.top += height;
}

CRect ControlPane::AddRow(Column& column, const wchar_t* label) {
  const int height = ScaleByDpi(kRowHeight);
  const int split = column.left + ScaleByDpi(kLabelWidth);
  auto& text = *m_labels.emplace_back(std::make_unique<CStatic>());
  text.Create(label, WS_CHILD | WS_VISIBLE | SS_LEFT,
              CRect(column.left, column.top + ScaleByDpi(kLabelDrop), split, column.top + height),
              column.parent);
  const CRect place(split, column.top, column.left + column.width, column.top + height);
  column.top += height + ScaleByDpi(kRowGap);
  return place;
}

void ControlPane::Name(CWnd& control, const wchar_t* name) {
  control.SetAccessibleName(name);
}

void ControlPane::AddEdits(Column& column) {
  AddTitle(column, L"Text");
  m_name.SetAllowedCharacters(CNameEdit::GetAllowedCharacters(L"LAYER"));
  m_name.Create(kEdit, AddRow(column, L"Layer &name"), column.parent, m_nextId++);
  m_name.SetValue(L"KERB-LEFT_2");
  Name(m_name, L"Layer name");
  m_road.SetAllowedCharacters(CNameEdit::GetAllowedCharacters(L"ROAD"));
  m_road.Create(kEdit, AddRow(column, L"R&oad name"), column.parent, m_nextId++);
  m_road.SetValue(L"Ring road; north");
  Name(m_road, L"Road name");
  m_hex.Create(kEdit, AddRow(column, L"He&xadecimal"), column.parent, m_nextId++);
  m_hex.SetWindowText(L"00 FF A8");
  Name(m_hex, L"Hexadecimal digits");
  m_advanced.Create(kEdit, AddRow(column, L"Se&arch"), column.parent, m_nextId++);
  m_advanced.SetPrompt(L"Find an entity by name");
  Name(m_advanced, L"Search");
  m_chainage.Create(kEdit, AddRow(column, L"Chaina&ge"), column.parent, m_nextId++);
  m_chainage.SetKind(CSmartEdit::Kind::chainage);
  m_chainage.SetNumber(1234.5);
  Name(m_chainage, L"Chainage");
  m_integer.Create(kEdit, AddRow(column, L"Lanes, 1 to 6"), column.parent, m_nextId++);
  m_integer.SetKind(CSmartEdit::Kind::integer);
  m_integer.SetRange(1, 6);
  m_integer.SetWindowText(L"8");
  m_integer.Validate();
  Name(m_integer, L"Number of lanes, 1 to 6");
}

void ControlPane::AddNumbers(Column& column) {
  AddTitle(column, L"Numbers");
  const auto divided = [](CRect place, CRect& arrows) {
    arrows = place;
    arrows.left = arrows.right - ScaleByDpi(kSpinWidth);
    place.right = arrows.left;
    return place;
  };
  CRect arrows;
  const CRect real = divided(AddRow(column, L"Slope, %"), arrows);
  m_float.Create(kEdit, real, column.parent, m_nextId++);
  m_float.SetParameters(-12.0, 12.0, L"%.2f");
  m_float.SetValue(2.5);
  Name(m_float, L"Slope in percent");
  m_floatSpin.Create(WS_CHILD | WS_VISIBLE, arrows, column.parent, m_nextId++);
  m_floatSpin.SetBuddy(&m_float);
  m_floatSpin.SetDelta(0.25);
  Name(m_floatSpin, L"Step the slope");
  const CRect whole = divided(AddRow(column, L"Copies"), arrows);
  m_int.Create(kEdit, whole, column.parent, m_nextId++);
  m_int.SetParameters(1, 99);
  m_int.SetValue(3);
  Name(m_int, L"Copies");
  m_intSpin.Create(WS_CHILD | WS_VISIBLE, arrows, column.parent, m_nextId++);
  m_intSpin.SetBuddy(&m_int);
  Name(m_intSpin, L"Step the copies");
  m_linked.Create(kEdit, AddRow(column, L"Exaggeration"), column.parent, m_nextId++);
  m_linked.SetParameters(1.0, 50.0, L"%.1f");
  m_linked.SetValue(10.0);
  Name(m_linked, L"Vertical exaggeration");
  m_slider.Create(kControl, AddRow(column, L""), column.parent, m_nextId++);
  m_slider.SetLink(&m_linked, 1.0, 50.0, 98);
  Name(m_slider, L"Vertical exaggeration, slider");
}

void ControlPane::AddChoices(Column& column) {
  AddTitle(column, L"Choices and links");
  m_font.Create(kControl, AddRow(column, L"Font"), column.parent, m_nextId++);
  if (!m_font.SelectFont(L"DejaVu Serif")) m_font.SetCurSel(0);
  Name(m_font, L"Font");
  m_width.Create(kControl, AddRow(column, L"Line width"), column.parent, m_nextId++);
  m_width.AddStandardWidths();
  m_width.SetWidth(1.0);
  Name(m_width, L"Line width");
  m_link.Create(L"The standard of line widths", kControl | BS_PUSHBUTTON, AddRow(column, L"Web link"),
                column.parent, kWebLink);
  m_link.SetLink(L"https://www.iso.org/standard/83355.html");
  Name(m_link, L"The standard of line widths, link");
  m_command.Create(L"Open the help", kControl | BS_PUSHBUTTON, AddRow(column, L"Command link"), column.parent,
                   kHelpCommand);
  Name(m_command, L"Open the help");
}

void ControlPane::FillTree() {
  const HTREEITEM road = m_tree.InsertItem(L"Ring road");
  m_tree.SetItemBold(road);
  const HTREEITEM left = m_tree.InsertItem(L"Kerb left", road);
  const HTREEITEM right = m_tree.InsertItem(L"Kerb right", road);
  m_tree.SetItemCheckBox(left);
  m_tree.SetItemCheckBox(right);
  m_tree.SetCheck(left);
  const HTREEITEM fault = m_tree.InsertItem(L"Bridge deck (out of date)", road);
  m_tree.SetItemColor(fault, IsDarkTheme() ? RGB(255, 140, 120) : RGB(176, 24, 16));
  const HTREEITEM marked = m_tree.InsertItem(L"Drainage", road);
  m_tree.SetItemBkColor(marked, IsDarkTheme() ? RGB(70, 66, 30) : RGB(255, 244, 190));
  m_tree.Expand(road, TVE_EXPAND);
  m_tree.InsertItem(L"Access road");
}

void ControlPane::AddTrees(Column& column, int bottom) {
  AddTitle(column, L"Trees");
  const int half = (bottom - column.top - ScaleByDpi(kRowGap)) / 2;
  const CRect upper(column.left, column.top, column.left + column.width, column.top + half);
  m_tree.Create(kControl | WS_BORDER, upper, column.parent, m_nextId++);
  FillTree();
  Name(m_tree, L"Entities of the drawing");
  const CRect lower(upper.left, upper.bottom + ScaleByDpi(kRowGap), upper.right, bottom);
  m_empty.SetEmptyText(L"No reference drawing is attached.");
  m_empty.Create(kControl | WS_BORDER, lower, column.parent, m_nextId++);
  Name(m_empty, L"Reference drawings");
}

int ControlPane::Create(CWnd& parent, int width) {
  const int margin = ScaleByDpi(kMargin);
  const int each = (width - 4 * margin) / 3;
  Column text{&parent, margin, each, margin};
  Column numbers{&parent, 2 * margin + each, each, margin};
  Column trees{&parent, 3 * margin + 2 * each, each, margin};
  AddEdits(text);
  AddNumbers(numbers);
  AddChoices(numbers);
  const int bottom = std::max(text.top, numbers.top) - ScaleByDpi(kRowGap);
  AddTrees(trees, bottom);
  return bottom;
}

}  // namespace gallery
