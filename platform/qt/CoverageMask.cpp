#include "platform/qt/CoverageMask.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

namespace coregui {

namespace {

constexpr std::uint32_t kAll = CoverageMask::kPlaces * CoverageMask::kPlaces;

/// `share` parts of kAll of one colour over another, channel by channel.
std::uint32_t Mixed(std::uint32_t colour, std::uint32_t under, std::uint32_t share) {
  constexpr std::uint32_t redAndBlue = 0x00FF00FFU;
  constexpr std::uint32_t green = 0x0000FF00U;
  const auto mix = [=](std::uint32_t channels, std::uint32_t half) {
    return ((colour & channels) * share + (under & channels) * (kAll - share) + half) / kAll & channels;
  };
  return 0xFF000000U | mix(redAndBlue, 0x00200020U) | mix(green, 0x00002000U);
}

constexpr int kPlaces = CoverageMask::kPlaces;
constexpr int kStepsOfDot = kPlaces * kPlaces;

/// The places of a dot that lie left of a step in it. A place's middle is at another step in each of the
/// rows, in no regular order: an edge that is upright, or slants by a place from row to row, gets all shades.
constexpr std::array<std::uint64_t, kStepsOfDot + 1> LeftOfSteps() {
  constexpr std::array<int, kPlaces> middles = {0, 4, 2, 6, 1, 5, 3, 7};
  std::array<std::uint64_t, kStepsOfDot + 1> left{};
  for (int step = 0; step <= kStepsOfDot; ++step) {
    for (int place = 0; place < kStepsOfDot; ++place) {
      const int middle = place % kPlaces * kPlaces + middles[static_cast<std::size_t>(place / kPlaces)];
      left[static_cast<std::size_t>(step)] |= middle < step ? std::uint64_t{1} << place : 0;
    }
  }
  return left;
}

constexpr auto kLeftOf = LeftOfSteps();

}  // namespace

CoverageMask::CoverageMask(CRect const& dots)
    : m_dots(dots),
      m_places(dots.left * kPlaces, dots.top * kPlaces, dots.right * kPlaces, dots.bottom * kPlaces),
      m_cells(static_cast<std::size_t>(dots.Width()) * static_cast<std::size_t>(dots.Height())) {}

int CoverageMask::StepOf(double position) const {
  constexpr double kHalf = 0.5;
  const double inside = std::clamp(position - m_places.left, 0.0, static_cast<double>(m_places.Width()));
  return static_cast<int>(inside * kPlaces + kHalf);
}

void CoverageMask::Cover(int row, double from, double to, std::uint64_t rows) {
  const int first = StepOf(from);
  const int last = StepOf(to);
  if (first >= last) {
    return;
  }
  const auto line = static_cast<std::size_t>((row - m_places.top) / kPlaces);
  std::uint64_t* cells = m_cells.data() + line * static_cast<std::size_t>(m_dots.Width());
  const int firstDot = first / kStepsOfDot;
  const int lastDot = (last - 1) / kStepsOfDot;
  const std::uint64_t head = ~kLeftOf[static_cast<std::size_t>(first - firstDot * kStepsOfDot)];
  const std::uint64_t tail = kLeftOf[static_cast<std::size_t>(last - lastDot * kStepsOfDot)];
  if (firstDot == lastDot) {
    cells[firstDot] |= head & tail & rows;
    return;
  }
  cells[firstDot] |= head & rows;
  for (int dot = firstDot + 1; dot < lastDot; ++dot) {
    cells[dot] |= rows;
  }
  cells[lastDot] |= tail & rows;
}

void CoverageMask::CoverRun(int row, double from, double to) {
  Cover(row, from, to, std::uint64_t{0xFF} << ((row - m_places.top) % kPlaces * kPlaces));
}

void CoverageMask::CoverRuns(int row, double from, double to) {
  Cover(row, from, to, ~std::uint64_t{0});
}

void CoverageMask::Blend(Surface& surface, std::uint32_t colour) const {
  const std::uint64_t* cell = m_cells.data();
  for (int y = m_dots.top; y < m_dots.bottom; ++y) {
    std::uint32_t* row = surface.Row(y);
    for (int x = m_dots.left; x < m_dots.right; ++x, ++cell) {
      if (*cell == ~std::uint64_t{0}) {
        row[x] = colour;
      } else if (*cell != 0) {
        row[x] = Mixed(colour, row[x], static_cast<std::uint32_t>(std::popcount(*cell)));
      }
    }
  }
}

}  // namespace coregui
