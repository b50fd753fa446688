#pragma once

#include "platform/CDC.h"

/// How long a width or height of the drawing is meant to be.
enum class PlotUnit {
  pixels,  ///< of the screen; on paper 1/96 inch
  points,  ///< 1/72 inch: the same on screen and paper
  world,   ///< world units along y; grows with the zoom
};

/// Draws the lines of a plot.
struct PlotPen {
  COLORREF colour = 0;
  double width = 1.0;  ///< pixels or points; one dot at least is drawn
  PlotUnit unit = PlotUnit::pixels;
  int style = PS_SOLID;
};

/// Fills the areas of a plot.
struct PlotFill {
  enum class Kind { none, solid, hatched };
  Kind kind = Kind::none;
  COLORREF colour = 0;
  int hatch = HS_FDIAGONAL;
};

/// Writes the texts of a plot.
struct PlotTextStyle {
  COLORREF colour = 0;
  double height = 8.0;
  PlotUnit unit = PlotUnit::points;
  double rotation = 0.0;               ///< degrees, anticlockwise, about the anchor
  UINT align = TA_LEFT | TA_BASELINE;  ///< which place of the text stands on the anchor
  bool bold = false;
  CString face;  ///< empty: the system's
};

enum class PlotMarker { dot, plus, cross, circle, square, diamond, triangle };
