#include "session/insert_search.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <optional>
#include <tuple>
#include <utility>

namespace quendra {

namespace {

constexpr StateKey countsKey = {"Insert", "Used"};
constexpr int mostTimes = 9999;

// "12 ScriptEvents 17"
std::optional<std::pair<int, std::string>> countIn(const std::string& line) {
    int times = 0;
    const char* const end = line.data() + line.size();
    const auto [stop, fault] = std::from_chars(line.data(), end, times);
    if (fault != std::errc() || times < 1 || times > mostTimes) return std::nullopt;
    if (stop == end || *stop != ' ' || stop + 1 == end) return std::nullopt;
    return std::pair(times, std::string(stop + 1, end));
}

// Fits that are as good as each other, so that what is used most comes first among them.
int groupOf(NameFit fit) {
    switch (fit) {
        case NameFit::Whole: return 0;
        case NameFit::Anywhere: return 2;
        default: return 1;
    }
}

}  // namespace

std::string insertionId(const PaletteChoice& choice, HostType hostType,
                        const LuCatalogue& luFunctions) {
    const std::string palette = std::string(paletteInfo(choice.palette).name) + ' ';
    switch (choice.palette) {
        case Palette::ScriptEvents:
            return palette + std::to_string(static_cast<int>(commandOf(choice)));
        case Palette::MenuCommands: return palette + std::to_string(menuCommandOf(choice));
        case Palette::LuFunctions: break;
    }
    const LuKey key = luFunctions.rows[static_cast<std::size_t>(choice.row)].key;
    return palette + std::string(hostTypeInfo(hostType).name) + ' ' + std::to_string(key.group) +
           '/' + std::to_string(key.number);
}

InsertionCounts InsertionCounts::readFrom(const UserState& state) {
    InsertionCounts read;
    for (const std::string& line : state.texts(countsKey)) {
        auto count = countIn(line);
        if (count) read.counts_.push_back({std::move(count->second), count->first});
    }
    std::ranges::stable_sort(read.counts_, std::ranges::greater(), &Count::times);
    return read;
}

void InsertionCounts::writeTo(UserState& state) const {
    std::vector<std::string> lines;
    for (const Count& count : counts_)
        lines.push_back(std::to_string(count.times) + ' ' + count.id);
    state.setTexts(countsKey, lines);
}

void InsertionCounts::add(const std::string& id) {
    Count added{id};
    const auto known = std::ranges::find(counts_, id, &Count::id);
    if (known != counts_.end()) {
        added.times = std::min(known->times + 1, mostTimes);
        counts_.erase(known);
    } else if (counts_.size() == UserState::mostTexts) {
        counts_.pop_back();
    }
    const auto place = std::ranges::find_if(
        counts_, [&](const Count& other) { return other.times <= added.times; });
    counts_.insert(place, std::move(added));
}

std::size_t InsertionCounts::placeOf(std::string_view id) const {
    const auto found = std::ranges::find(counts_, id, &Count::id);
    return static_cast<std::size_t>(found - counts_.begin());
}

InsertSearch::InsertSearch(std::vector<Offer> offers, const InsertionCounts& counts) {
    rows_.reserve(offers.size());
    for (Offer& offer : offers) {
        NameMatcher matcher(offer.name);
        const std::size_t place = counts.placeOf(offer.id);
        rows_.push_back({std::move(offer), std::move(matcher), place});
    }
}

std::vector<std::size_t> InsertSearch::find(const QString& typed) const {
    const QString folded = foldedName(typed);
    std::vector<std::tuple<int, std::size_t, NameFit, std::size_t>> found;
    for (std::size_t number = 0; number < rows_.size(); ++number) {
        const NameFit fit = rows_[number].matcher.fit(folded);
        if (fit != NameFit::No) found.emplace_back(groupOf(fit), rows_[number].place, fit, number);
    }
    std::ranges::sort(found);
    std::vector<std::size_t> numbers;
    for (const auto& row : found)
        numbers.push_back(std::get<std::size_t{3}>(row));
    return numbers;
}

}  // namespace quendra
