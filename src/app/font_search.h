// Finding the desktop's fonts while the program does something else: the longest single step of a
// start, which would otherwise wait for the first text.
#pragma once

#include <latch>
#include <thread>

namespace quendra {

/// Has a thread of its own read the desktop's font settings, for which there need not be an
/// application object yet.
class FontSettings {
  public:
    FontSettings();
    ~FontSettings();
    FontSettings(const FontSettings&) = delete;
    FontSettings& operator=(const FontSettings&) = delete;

    /// Comes back when they are read. Whoever uses a font before reads them a second time.
    void wait() const { read_.wait(); }

  private:
    std::latch read_{1};
    std::thread thread_;
};

/// Has another go on from there and find out which fonts there are. Whoever needs a font before it
/// is done waits for it inside Qt. Made after the application object and gone before it;
/// `settings` stays longer.
class FontSearch {
  public:
    explicit FontSearch(const FontSettings& settings);
    ~FontSearch();
    FontSearch(const FontSearch&) = delete;
    FontSearch& operator=(const FontSearch&) = delete;

  private:
    std::thread thread_;
};

}  // namespace quendra
