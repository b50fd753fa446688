#pragma once

#include "SectionData.h"
#include "SectionLook.h"
#include "SectionView.h"
#include "coregui/coregui.h"

namespace desk {

/// Below the section, as its slave: the difference between ground and design, cut above the line, fill below.
/// What the wheel, the touchpad, the middle button and the keys ask of it, the section does, so that both
/// move as one.
class DifferenceView : public CGUIBaseViewWnd {
 public:
  /// `master` is borrowed and must outlive this view.
  DifferenceView(CWnd* parent, SectionView& master);
  /// Shows the data (borrowed; they may change in place, for Show to be called again).
  void Show(const SectionData& data);
  /// Fits the vertical mapping again; the horizontal one is the master's.
  void FitAgain();
  void Mark(double chainage);

  void OnDraw(CDC* dc) override;
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool HasData() const { return m_data != nullptr && m_data->HasDesign(); }
  void KeepHeight();
  void DrawFills(const SectionColors& colors);
  LPARAM ToMasterScreen(LPARAM screen) const;
  LPARAM ToMasterClient(LPARAM client) const;

  SectionView& m_master;
  const SectionData* m_data = nullptr;  ///< borrowed from who shows them; null before
  FRect m_extents;
  double m_mark;
  double m_ratioFor = 0.0;  ///< the scale that the vertical ratio was set for
};

}  // namespace desk
