#include "vcl/LargeMemory.h"

#include <cstdlib>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace {
constexpr std::size_t LargePage = std::size_t{2} << 20;
}

void* AllocateLarge(std::size_t bytes) {
#if defined(__linux__)
  if (bytes >= 2 * LargePage) {
    const std::size_t whole = (bytes + LargePage - 1) / LargePage * LargePage;
    void* memory = std::aligned_alloc(LargePage, whole);
    if (memory) madvise(memory, whole, MADV_HUGEPAGE);  // only a wish
    return memory;
  }
#endif
  return std::malloc(bytes);
}

void FreeLarge(void* memory) { std::free(memory); }
