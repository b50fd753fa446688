#pragma once

#include <memory>

#include "SectionData.h"
#include "coregui/coregui.h"

namespace desk {

/// The look that both plots of the desk share; it follows the theme, and paper is always light.
struct SectionColors {
  COLORREF paper;
  COLORREF text;
  COLORREF grid;
  COLORREF ground;
  COLORREF design;
  COLORREF cut;
  COLORREF fill;
  COLORREF mark;

  static SectionColors Of(bool printing);
};

/// The long-section: ground and design levels over the chainage, rulers, and a table of stations below.
class SectionView : public CGUIBaseViewWnd {
 public:
  explicit SectionView(CWnd* parent);
  /// Takes the data over and shows all of it.
  void Show(const SectionData& data);
  /// Fits again after the window's size has changed.
  void FitAgain();
  /// A line through the section at a chainage; NaN takes it away.
  void Mark(double chainage);
  /// How much longer a metre is drawn upwards than along: a round number of times.
  void SetExaggeration(double times);
  double GetExaggeration() const { return m_exaggeration; }
  /// Digits behind the separator in the table below the section.
  void SetDecimals(int chainage, int level) {
    m_chainageDecimals = chainage;
    m_levelDecimals = level;
  }
  void SetTitle(const CString& title) { m_title = title; }
  bool HasData() const { return m_hasData; }
  /// Prints the whole section on the page that the context has begun, with a title block.
  void PrintPage(CPrinterDC& dc);

  void OnDraw(CDC* dc) override;

 private:
  CRect Margins() const;
  void DrawTable(const SectionColors& colors);
  void DrawLevels(const SectionColors& colors);
  void DrawMark(const SectionColors& colors);

  CPlotSeries m_ground;
  CPlotSeries m_design;
  FRect m_extents;
  CString m_title;
  double m_exaggeration = 10.0;
  int m_chainageDecimals = 3;
  int m_levelDecimals = 3;
  double m_mark;
  bool m_hasData = false;
};

/// Below the section, as its slave: the difference between ground and design, cut above the line, fill below.
class DifferenceView : public CGUIBaseViewWnd {
 public:
  explicit DifferenceView(CWnd* parent);
  void Show(const SectionData& data);
  /// Fits the vertical mapping again; the horizontal one is `master`'s.
  void FitAgain(const CGUIBaseView& master);
  void Mark(double chainage);

  void OnDraw(CDC* dc) override;
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void KeepHeight();

  CPlotSeries m_difference;
  FRect m_extents;
  double m_mark;
  double m_ratioFor = 0.0;  ///< the scale that the vertical ratio was set for
  bool m_hasData = false;
};

}  // namespace desk
