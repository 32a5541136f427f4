// What two lists, or two texts, have in common in the same order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace quendra {

/// Two places with equal values.
struct CommonPlace {
    std::size_t left;
    std::size_t right;

    bool operator==(const CommonPlace&) const = default;
};

/// A longest list of equal values that both lists hold in this order, ascending in both. The values
/// are any numbers below the sum of both sizes. Takes a machine word's width less time than a table
/// of all pairs would, and as many bits of memory as there are pairs: for scripts two megabytes.
[[nodiscard]] std::vector<CommonPlace> longestCommonPart(std::span<const std::uint32_t> left,
                                                         std::span<const std::uint32_t> right);

/// How many characters both texts begin and end with.
[[nodiscard]] std::size_t countAlike(std::string_view left, std::string_view right);

}  // namespace quendra
