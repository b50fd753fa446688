#pragma once

#include <array>
#include <cmath>

#include "coregui/coregui.h"

namespace desk {

/// A sheet of paper lying on its long side.
struct Paper {
  const wchar_t* name;
  double width;  ///< millimetres
  double height;
};

inline constexpr std::array<Paper, 5> kPapers = {{{L"A4", 297.0, 210.0},
                                                  {L"A3", 420.0, 297.0},
                                                  {L"A2", 594.0, 420.0},
                                                  {L"A1", 841.0, 594.0},
                                                  {L"A0", 1189.0, 841.0}}};
inline constexpr int kPaperCount = static_cast<int>(kPapers.size());
inline constexpr double kLeastScale = 1.0;
inline constexpr double kLargestScale = 1'000'000.0;
inline constexpr double kMostOverlap = 100.0;

/// How the section is put on paper.
struct PrintChoice {
  bool toScale = false;       ///< false: all of it on one page
  double horizontal = 500.0;  ///< 1 : horizontal
  double vertical = 50.0;
  double overlap = 10.0;  ///< millimetres that two neighbouring sheets both show
  int paper = 1;          ///< index into kPapers

  PrintPage Page() const {
    PrintPage page;
    page.width = kPapers[static_cast<std::size_t>(paper)].width;
    page.height = kPapers[static_cast<std::size_t>(paper)].height;
    return page;
  }
  PlotPageScale Scale() const {
    PlotPageScale scale;
    scale.horizontal = horizontal;
    scale.vertical = vertical;
    scale.overlap = overlap;
    return scale;
  }
};

}  // namespace desk
