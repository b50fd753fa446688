#pragma once

#include "coregui/coregui.h"

namespace desk {

/// The places of the desk's panes for a client size. What the user dragged is kept as shares of the room, so
/// that sizing the window keeps the proportions.
struct DeskLayout {
  static constexpr double kLeastShare = 0.1;

  double gridShare = 0.47;     ///< of the width
  double sectionShare = 0.74;  ///< of the height of the plots
  bool hasPlots = true;        ///< without plots the grid takes all
  bool hasDifference = true;   ///< without it the section takes the height

  CRect commands;
  CRect grid;
  CRect bar;
  CRect section;
  CRect plotBar;
  CRect difference;
  CRect status;

  /// Fills the rectangles; none is ever wider or taller than the client, and none has a negative size.
  void Arrange(CSize client, int commandsHeight, int statusHeight, int barThickness);
  /// Moves a bar by pixels, within bounds that leave every pane something.
  void MoveBar(int pixels);
  void MovePlotBar(int pixels);
};

}  // namespace desk
