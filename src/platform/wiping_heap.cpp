// The editor's heap: what is given back is wiped, so that no crash dump holds copies of a hidden
// text which the toolkit, a clipboard or a message bus once made. Linked into the program itself,
// whose free() and realloc() then are those of all its libraries.
//
// Of blocks up to 64 KB, which no text reaches; wiping a picture would cost time and hide nothing.
// The system's own setting for this (M_PERTURB) leaves out the small blocks that each thread keeps
// at hand, which are the very ones.
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <malloc.h>

extern "C" {

void __libc_free(void* memory) noexcept;
void* __libc_realloc(void* memory, std::size_t size) noexcept;

}  // extern "C"

namespace {

constexpr std::size_t largestWiped = std::size_t{64} * 1024;

void wipeFrom(void* memory, std::size_t kept, std::size_t size) noexcept {
    explicit_bzero(static_cast<char*>(memory) + kept, size - kept);
}

}  // namespace

// The system's headers name the parameters in its reserved way.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" void free(void* memory) noexcept {
    if (!memory) return;
    const std::size_t size = malloc_usable_size(memory);
    if (size <= largestWiped) wipeFrom(memory, 0, size);
    __libc_free(memory);
}

// A block that grows may move, and then the system would give back the old one as it is.
extern "C" void* realloc(void* memory, std::size_t size) noexcept {
    const std::size_t old = memory ? malloc_usable_size(memory) : 0;
    if (!memory || old > largestWiped) return __libc_realloc(memory, size);
    if (size <= old) {
        wipeFrom(memory, size, old);
        return __libc_realloc(memory, size);
    }
    void* moved = std::malloc(size);
    if (!moved) return nullptr;
    std::memcpy(moved, memory, old);
    std::free(memory);
    return moved;
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
