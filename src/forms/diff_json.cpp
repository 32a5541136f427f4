#include "forms/diff_json.h"

#include "forms/json_text.h"
#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"

#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

namespace quendra {

namespace {

using Json = nlohmann::ordered_json;

std::string_view kindOf(const DiffLine& line) {
    switch (line.change) {
        case StepChange::Changed: return "changed";
        case StepChange::Moved: return "moved";
        case StepChange::Same:
        case StepChange::Single: break;
    }
    return line.left ? "removed" : "added";
}

Json numberFromOne(const std::optional<std::size_t>& step) {
    return step ? Json(*step + 1) : Json(nullptr);
}

// A text may say "sealed" too: the member beside it tells a hidden one from that.
void addValue(Json& field, const std::string& side, const ComparedValue& value) {
    switch (value.kind) {
        case ComparedValue::Kind::None: field[side] = nullptr; return;
        case ComparedValue::Kind::Number: field[side] = std::stoul(value.text); return;
        case ComparedValue::Kind::Text: field[side] = utf8FromWindows1252(value.text); return;
        case ComparedValue::Kind::Sealed: field[side] = "sealed"; field[side + "Hidden"] = true;
    }
}

Json fieldsOf(const EntryHandle& left, const EntryHandle& right) {
    const ScriptEntry leftEntry = unpackSealedEntry(left);
    const ScriptEntry rightEntry = unpackSealedEntry(right);
    Json fields = Json::array();
    for (const FieldDifference& field : fieldDifferences(leftEntry, rightEntry)) {
        Json told = {{"name", field.name}};
        addValue(told, "a", field.left);
        addValue(told, "b", field.right);
        fields.push_back(std::move(told));
    }
    return fields;
}

}  // namespace

void printDiff(std::ostream& out, const Script& left, HostType leftType, const Script& right,
               HostType rightType) {
    Json form;
    if (leftType != rightType) {
        form["hostType"] = {{"a", hostTypeInfo(leftType).name},
                            {"b", hostTypeInfo(rightType).name}};
    }
    Json& changes = form["changes"] = Json::array();
    for (const DiffLine& line : diffLines(diffScripts(left, right))) {
        const bool isChanged = line.change == StepChange::Changed;
        changes.push_back(
            {{"kind", kindOf(line)},
             {"a", numberFromOne(line.left)},
             {"b", numberFromOne(line.right)},
             {"fields", isChanged ? fieldsOf(left.entries[*line.left], right.entries[*line.right])
                                  : Json::array()}});
    }
    out << printJson(form) << '\n';
}

}  // namespace quendra
