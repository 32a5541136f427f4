#include "compare/common_parts.h"

#include <algorithm>

namespace quendra {

namespace {

using Word = std::uint64_t;
constexpr std::size_t wordBits = 64;

// The table of longest common parts of all beginnings, one row of bits for each value on the left:
// a bit is clear where the part gets longer by the value on the right at that place. A row follows
// from the one above by an addition and a few operations on whole words.
class Table {
  public:
    /// All values are below `bound`.
    Table(std::span<const std::uint32_t> left, std::span<const std::uint32_t> right,
          std::size_t bound)
        : left_(left),
          right_(right),
          width_((right.size() + wordBits - 1) / wordBits),
          rows_((left.size() + 1) * width_, ~Word{0}) {
        markPlaces(bound);
        for (std::size_t i = 0; i < left.size(); ++i) {
            makeRow(i);
        }
    }

    [[nodiscard]] std::vector<CommonPlace> readBack() const {
        std::vector<CommonPlace> places;
        std::size_t j = right_.size();
        for (std::size_t i = left_.size(); i > 0 && j > 0;) {
            // The value at j adds to the part: is it this row's doing?
            if (growsAt(i, j - 1)) {
                if (growsAt(i - 1, j - 1)) {
                    --i;
                } else {
                    places.push_back({--i, --j});
                }
            } else {
                --j;
            }
        }
        std::ranges::reverse(places);
        return places;
    }

  private:
    // Where on the right each value of the left stands, as bits; values that are not there share a
    // row without any.
    void markPlaces(std::size_t bound) {
        std::vector<std::uint32_t> firstOf(bound, 0);
        std::uint32_t count = 1;
        for (const std::uint32_t value : right_) {
            if (firstOf[value] == 0) firstOf[value] = count++;
        }
        places_.assign(count * width_, 0);
        for (std::size_t j = 0; j < right_.size(); ++j) {
            places_[firstOf[right_[j]] * width_ + j / wordBits] |= Word{1} << (j % wordBits);
        }
        rowOfLeft_.reserve(left_.size());
        for (const std::uint32_t value : left_) {
            rowOfLeft_.push_back(firstOf[value]);
        }
    }

    void makeRow(std::size_t i) {
        const Word* above = rows_.data() + i * width_;
        const Word* places = places_.data() + rowOfLeft_[i] * width_;
        Word* row = rows_.data() + (i + 1) * width_;
        Word carry = 0;
        for (std::size_t k = 0; k < width_; ++k) {
            const Word matches = above[k] & places[k];
            const Word sum = above[k] + matches;
            const Word withCarry = sum + carry;
            carry = static_cast<Word>(sum < matches) | static_cast<Word>(withCarry < carry);
            row[k] = withCarry | (above[k] & ~places[k]);
        }
    }

    [[nodiscard]] bool growsAt(std::size_t row, std::size_t j) const {
        return (rows_[row * width_ + j / wordBits] >> (j % wordBits) & 1) == 0;
    }

    std::span<const std::uint32_t> left_;
    std::span<const std::uint32_t> right_;
    std::size_t width_;
    std::vector<Word> rows_;
    std::vector<Word> places_;
    std::vector<std::size_t> rowOfLeft_;
};

}  // namespace

std::vector<CommonPlace> longestCommonPart(std::span<const std::uint32_t> left,
                                           std::span<const std::uint32_t> right) {
    // What begins and ends alike needs no table, and is most of what two states of a script hold.
    std::size_t start = 0;
    const std::size_t shorter = std::min(left.size(), right.size());
    while (start < shorter && left[start] == right[start])
        ++start;
    std::size_t end = 0;
    while (end < shorter - start && left[left.size() - 1 - end] == right[right.size() - 1 - end]) {
        ++end;
    }
    std::vector<CommonPlace> places;
    for (std::size_t i = 0; i < start; ++i)
        places.push_back({i, i});
    const auto middle = [&](auto values) {
        return values.subspan(start, values.size() - start - end);
    };
    const Table table(middle(left), middle(right), left.size() + right.size());
    for (const CommonPlace& place : table.readBack()) {
        places.push_back({start + place.left, start + place.right});
    }
    for (std::size_t i = end; i > 0; --i)
        places.push_back({left.size() - i, right.size() - i});
    return places;
}

std::size_t countAlike(std::string_view left, std::string_view right) {
    const std::size_t shorter = std::min(left.size(), right.size());
    std::size_t start = 0;
    while (start < shorter && left[start] == right[start])
        ++start;
    std::size_t end = 0;
    while (end < shorter - start && left[left.size() - 1 - end] == right[right.size() - 1 - end]) {
        ++end;
    }
    return start + end;
}

}  // namespace quendra
