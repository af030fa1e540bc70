// Memory for pictures and other large tables: where the system can, in large pages, because touching fresh
// memory page by page takes longer than the work that is done in it.
#pragma once
#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>

// Unspecified content; null when there is not enough.
void* AllocateLarge(std::size_t bytes);
void FreeLarge(void* memory);

// For vectors of plain data. Elements that are added without a value are not touched.
template <class T>
struct LargeAllocator {
  static_assert(std::is_trivially_copyable_v<T>);
  using value_type = T;
  LargeAllocator() = default;
  template <class U>
  LargeAllocator(const LargeAllocator<U>&) {}
  T* allocate(std::size_t n) {
    if (void* memory = AllocateLarge(n * sizeof(T))) return static_cast<T*>(memory);
    throw std::bad_alloc();
  }
  void deallocate(T* memory, std::size_t) { FreeLarge(memory); }
  template <class U, class... A>
  void construct([[maybe_unused]] U* at, A&&... arguments) {
    if constexpr (sizeof...(A) != 0) ::new (static_cast<void*>(at)) U(std::forward<A>(arguments)...);
  }
  bool operator==(const LargeAllocator&) const { return true; }
};
