#include "platform/secret_memory.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <new>
#include <sys/mman.h>

namespace quendra {

namespace {

constexpr std::size_t largePage = std::size_t{2} * 1024 * 1024;

// Process-wide, for the reporter of a crash has nothing else to start from.
constinit SecretMark::Links* firstMark = nullptr;
constinit std::atomic_flag listBusy;

// Held for a few instructions only.
class ListLock {
  public:
    ListLock() {
        while (listBusy.test_and_set(std::memory_order_acquire)) {
        }
    }
    ~ListLock() { listBusy.clear(std::memory_order_release); }
    ListLock(const ListLock&) = delete;
    ListLock& operator=(const ListLock&) = delete;
};

}  // namespace

void wipeMemory(void* memory, std::size_t size) noexcept {
    explicit_bzero(memory, size);
}

SecretPages::SecretPages(std::size_t size) : size_(std::max<std::size_t>(size, 1)) {
    void* memory = mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::bad_alloc();
    // Advice only: an old kernel that does not know it still gives usable memory. Of large pages,
    // a full script is a few, each of them found at the first touch; of small ones, thousands.
    madvise(memory, size_, MADV_DONTDUMP);
    if (size_ >= largePage) madvise(memory, size_, MADV_HUGEPAGE);
    memory_ = static_cast<std::uint8_t*>(memory);
}

SecretPages& SecretPages::operator=(SecretPages&& other) noexcept {
    std::swap(memory_, other.memory_);
    std::swap(size_, other.size_);
    return *this;
}

SecretPages::~SecretPages() {
    if (memory_) munmap(memory_, size_);
}

void SecretPages::makePresent() const noexcept {
    // Advice as well: older kernels fault as ever. Large pages are few.
    if (size_ < largePage) madvise(memory_, size_, MADV_POPULATE_WRITE);
}

SecretMark::SecretMark(void* memory, std::size_t size) noexcept
    : links_{nullptr, nullptr, memory, size} {
    link();
}

SecretMark::SecretMark(const SecretMark& other) noexcept
    : links_{nullptr, nullptr, nullptr, other.links_.size} {
    const auto distance =
        static_cast<char*>(other.links_.memory) - reinterpret_cast<const char*>(&other);
    links_.memory = reinterpret_cast<char*>(this) + distance;
    link();
}

SecretMark::~SecretMark() {
    const ListLock lock;
    if (links_.next) links_.next->previous = links_.previous;
    (links_.previous ? links_.previous->next : firstMark) = links_.next;
}

void SecretMark::link() noexcept {
    const ListLock lock;
    links_.next = firstMark;
    if (firstMark) firstMark->previous = &links_;
    firstMark = &links_;
}

std::uintptr_t SecretMark::listAddress() noexcept {
    return reinterpret_cast<std::uintptr_t>(&firstMark);
}

void wipeMarkedMemory() noexcept {
    // What is marked may hold the mark itself.
    for (SecretMark::Links* mark = firstMark; mark;) {
        const SecretMark::Links links = *mark;
        wipeMemory(links.memory, links.size);
        mark = links.next;
    }
}

}  // namespace quendra
