#include "grid/data/CellPool.h"

#if defined(__linux__)
#include <sys/mman.h>
#endif

#include <algorithm>
#include <memory>
#include <new>

namespace coregui {
namespace {

/// What a large slab is made of where the system has such pages.
constexpr std::align_val_t LARGE_PAGE{2UL * 1024 * 1024};

/// A wish: without large pages nothing changes but the time.
void PreferLargePages([[maybe_unused]] void* begin, [[maybe_unused]] std::size_t size) {
#if defined(__linux__)
  madvise(begin, size, MADV_HUGEPAGE);
#endif
}

}  // namespace

void CellPool::LargeSlabDelete::operator()(std::byte* slab) const {
  ::operator delete[](slab, LARGE_PAGE);
}

void CellPool::AddSlab() {
  if (m_smallSlabs.size() < SMALL_SLABS) {
    m_smallSlabs.push_back(std::make_unique_for_overwrite<std::byte[]>(SMALL_SLAB));
    m_next = m_smallSlabs.back().get();
    m_left = SMALL_SLAB;
    return;
  }
  m_largeSlabs.emplace_back(::new (LARGE_PAGE) std::byte[LARGE_SLAB]);
  m_next = m_largeSlabs.back().get();
  m_left = LARGE_SLAB;
  PreferLargePages(m_next, LARGE_SLAB);
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
  m_smallSlabs.clear();
  m_largeSlabs.clear();
  m_next = nullptr;
  m_left = 0;
  m_inUse = 0;
}

}  // namespace coregui
