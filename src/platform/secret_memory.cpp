#include "platform/secret_memory.h"

#include <cstring>
#include <new>
#include <sys/mman.h>

namespace quendra {

void wipeMemory(void* memory, std::size_t size) noexcept {
    explicit_bzero(memory, size);
}

void* allocateSecretMemory(std::size_t size) {
    void* memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::bad_alloc();
    // Advice only: an old kernel that does not know it still gives usable memory.
    madvise(memory, size, MADV_DONTDUMP);
    return memory;
}

void freeSecretMemory(void* memory, std::size_t size) noexcept {
    munmap(memory, size);
}

}  // namespace quendra
