#include "cli/progress_line.h"

namespace quendra::cli {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto firstAfter = std::chrono::seconds(1);
// Often enough to be seen to move, and seldom enough to cost nothing.
constexpr auto nextAfter = std::chrono::milliseconds(100);

}  // namespace

ProgressLine::ProgressLine(Environment& environment)
    : environment_(environment), next_(Clock::now() + firstAfter) {}

void ProgressLine::count() {
    ++files_;
    if (!environment_.errIsTerminal || Clock::now() < next_) return;
    next_ = Clock::now() + nextAfter;
    environment_.err << "\r" << files_ << " files" << std::flush;
    isShown_ = true;
}

void ProgressLine::clear() {
    if (!isShown_) return;
    // Back to the start of the line, and everything behind is erased.
    environment_.err << "\r\x1B[K" << std::flush;
    isShown_ = false;
}

}  // namespace quendra::cli
