// Memory for secrets: wiped for good, and left out of crash dumps.
#pragma once

#include <cstddef>

namespace quendra {

/// Overwrites with zeros in a way that the compiler never drops.
void wipeMemory(void* memory, std::size_t size) noexcept;

/// Zeroed memory of at least `size` bytes, aligned to a page, that memory dumps of this process
/// leave out. Costs a system call: meant for blocks of many kilobytes. Throws std::bad_alloc. Given
/// back with freeSecretMemory and the same size; the pages go back to the system, which clears them
/// before anyone else sees them.
[[nodiscard]] void* allocateSecretMemory(std::size_t size);
void freeSecretMemory(void* memory, std::size_t size) noexcept;

}  // namespace quendra
