// Memory for secrets: wiped for good, and left out of crash dumps.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

namespace quendra {

/// Overwrites with zeros in a way that the compiler never drops.
void wipeMemory(void* memory, std::size_t size) noexcept;

/// Zeroed memory, aligned to a page, that memory dumps of this process leave out. Costs a system
/// call: meant for blocks of many kilobytes. The pages go back to the system, which clears them
/// before anyone else sees them.
class SecretPages {
  public:
    /// None: data() is null.
    SecretPages() = default;
    /// At least `size` bytes. Throws std::bad_alloc.
    explicit SecretPages(std::size_t size);
    SecretPages(SecretPages&& other) noexcept
        : memory_(std::exchange(other.memory_, nullptr)), size_(other.size_) {}
    SecretPages& operator=(SecretPages&& other) noexcept;
    ~SecretPages();

    [[nodiscard]] std::uint8_t* data() const { return memory_; }
    /// Has the system find all the pages now, for who will fill them at once: one call in place of
    /// a fault at the first touch of each.
    void makePresent() const noexcept;

  private:
    std::uint8_t* memory_ = nullptr;
    std::size_t size_ = 0;
};

/// Marks memory on the stack or in the heap that holds a secret for a while: a crash dump shows
/// zeros in its place, and a process that crashes wipes it before anybody else dumps it. For
/// working copies, which live too briefly for memory of their own; their owner still wipes them.
///
/// All marks of the process form one list. A mark that is a member of what it marks may be copied
/// with it: the copy marks the copy, and assigning changes no mark.
class SecretMark {
  public:
    SecretMark(void* memory, std::size_t size) noexcept;
    SecretMark(const SecretMark& other) noexcept;
    SecretMark& operator=(const SecretMark& /*other*/) noexcept { return *this; }
    ~SecretMark();

    /// Marks say nothing about what they mark.
    bool operator==(const SecretMark& /*other*/) const noexcept { return true; }

    struct Links {
        Links* next;
        Links* previous;
        void* memory;
        std::size_t size;
    };
    /// The address of the variable that points to the first mark's links, or to null: what the
    /// reporter of a crash follows in the process that crashed.
    [[nodiscard]] static std::uintptr_t listAddress() noexcept;

  private:
    void link() noexcept;

    Links links_;
};

/// Wipes all that is marked. Only for a process that ends at once; safe in a signal handler.
void wipeMarkedMemory() noexcept;

}  // namespace quendra
