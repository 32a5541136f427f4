// How well a name fits what somebody types who looks for it.
#pragma once

#include <QString>

#include <cstdint>

namespace quendra {

/// From the best to the worst.
enum class NameFit : std::uint8_t {
    Whole,
    /// The name begins with it.
    Beginning,
    /// Its words begin with these characters: "cs" of "Clear Screen", "wf" of "Wait_For".
    Initials,
    /// Every typed word begins a word of the name: "scr cl" of "Clear Screen".
    Words,
    /// Every typed word stands somewhere in the name.
    Anywhere,
    No,
};

/// The form of a text in which case, accents and blanks at the ends count for nothing.
[[nodiscard]] QString foldedName(const QString& text);

/// A name to be held against many texts.
class NameMatcher {
  public:
    explicit NameMatcher(const QString& name);

    /// `typed` as foldedName() gives it; an empty one fits every name, as a beginning.
    [[nodiscard]] NameFit fit(const QString& typed) const;

  private:
    [[nodiscard]] bool hasWordAt(qsizetype place) const;
    [[nodiscard]] NameFit fitOfWord(const QString& word) const;

    QString name_;
    /// Without anything but letters and digits: "waitfor" of "Wait_For".
    QString letters_;
    QString initials_;
};

}  // namespace quendra
