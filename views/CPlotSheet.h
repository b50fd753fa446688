#pragma once

#include "views/CPlotPrimitives.h"
#include "views/RulerScale.h"

/// Where a ruler stands: in the margin of that side, along the drawing's edge.
enum class PlotSide { left, top, right, bottom };

/// How a ruler looks. Lengths are in points.
struct PlotRulerStyle {
  PlotNumberFormat format = PlotNumberFormat::decimal;
  int decimals = -1;       ///< below 0: what the step needs
  double tick = 5.0;       ///< length of the ticks that have a number; the others are half as long
  double labelGap = 36.0;  ///< least distance between numbers
  CString title;           ///< beside the numbers; may be empty
};

/// One text of a table row, under the world x that it belongs to.
struct PlotTableEntry {
  double x = 0.0;
  CString text;
};

/// A row of the table under a section. Heights are in points.
struct PlotTableRow {
  CString title;  ///< in the left margin
  double height = 46.0;
  bool upright = true;  ///< the texts stand on end, as levels do; otherwise they lie
  std::vector<PlotTableEntry> entries;
};

namespace coregui {

/// What stands around a drawing: rulers, the rows of a table, a title block.
class COREGUI_API CPlotSheet : public CPlotPrimitives {
 public:
  /// On: what follows is drawn only between the margins, so that a zoomed drawing leaves the rulers' place
  /// free.
  void ClipToDrawing(bool on);
  /// Draws a ruler with round steps for the part of the world that is visible now. This and what follows is
  /// drawn with the pen and the text style in force.
  virtual void PlotRuler(PlotSide side, PlotRulerStyle const& style = {});
  /// Draws rows below one another in the bottom margin, from `skipPoints` below the drawing on. Texts that
  /// would touch their neighbour on the left, and those of stations out of sight, are left out.
  void PlotTable(const std::vector<PlotTableRow>& rows, double skipPoints = 0.0);
  /// A framed block of lines in the lower right corner of the area, the first line bold; widths in points.
  void PlotTitleBlock(const std::vector<CString>& lines, double widthPoints = 180.0);
  /// A thin frame around the drawing's area.
  void PlotFrame();
  /// What is drawn in a part of the area (pixels) belongs to the window, not to the world: a pan, which moves
  /// pixels, must leave it where it is. The operations above say so by themselves.
  virtual void KeepInPlace(CRect const& /*part*/) {}

 private:
  void KeepMargins();
  void DrawRulerLine(PlotSide side, double world, double lengthPoints);
  void DrawTableRow(const PlotTableRow& row, CRect const& place);
};

/// Rows of the usual tables: the stations themselves, levels over them, differences between two levels where
/// both are known. Values that are not finite give no text.
COREGUI_API PlotTableRow MakeStationRow(const CString& title, const std::vector<PNT_2D_record>& points,
                                        int decimals);
COREGUI_API PlotTableRow MakeLevelRow(const CString& title, const std::vector<PNT_2D_record>& points,
                                      int decimals);
COREGUI_API PlotTableRow MakeDifferenceRow(const CString& title, const std::vector<PNT_2D_record>& upper,
                                           const std::vector<PNT_2D_record>& lower, int decimals);

}  // namespace coregui
