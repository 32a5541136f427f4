// What a process has in its address space, as the system lists it.
#pragma once

#include <cstdint>
#include <istream>
#include <string>
#include <vector>

namespace quendra {

struct Mapping {
    std::uintptr_t start = 0;
    std::uintptr_t end = 0;
    bool readable = false;
    bool writable = false;
    bool executable = false;
    std::uint64_t fileOffset = 0;
    /// The file, a name in square brackets, or empty.
    std::string name;
    /// None of its pages has ever been used.
    bool untouched = false;
    /// Its owner wants it in no dump, or it is a device's.
    bool leftOut = false;

    [[nodiscard]] std::size_t size() const { return end - start; }
    [[nodiscard]] bool isFile() const { return !name.empty() && name.front() == '/'; }
    [[nodiscard]] bool isDumped() const { return readable && !leftOut; }
};

/// Reads the form of /proc/PID/smaps. What cannot be understood is passed over.
[[nodiscard]] std::vector<Mapping> readMappings(std::istream& smaps);

}  // namespace quendra
