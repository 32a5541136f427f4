// Texts to look for in a dump, made character by character so that no file and no constant holds
// them.
#pragma once

#include <cstddef>
#include <string>

namespace quendra::test {

enum class Canary : unsigned { Hidden = 0x5A, Kept = 0x33 };
inline constexpr std::size_t canaryLength = 23;

inline char canaryCharacter(Canary which, std::size_t index) {
    const volatile unsigned seed = static_cast<unsigned>(which);
    return static_cast<char>('A' + (index * index * 7 + index * seed + seed) % 26);
}

/// For the searching side only: the text as a whole.
inline std::string canaryText(Canary which) {
    std::string text;
    for (std::size_t i = 0; i < canaryLength; ++i)
        text += canaryCharacter(which, i);
    return text;
}

}  // namespace quendra::test
