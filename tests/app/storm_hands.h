// Hands that do at random whatever an open dialog or message box allows, until it closes.
#pragma once

#include <QString>

#include <functional>
#include <iterator>
#include <random>

class QWidget;

namespace quendra::test {

/// The choices of one storm: the same seed makes the same ones.
class Chance {
  public:
    explicit Chance(unsigned int seed) : random_(seed) {}

    [[nodiscard]] std::size_t below(std::size_t count) { return random_() % count; }
    /// A row, or a coordinate, from 0.
    [[nodiscard]] int row(int count) {
        return static_cast<int>(below(static_cast<std::size_t>(count)));
    }
    [[nodiscard]] bool oneIn(std::size_t count) { return below(count) == 0; }
    template <class Range>
    [[nodiscard]] const auto& of(const Range& range) {
        return *std::next(std::begin(range), row(static_cast<int>(std::size(range))));
    }

  private:
    std::mt19937 random_;
};

/// Some text as it may be typed or pasted: short or too long, with what windows-1252 lacks.
[[nodiscard]] QString someText(Chance& chance);

/// Works on modal dialogs while gestures run. Every dialog ends after a few touches.
class ModalHands {
  public:
    explicit ModalHands(Chance& chance) : chance_(chance) {}

    /// Runs a gesture, and works on every dialog that it opens; gives how many touches that took.
    int during(const std::function<void()>& gesture);

  private:
    void look();
    void touch(QWidget& dialog);
    void finish(QWidget& dialog, int touches);

    Chance& chance_;
    int touches_ = 0;
};

}  // namespace quendra::test
