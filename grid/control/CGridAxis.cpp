#include "grid/control/CGridAxis.h"

#include <algorithm>

namespace coregui {

void CGridAxis::SetCount(long count) {
  if (!m_uniform) {
    m_table.Resize(count, m_defaultSize);
  }
  m_count = count;
}

void CGridAxis::SetUniform(bool uniform) {
  if (uniform == m_uniform) {
    return;
  }
  m_uniform = uniform;
  m_table.Clear();
  if (!uniform) {
    m_table.Resize(m_count, m_defaultSize);
  }
}

void CGridAxis::SetDefaultSize(int size) {
  m_defaultSize = size;
}

int CGridAxis::SizeOf(long index) const {
  if (index < 0 || index >= m_count) {
    return 0;
  }
  return m_uniform ? m_defaultSize : m_table.At(index);
}

int CGridAxis::CostOf(long index) const {
  return index < 0 || index >= m_count ? m_defaultSize : SizeOf(index);
}

void CGridAxis::SetSize(long index, int size) {
  if (m_uniform) {
    m_defaultSize = size;
  } else {
    m_table.Set(index, size);
  }
}

void CGridAxis::Insert(long index) {
  if (!m_uniform) {
    m_table.Insert(index, m_defaultSize);
  }
  ++m_count;
}

void CGridAxis::Erase(long index) {
  if (!m_uniform) {
    m_table.Erase(index);
  }
  --m_count;
}

void CGridAxis::Move(long from, long to) {
  if (!m_uniform) {
    m_table.Move(from, to);
  }
}

std::int64_t CGridAxis::OffsetOf(long index) const {
  const long clipped = std::clamp(index, 0L, m_count);
  return m_uniform ? static_cast<std::int64_t>(clipped) * m_defaultSize : m_table.SumBefore(clipped);
}

long CGridAxis::IndexAtOffset(std::int64_t pixel) const {
  if (pixel < 0) {
    return 0;
  }
  if (!m_uniform) {
    return m_table.IndexAt(pixel);
  }
  return m_defaultSize <= 0 ? m_count
                            : static_cast<long>(std::min<std::int64_t>(pixel / m_defaultSize, m_count));
}

long CGridAxis::NearestShown(long index, int step) const {
  if (index < 0 || index >= m_count) {
    return -1;
  }
  if (SizeOf(index) > 0) {
    return index;
  }
  // No entry before one at pixel 0 is shown; a search by pixel passes over hidden entries.
  const std::int64_t pixel = step < 0 ? OffsetOf(index) - 1 : OffsetOf(index);
  if (pixel < 0) {
    return -1;
  }
  const long found = IndexAtOffset(pixel);
  return found < m_count ? found : -1;
}

void CGridAxis::KeepDragInView() {
  if (drag < m_locked) {
    return;
  }
  // What shows an entry is never behind what shows the last one: the view stays filled.
  m_first = drag < m_first ? drag : std::max(m_first, FirstThatShows(drag));
}

bool CGridAxis::Check() const {
  return m_table.Count() == (m_uniform ? 0 : m_count) && m_table.Check() && m_first >= m_locked &&
         m_first <= MaxFirst() && (m_locked <= m_count || m_count == 0) && current >= -1 &&
         current < m_count && drag >= -1 && drag < m_count;
}

long CGridAxis::MaxFirst() const {
  return std::max(FirstThatShows(m_count - 1), m_locked);
}

long CGridAxis::ClampFirst(long first) const {
  return std::max(std::min(first, MaxFirst()), m_locked);
}

std::int64_t CGridAxis::PositionOf(long index) const {
  const std::int64_t offset = OffsetOf(index);
  return index < m_locked ? offset : LockedSize() + offset - OffsetOf(m_first);
}

long CGridAxis::IndexAtPosition(std::int64_t position) const {
  if (position < 0) {
    return -1;
  }
  const std::int64_t locked = LockedSize();
  const long index = IndexAtOffset(position < locked ? position : position - locked + OffsetOf(m_first));
  return index < m_count ? index : -1;
}

long CGridAxis::LockedInView() const {
  return m_extent <= 0 ? 0 : std::min(IndexAtOffset(m_extent - 1) + 1, m_locked);
}

long CGridAxis::LastInView() const {
  if (Room() <= 0) {
    return m_first;
  }
  return std::min(IndexAtOffset(Room() - 1 + OffsetOf(m_first)), m_count - 1);
}

long CGridAxis::FirstThatShows(long index) const {
  // Everything from the result to the end of `index` fits into the room: the smallest such start is the one
  // that covers the pixel at which a full view ends, or the one behind it when that pixel is not its first.
  const std::int64_t start = OffsetOf(index + 1) - Room();
  if (start <= 0) {
    return 0;
  }
  const long covering = IndexAtOffset(start - 1) + 1;
  return std::min(covering, std::max(index, 0L));
}

long CGridAxis::PageTarget(long index, int step) const {
  const std::int64_t room = Room();
  if (room < 0) {
    return index;
  }
  // Leaving an entry costs its size; the walk goes on while the next one fits into what is then left.
  const std::int64_t start = OffsetOf(index);
  if (step < 0) {
    const std::int64_t limit = start + CostOf(index) - room;
    return std::min(limit <= 0 ? 0 : IndexAtOffset(limit - 1) + 1, index);
  }
  const std::int64_t behind = start + room - TotalSize();
  if (behind >= 0) {
    return m_count + static_cast<long>(behind / std::max(m_defaultSize, 1));
  }
  return std::max(IndexAtOffset(start + room) - 1, index);
}

}  // namespace coregui
