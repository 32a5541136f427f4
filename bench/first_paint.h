// What the probe for the first paint and whoever starts it agree on.
#pragma once

namespace quendra::bench {

/// The exit code of a program whose whole window was painted.
constexpr int firstPaintStatus = 42;

}  // namespace quendra::bench
