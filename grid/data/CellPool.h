#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace coregui {

/// Memory for many small blocks without a header each: blocks of one size come from slabs and go back to a
/// list of that size. The slabs are released together.
class CellPool {
 public:
  /// At least `size` bytes, aligned to 8.
  void* Allocate(std::size_t size);
  /// `size` is the one it was allocated with.
  void Release(void* block, std::size_t size);
  /// Releases all slabs; no block of 128 bytes or less may be in use any more.
  void Clear();
  /// Blocks in use, of any size.
  std::size_t InUse() const { return m_inUse; }

 private:
  static constexpr std::size_t STEP = 8;
  static constexpr std::size_t LARGEST = 128;
  static constexpr std::size_t SLAB = 32 * std::size_t{1024};
  struct Free {
    Free* next;
  };

  std::array<Free*, LARGEST / STEP + 1> m_free{};  // by size in steps; borrowed from the slabs
  std::vector<std::unique_ptr<std::byte[]>> m_slabs;
  std::size_t m_used = SLAB;  // bytes of the last slab
  std::size_t m_inUse = 0;
};

}  // namespace coregui
