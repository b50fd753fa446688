#include "grid/data/CellPool.h"

#if defined(__linux__)
#include <sys/mman.h>
#endif

#include <algorithm>
#include <memory>
#include <new>

namespace coregui {
namespace {

/// Asks for large pages where they fit whole. A wish: without them nothing changes but the time.
void PreferLargePages([[maybe_unused]] std::byte* begin, [[maybe_unused]] std::size_t size) {
#if defined(__linux__)
  constexpr std::size_t PAGE = 2UL * 1024 * 1024;
  void* inside = begin;
  if (std::align(PAGE, PAGE, inside, size) != nullptr) madvise(inside, size / PAGE * PAGE, MADV_HUGEPAGE);
#endif
}

}  // namespace

void CellPool::AddSlab() {
  const std::size_t size = m_slabs.size() < SMALL_SLABS ? SMALL_SLAB : LARGE_SLAB;
  m_slabs.push_back(std::make_unique_for_overwrite<std::byte[]>(size));
  m_next = m_slabs.back().get();
  m_left = size;
  if (size == LARGE_SLAB) PreferLargePages(m_next, size);
}

void* CellPool::Allocate(std::size_t size) {
  const std::size_t steps = std::max<std::size_t>((size + STEP - 1) / STEP, 1);
  ++m_inUse;
  if (steps * STEP > LARGEST) return ::operator new(size);
  if (Free* const block = m_free[steps]; block != nullptr) {
    m_free[steps] = block->next;
    return block;
  }
  if (steps * STEP > m_left) AddSlab();
  std::byte* const block = m_next;
  m_next += steps * STEP;
  m_left -= steps * STEP;
  return block;
}

void CellPool::Release(void* block, std::size_t size) {
  const std::size_t steps = std::max<std::size_t>((size + STEP - 1) / STEP, 1);
  --m_inUse;
  if (steps * STEP > LARGEST) {
    ::operator delete(block);
    return;
  }
  m_free[steps] = ::new (block) Free{m_free[steps]};
}

void CellPool::Clear() {
  m_free = {};
  m_slabs.clear();
  m_next = nullptr;
  m_left = 0;
  m_inUse = 0;
}

}  // namespace coregui
