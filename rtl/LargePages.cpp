#include "rtl/LargePages.h"

#include <cstdint>

#if defined(__linux__)
#include <sys/mman.h>
#endif

void PreferLargePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t bytes) {
#if defined(__linux__)
  constexpr std::uintptr_t page = std::uintptr_t{2} << 20;
  const auto begin = (reinterpret_cast<std::uintptr_t>(memory) + page - 1) / page * page;
  const auto end = (reinterpret_cast<std::uintptr_t>(memory) + bytes) / page * page;
  if (begin < end) madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
#endif
}
