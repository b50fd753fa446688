#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace coregui {

/// Memory for many small blocks without a header each: blocks of one size come from slabs and go back to a
/// list of that size. The slabs are released together. A pool that has grown takes large slabs, in large
/// pages where the system has them: a read anywhere in a large table then costs one access to memory, not one
/// more to find the page.
class CellPool {
 public:
  static constexpr std::size_t LARGEST = 512;
  /// At least `size` bytes, aligned to 8.
  void* Allocate(std::size_t size);
  /// `size` is the one it was allocated with.
  void Release(void* block, std::size_t size);
  /// Releases all slabs and with them every block of at most LARGEST bytes; larger ones are not in use any
  /// more.
  void Clear();
  /// Blocks in use, of any size.
  std::size_t InUse() const { return m_inUse; }

 private:
  void AddSlab();

  static constexpr std::size_t STEP = 8;
  static constexpr std::size_t SMALL_SLAB = 32 * std::size_t{1024};
  static constexpr std::size_t SMALL_SLABS = 32;
  static constexpr std::size_t LARGE_SLAB = 8 * std::size_t{1024} * 1024;
  struct Free {
    Free* next;
  };
  struct LargeSlabDelete {
    void operator()(std::byte* slab) const;
  };

  std::array<Free*, LARGEST / STEP + 1> m_free{};  // by size in steps; borrowed from the slabs
  std::vector<std::unique_ptr<std::byte[]>> m_smallSlabs;
  std::vector<std::unique_ptr<std::byte[], LargeSlabDelete>> m_largeSlabs;
  std::byte* m_next = nullptr;  // what is left of the last slab
  std::size_t m_left = 0;
  std::size_t m_inUse = 0;
};

}  // namespace coregui
