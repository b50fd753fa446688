#include "grid/data/CellPool.h"

#include <algorithm>
#include <new>

namespace coregui {

void* CellPool::Allocate(std::size_t size) {
  const std::size_t steps = std::max<std::size_t>((size + STEP - 1) / STEP, 1);
  if (steps * STEP > LARGEST) {
    void* const block = ::operator new(size);
    ++m_inUse;
    return block;
  }
  if (Free* const block = m_free[steps]; block != nullptr) {
    m_free[steps] = block->next;
    ++m_inUse;
    return block;
  }
  if (m_used + steps * STEP > SLAB) {
    m_slabs.push_back(std::make_unique_for_overwrite<std::byte[]>(SLAB));
    m_used = 0;
  }
  std::byte* const block = m_slabs.back().get() + m_used;
  m_used += steps * STEP;
  ++m_inUse;
  return block;
}

void CellPool::Release(void* block, std::size_t size) {
  --m_inUse;
  const std::size_t steps = std::max<std::size_t>((size + STEP - 1) / STEP, 1);
  if (steps * STEP > LARGEST) {
    ::operator delete(block);
    return;
  }
  m_free[steps] = ::new (block) Free{m_free[steps]};
}

void CellPool::Clear() {
  m_free = {};
  m_slabs.clear();
  m_used = SLAB;
}

}  // namespace coregui
