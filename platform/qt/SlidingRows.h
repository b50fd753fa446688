#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

#include "platform/Geometry.h"

namespace coregui {

struct FreeRows {
  std::align_val_t alignment{alignof(std::uint32_t)};
  void operator()(std::uint32_t* memory) const { ::operator delete(memory, alignment); }
};

/// Memory for rows of dots of which so many, one below the other, are the picture. The picture can slide
/// along the memory: a scroll of a large picture then moves no dots but the few that are to stay in place.
/// The memory is touched only where it is written.
class SlidingRows {
 public:
  /// No rows at all when there is no memory for so many.
  explicit SlidingRows(CSize room);

  bool IsEmpty() const { return m_memory == nullptr; }
  std::uint32_t* First() const { return m_memory.get() + m_base * Stride(); }
  std::ptrdiff_t Stride() const { return m_room.cx; }
  CSize Room() const { return m_room; }
  /// Distances at which sliding costs more than copying, or is not possible, are refused.
  bool CanSlide(int rows) const;
  /// What was row y is row y - rows then; this holds for all old rows, even those outside the picture.
  void Slide(int rows);

 private:
  CSize m_room;
  std::ptrdiff_t m_slack = 0;  ///< rows of memory beyond the picture's
  std::ptrdiff_t m_base = 0;   ///< the picture's first row
  std::unique_ptr<std::uint32_t[], FreeRows> m_memory;
};

}  // namespace coregui
