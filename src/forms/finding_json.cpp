#include "forms/finding_json.h"

#include "model/entry_fields.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace quendra {

namespace {

using Json = nlohmann::ordered_json;

std::string_view nameOf(Slot slot) {
    return slot == Slot::Entry ? "entry" : slotName(slot);
}

Json numbersFromOne(const std::vector<std::size_t>& steps) {
    Json numbers = Json::array();
    for (const std::size_t step : steps) {
        numbers.push_back(step + 1);
    }
    return numbers;
}

}  // namespace

FindingsForm::FindingsForm(std::ostream& out) : out_(out) {
    out_ << "{\"findings\": [";
}

void FindingsForm::add(std::string_view file, const Finding& finding, const std::string& message) {
    const RuleInfo& rule = ruleInfo(finding.rule);
    const Json form = {{"file", file},
                       {"entry", finding.place.step + 1},
                       {"slot", nameOf(finding.place.slot)},
                       {"rule", rule.id},
                       {"severity", severityName(rule.severity)},
                       {"message", message},
                       {"related", numbersFromOne(finding.related)}};
    // A file name need not be text.
    out_ << (isEmpty_ ? "\n  " : ",\n  ")
         << form.dump(-1, ' ', false, Json::error_handler_t::replace);
    isEmpty_ = false;
}

void FindingsForm::close() {
    out_ << (isEmpty_ ? "]}\n" : "\n]}\n");
}

}  // namespace quendra
