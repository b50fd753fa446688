#include "platform/qt/SlidingRows.h"

#include <cstdlib>
#include <cstring>
#include <new>

#include "platform/qt/PictureMemory.h"

namespace coregui {
namespace {

/// Of smaller pictures the dots are as quickly copied.
constexpr std::ptrdiff_t kLeastDots = 1 << 15;

}  // namespace

SlidingRows::SlidingRows(CSize room) : m_room(room) {
  const std::ptrdiff_t dots = std::ptrdiff_t{room.cx} * room.cy;
  if (dots >= kLeastDots) m_slack = room.cy / 2;
  const std::ptrdiff_t all = dots + m_slack * room.cx;
  // Not initialised: memory that is not touched is not used.
  const std::size_t bytes = static_cast<std::size_t>(all) * sizeof(std::uint32_t);
  const std::align_val_t alignment{bytes < kLargePage ? alignof(std::max_align_t) : kLargePage};
  m_memory = std::unique_ptr<std::uint32_t[], FreeRows>(
      static_cast<std::uint32_t*>(::operator new(bytes, alignment, std::nothrow)), FreeRows{alignment});
}

bool SlidingRows::CanSlide(int rows) const {
  return std::abs(std::int64_t{rows}) <= m_slack / 2;
}

void SlidingRows::Slide(int rows) {
  if (m_base + rows < 0 || m_base + rows > m_slack) {
    const std::uint32_t* old = First();
    m_base = rows > 0 ? 0 : m_slack;
    const auto dots = static_cast<std::size_t>(m_room.cx) * static_cast<std::size_t>(m_room.cy);
    std::memmove(First(), old, dots * sizeof(std::uint32_t));
  }
  m_base += rows;
}

}  // namespace coregui
