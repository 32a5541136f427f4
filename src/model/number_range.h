// The numbers that a field takes.
#pragma once

#include <cstdint>

namespace quendra {

struct NumberRange {
    std::uint32_t smallest = 0;
    std::uint32_t largest = 255;

    bool operator==(const NumberRange&) const = default;
};

}  // namespace quendra
