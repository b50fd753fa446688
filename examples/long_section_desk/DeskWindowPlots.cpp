#include <algorithm>
#include <cmath>

#include "DeskWindow.h"

// The section, and how it and the table follow each other.

namespace desk {

void DeskWindow::ShowSection(SectionData data) {
  m_layout.hasPlots = !data.IsEmpty();
  m_layout.hasDifference = data.HasDesign();
  for (CWnd* pane : std::initializer_list<CWnd*>{&m_bar, &m_section}) {
    pane->ShowWindow(m_layout.hasPlots ? SW_SHOW : SW_HIDE);
  }
  for (CWnd* pane : std::initializer_list<CWnd*>{&m_plotBar, &m_difference}) {
    pane->ShowWindow(m_layout.hasPlots && m_layout.hasDifference ? SW_SHOW : SW_HIDE);
  }
  ArrangePanes();
  m_data = std::move(data);  // once the panes have their places
  m_section.SetTitle(coreExtractFileName(m_path.c_str()));
  if (m_layout.hasPlots) {
    m_section.SetDecimals(m_grid.Dialect().decimals[static_cast<std::size_t>(m_data.columns.chainage)],
                          m_grid.Dialect().decimals[static_cast<std::size_t>(m_data.columns.ground)]);
  }
  m_difference.Show(m_data);
  m_section.Show(m_data);
  m_difference.FitAgain();
  m_commands.ShowExaggeration(m_section.GetExaggeration());
  EnableCommands();
  FollowRow(m_grid.GetCurrentRow());
}

void DeskWindow::Look(bool back) {
  m_section.Look(back);
  m_commands.ShowExaggeration(m_section.GetExaggeration());
}

void DeskWindow::OnSectionEvent(PNT_2D_record const& position, EVENT_TYPE event, char /*keyFlags*/,
                                char /*key*/, CWnd* parent) {
  auto* self = dynamic_cast<DeskWindow*>(parent);
  if (self != nullptr && (event == EVENT_MOVE || event == EVENT_LBUTTON_DOWN)) {
    self->FollowPointer(position.x, &position.y);
  }
}

void DeskWindow::OnDifferenceEvent(PNT_2D_record const& position, EVENT_TYPE event, char /*keyFlags*/,
                                   char /*key*/, CWnd* parent) {
  auto* self = dynamic_cast<DeskWindow*>(parent);
  if (self != nullptr && (event == EVENT_MOVE || event == EVENT_LBUTTON_DOWN)) {
    self->FollowPointer(position.x, nullptr);
  }
}

/// The row nearest to the pointer becomes the table's current one, and the status line reads it out.
void DeskWindow::FollowPointer(double chainage, const double* level) {
  const long point = m_data.NearestPoint(chainage);
  if (point < 0 || m_following) {
    return;
  }
  GoToPoint(point);
  ShowStation(point, level);
}

void DeskWindow::FollowRow(long row) {
  const long point = m_following ? -1 : m_data.PointOfRow(row);
  if (point >= 0) {
    MarkChainage(m_data.ground.GetPoints()[static_cast<std::size_t>(point)].x);
    m_section.ShowMark();
    ShowStation(point, nullptr);
  }
}

void DeskWindow::Step(StationStep step) {
  const long last = static_cast<long>(m_data.rows.size()) - 1;
  const long now = m_data.PointOfRow(m_grid.GetCurrentRow());
  long point = step == StationStep::first ? 0 : last;
  if (step == StationStep::back || step == StationStep::forward) {
    point = std::clamp(now + (step == StationStep::back ? -1L : 1L), 0L, last);
  }
  GoToPoint(point);
  m_section.ShowMark();
  ShowStation(point, nullptr);
}

void DeskWindow::GoToChainage(double chainage) {
  if (const long point = m_data.NearestPoint(chainage); point >= 0) {
    GoToPoint(point);
    m_section.ShowMark();
    ShowStation(point, nullptr);
  }
}

void DeskWindow::GoToPoint(long point) {
  m_following = true;
  m_grid.GotoRow(m_data.rows[static_cast<std::size_t>(point)]);
  m_following = false;
  MarkChainage(m_data.ground.GetPoints()[static_cast<std::size_t>(point)].x);
}

void DeskWindow::MarkChainage(double chainage) {
  m_section.Mark(chainage);
  m_difference.Mark(chainage);
}

void DeskWindow::ShowStation(long point, const double* pointerLevel) {
  const auto index = static_cast<std::size_t>(point);
  CString text = CString(L"Station ") + coregui::FormatPlotNumber(m_data.ground.GetPoints()[index].x, 0.001,
                                                                  PlotNumberFormat::chainage, 3);
  const auto append = [&text](const wchar_t* name, double value) {
    if (std::isfinite(value)) {
      text += CString::Formatted(L"   %s ", name) +
              coregui::FormatPlotNumber(value, 0.001, PlotNumberFormat::decimal, 3);
    }
  };
  append(L"ground", m_data.ground.GetPoints()[index].y);
  if (m_data.HasDesign()) {
    append(L"design", m_data.design.GetPoints()[index].y);
    const double difference = m_data.difference.GetPoints()[index].y;
    append(difference < 0.0 ? L"fill" : L"cut", std::abs(difference));
  }
  if (pointerLevel != nullptr) {
    append(L"pointer at level", *pointerLevel);
  }
  m_status.Show(text.Str());
}

}  // namespace desk
