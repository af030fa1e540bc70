// For large memory that is about to be filled: touching it page by page takes longer than the work done in
// it.
#pragma once
#include <cstddef>

// Asks the system for large pages where whole ones lie in the memory, which has not been touched yet. Only a
// wish.
void PreferLargePages(void* memory, std::size_t bytes);
