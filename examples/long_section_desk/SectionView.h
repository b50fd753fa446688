#pragma once

#include <functional>

#include "PrintChoice.h"
#include "SectionData.h"
#include "SectionLook.h"
#include "coregui/coregui.h"

namespace desk {

/// What a key asks for in the section: another station.
enum class StationStep { back, forward, first, last };

/// The long-section: ground and design levels over the chainage, rulers, and a table of stations below.
///
/// Keys: Left, Right, Home and End go from station to station (who shows the survey does that, see
/// SetStepHook), with Ctrl the arrows move the view; + and - zoom about the marked station. The wheel zooms
/// under the pointer, with Shift it moves the view along.
class SectionView : public CGUIBaseViewWnd {
 public:
  explicit SectionView(CWnd* parent);
  /// Shows all of the data (borrowed; they may change in place, for Show to be called again).
  void Show(const SectionData& data);
  /// Fits again after the window's size has changed; a view that is zoomed keeps its middle and its scale.
  void FitAgain();
  /// A line through the section at a chainage; NaN takes it away.
  void Mark(double chainage);
  /// How much longer a metre is drawn upwards than along: a round number of times.
  void SetExaggeration(double times);
  /// Goes to the view before or after, with its exaggeration; false when there is none.
  bool Look(bool back);
  double GetExaggeration() const { return m_exaggeration; }
  /// Digits behind the separator in the table below the section.
  void SetDecimals(int chainage, int level) {
    m_chainageDecimals = chainage;
    m_levelDecimals = level;
  }
  void SetTitle(const CString& title) { m_title = title; }
  bool HasData() const { return m_data != nullptr && !m_data->IsEmpty(); }
  /// Called for the keys that go to another station.
  void SetStepHook(std::function<void(StationStep)> hook) { m_stepHook = std::move(hook); }
  /// Called when the view gets or loses the focus.
  void SetFocusHook(std::function<void()> hook) { m_focusHook = std::move(hook); }
  /// Moves the view, when the marked station is out of sight, so that it is seen.
  void ShowMark();
  /// The place of the ground line at a client x, where it is in sight; else the middle of the drawing.
  CPoint OnLine(LONG x) const;
  /// The sheets that a way of printing takes; 0 when it cannot be printed so.
  int CountSheets(const PrintChoice& choice) const;
  /// Prints the section, with title blocks, into a document that the caller has started. False when it takes
  /// no sheets or the device failed.
  bool PrintSheets(CPrinterDC& dc, const PrintChoice& choice);

  void OnDraw(CDC* dc) override;
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  BOOL OnMouseWheel(UINT flags, short delta, CPoint screen) override;

 private:
  int TableRows(bool forWindow) const;
  CRect Margins(bool forWindow) const;
  CRect PrintMargins() const;
  std::vector<coregui::CViewMapping> Plan(const PrintChoice& choice, CSize page, CSize dotsPerInch) const;
  bool HasDesign() const { return m_data != nullptr && m_data->HasDesign(); }
  CRect Drawing() const;
  double GroundAt(double chainage) const;
  bool HandleKey(UINT key);
  void MoveView(int dx, int dy);
  void Zoom(double factor);
  void DrawLegend(const SectionColors& colors);
  void DrawTitleBlock(const SectionColors& colors);
  void DrawTable(const SectionColors& colors);
  void DrawLevels(const SectionColors& colors);
  void DrawMark(const SectionColors& colors);

  const SectionData* m_data = nullptr;  ///< borrowed from who shows them; null before
  FRect m_extents;
  CSize m_size;  ///< of the client area at the last fit; empty: nothing was shown yet
  CString m_title;
  CString m_printScale;  ///< of what is printed at the moment; empty: as large as the page allows
  std::function<void(StationStep)> m_stepHook;
  std::function<void()> m_focusHook;
  double m_exaggeration = 10.0;
  int m_chainageDecimals = 3;
  int m_levelDecimals = 3;
  double m_mark;
};

}  // namespace desk
