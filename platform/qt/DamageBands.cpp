#include "platform/qt/DamageBands.h"

#include <algorithm>
#include <utility>

namespace coregui {
namespace {

constexpr LONG kBandHeight = 16;
/// A picture has no more rows.
constexpr LONG kLastBand = 32767 / kBandHeight;

LONG BandAt(LONG y) {
  return std::clamp<LONG>(y / kBandHeight, 0, kLastBand);
}

}  // namespace

void DamageBands::AddToBands(const CRect& dots) {
  const auto last = static_cast<std::size_t>(BandAt(dots.bottom - 1));
  if (last >= m_bands.size()) m_bands.resize(last + 1);
  for (auto band = static_cast<std::size_t>(BandAt(dots.top)); band <= last; ++band) {
    Span& span = m_bands[band];
    const bool empty = span.left >= span.right;
    span = {empty ? dots.left : std::min(span.left, dots.left),
            empty ? dots.right : std::max(span.right, dots.right)};
  }
}

std::vector<CRect> DamageBands::Take() {
  std::vector<CRect> pieces;
  const CRect bounds = std::exchange(m_bounds, CRect());
  LONG top = 0;
  for (Span& band : m_bands) {
    const Span span = std::exchange(band, Span());
    const CRect whole(span.left, top, span.right, top + kBandHeight);
    top += kBandHeight;
    CRect piece;
    if (!piece.IntersectRect(whole, bounds)) continue;
    CRect* above = pieces.empty() ? nullptr : &pieces.back();
    if (above != nullptr && above->bottom == piece.top && above->left == piece.left &&
        above->right == piece.right) {
      above->bottom = piece.bottom;
    } else {
      pieces.push_back(piece);
    }
  }
  return pieces;
}

}  // namespace coregui
