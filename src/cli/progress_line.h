// "412 files" on a terminal while a command takes long, and nothing anywhere else.
#pragma once

#include "cli/environment.h"

#include <chrono>
#include <cstddef>

namespace quendra::cli {

/// Shown on standard error once a second has gone by, and gone when something else is printed.
class ProgressLine {
  public:
    /// `environment` outlives it.
    explicit ProgressLine(Environment& environment);
    ~ProgressLine() { clear(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// One more file is done.
    void count();
    /// Makes room for other output.
    void clear();

  private:
    Environment& environment_;
    std::chrono::steady_clock::time_point next_;
    std::size_t files_ = 0;
    bool isShown_ = false;
};

}  // namespace quendra::cli
