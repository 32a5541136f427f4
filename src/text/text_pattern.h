// What a search looks for: a text or a regular expression, in the texts of scripts and in what is
// shown of them.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

class QString;

namespace quendra {

struct PatternOptions {
    bool ignoreCase = false;
    /// Only where no letter, digit or underscore stands beside it.
    bool wholeWords = false;
    /// Perl's dialect; otherwise each character means itself.
    bool isExpression = false;
};

/// Why there is no pattern: in words, and behind how many characters of it.
struct PatternFault {
    std::string what;
    std::size_t position = 0;
};

/// A place in a text, in its characters; of windows-1252, where each is one byte, in bytes.
struct TextMatch {
    std::size_t start = 0;
    std::size_t length = 0;

    bool operator==(const TextMatch&) const = default;
};

/// A pattern to look for many times. Looking for it in a text that makes it try too many ways, as
/// "(a+)+b" can, ends early: nothing is found there, and `gaveUp` says so.
class TextPattern {
  public:
    ~TextPattern();
    TextPattern(TextPattern&&) noexcept;
    TextPattern& operator=(TextPattern&&) noexcept;

    [[nodiscard]] bool isInWindows1252(std::string_view bytes) const;
    [[nodiscard]] bool isInUtf8(std::string_view utf8) const;

    /// All matches in windows-1252 bytes that do not overlap, from left to right. An expression can
    /// match the empty text between two characters, too.
    [[nodiscard]] std::vector<TextMatch> matches(std::string_view bytes) const;

    /// Whether any text so far was left undecided.
    [[nodiscard]] bool gaveUp() const;
    /// The same, and forgets it, for who asks about one script after the other.
    [[nodiscard]] bool takeGaveUp() const;

    /// The pattern of a text in UTF-8, which is not empty.
    [[nodiscard]] static std::variant<TextPattern, PatternFault> of(std::string_view pattern,
                                                                    const PatternOptions& options);

  private:
    struct Matcher;

    explicit TextPattern(std::unique_ptr<Matcher> matcher);

    std::unique_ptr<Matcher> matcher_;
};

/// The bytes with each match replaced by `replacement`, which is taken literally.
[[nodiscard]] std::string replaced(std::string_view bytes, const std::vector<TextMatch>& matches,
                                   std::string_view replacement);

}  // namespace quendra
