#pragma once

#include <memory>

#include "grid/control/CGridLayout.h"
#include "grid/control/CGridScreen.h"
#include "platform/Types.h"

class CFont;
class CGridCellType;
class CGridCtrl;
class CScrollBar;
class CWnd;

namespace coregui {

class CGridCellDelegate;

/// Creates and owns the child windows of a grid and its built-in cell types, and is the screen that the rooms
/// see. Its source is the one file of the grid's control that knows display, cell types and editors.
class COREGUI_API CGridParts final : public CGridScreen {
 public:
  /// The IDs below this number belong to the built-in cell types.
  static constexpr int builtInTypes = 4;

  explicit CGridParts(CGridCtrl& control);
  ~CGridParts() override;
  CGridParts(const CGridParts&) = delete;
  CGridParts& operator=(const CGridParts&) = delete;

  /// Registers the four built-in types under the IDs 0 to 3.
  void RegisterBuiltInTypes();
  /// Creates the child windows of the grid's window, hidden. False when one could not be made.
  bool CreateWindows();

  /// The two faces of a registered cell type.
  static CGridCellDelegate* ToDelegate(CGridCellType* type);
  static CGridCellType* ToType(CGridCellDelegate* type);

  CWnd* Body() const;
  CWnd* TopHeading() const;
  CWnd* SideHeading() const;
  CWnd* CornerButton() const;
  CScrollBar* ScrollBar(int bar) const;
  /// 1 draws the cells off the screen first, for all sheets; 0 when done, 1 when there is no memory for it.
  int SetDoubleBufferMode(int mode);
  /// The focus rectangle is left out of the next paint pass.
  void TempDisableFocusRect();
  /// A scroll bar (SB_VERT, SB_HORZ) reports a scroll code.
  void OnScroll(int bar, int code);

  void ShowMoved() override;
  void ShowRange(int startCol, long startRow, int endCol, long endRow) override;
  void ShowAll() override;
  void ShowScrollBars() override;
  void ShowSheets() override;
  void LayOut() override;
  CGridDrawHint* BodyHints() override;
  bool Measure(const std::function<void(CDC& dc)>& measure) override;
  void FocusBody() override;

 private:
  struct Windows;
  struct Types;
  void PlaceWindows();

  CGridCtrl& m_control;  ///< the owner
  std::unique_ptr<Types> m_types;
  std::unique_ptr<Windows> m_windows;  ///< null before creation; they outlive their native windows
  CGridLayout m_layout;
  bool m_layingOut = false;
  int m_doubleBuffer = 0;  ///< as asked for; a body that is created later takes it over
};

}  // namespace coregui
