#include "platform/qt/PictureMemory.h"

#include <QtGlobal>
#include <cstdint>

#ifdef Q_OS_LINUX
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace coregui {

#if defined(Q_OS_LINUX) && defined(MADV_HUGEPAGE) && defined(MADV_POPULATE_WRITE)

namespace {

/// Asks for what holds of all pages of this size that lie in the memory as a whole.
void Advise(const void* memory, std::size_t bytes, std::size_t page, int advice) {
  const auto begin = reinterpret_cast<std::uintptr_t>(memory);
  const std::uintptr_t first = (begin + page - 1) / page * page;
  const std::uintptr_t end = (begin + bytes) / page * page;
  // A system that refuses has its reasons; the memory is good all the same.
  if (first < end) madvise(reinterpret_cast<void*>(first), end - first, advice);
}

}  // namespace

void ExpectFill(const void* memory, std::size_t bytes) {
  if (bytes < kLargePage) return;
  Advise(memory, bytes, kLargePage, MADV_HUGEPAGE);
  Advise(memory, bytes, static_cast<std::size_t>(sysconf(_SC_PAGESIZE)), MADV_POPULATE_WRITE);
}

#else

void ExpectFill(const void* /*memory*/, std::size_t /*bytes*/) {}

#endif

}  // namespace coregui
