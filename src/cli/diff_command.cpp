// qds diff: what changed from one script to another, step by step and field by field.

#include "analysis/entry_display.h"
#include "cli/qds.h"
#include "compare/script_diff.h"
#include "forms/diff_json.h"
#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"

namespace quendra::cli {

namespace {

// What a line begins with, and its colour: a mark is never told by its colour alone.
struct Mark {
    std::string_view sign;
    std::string_view colour;
};
constexpr Mark goneMark = {"-", "\x1B[31m"};
constexpr Mark newMark = {"+", "\x1B[32m"};
constexpr Mark changedMark = {"!", "\x1B[33m"};
constexpr Mark movedMark = {">", "\x1B[36m"};
constexpr std::string_view plain = "\x1B[m";

class DiffPrinter {
  public:
    DiffPrinter(Environment& environment, const ReadResult& left, const ReadResult& right)
        : environment_(environment),
          left_(left),
          right_(right),
          names_(environment, NamesFor::User),
          user_(environment) {}

    void print(const std::vector<DiffLine>& lines) {
        const HostType from = left_.signature.hostType;
        const HostType to = right_.signature.hostType;
        if (from != to) {
            start(changedMark) << "hostType " << hostTypeInfo(from).name << " -> "
                               << hostTypeInfo(to).name;
            end();
        }
        for (const DiffLine& line : lines) {
            print(line);
        }
    }

  private:
    void print(const DiffLine& line) {
        if (!line.right) {
            start(goneMark) << *line.left + 1 << ": " << lineOf(left_, *line.left);
            return end();
        }
        if (!line.left) {
            start(newMark) << *line.right + 1 << ": " << lineOf(right_, *line.right);
            return end();
        }
        const bool isMoved = line.change == StepChange::Moved;
        start(isMoved ? movedMark : changedMark)
            << *line.left + 1 << " -> " << *line.right + 1 << ": " << lineOf(right_, *line.right);
        end();
        if (!isMoved) printFields(*line.left, *line.right);
    }

    void printFields(std::size_t left, std::size_t right) {
        const ScriptEntry leftEntry = unpackSealedEntry(left_.script.entries[left]);
        const ScriptEntry rightEntry = unpackSealedEntry(right_.script.entries[right]);
        for (const FieldDifference& field : fieldDifferences(leftEntry, rightEntry)) {
            environment_.out << "      " << field.name << ' ' << shown(field.left) << " -> "
                             << shown(field.right) << '\n';
        }
    }

    static std::string shown(const ComparedValue& value) {
        switch (value.kind) {
            case ComparedValue::Kind::None: break;
            case ComparedValue::Kind::Number: return value.text;
            case ComparedValue::Kind::Sealed: return "sealed";
            case ComparedValue::Kind::Text:
                return '"' + escapeControlCharacters(utf8FromWindows1252(value.text)) + '"';
        }
        return "(none)";
    }

    [[nodiscard]] std::string lineOf(const ReadResult& side, std::size_t step) {
        const DisplayNames names = {names_.luFunctions.of(side.signature.hostType),
                                    names_.menuCommands};
        const ScriptEntry entry = unpackEntry(side.script.entries[step], user_.cipher);
        return escapeControlCharacters(formatEntryLine(entry, names));
    }

    std::ostream& start(const Mark& mark) {
        if (environment_.outIsTerminal) environment_.out << mark.colour;
        return environment_.out << mark.sign << ' ';
    }
    void end() {
        if (environment_.outIsTerminal) environment_.out << plain;
        environment_.out << '\n';
    }

    Environment& environment_;
    const ReadResult& left_;
    const ReadResult& right_;
    EntryNames names_;
    UserCipher user_;
};

}  // namespace

int diffOfScripts(const DiffRequest& request, Environment& environment) {
    const auto left = readWholeScript(environment, request.left);
    const auto right = readWholeScript(environment, request.right);
    if (!left || !right) return statusTrouble;
    const HostType leftType = left->read.signature.hostType;
    const HostType rightType = right->read.signature.hostType;
    const ScriptDiff diff = diffScripts(left->read.script, right->read.script);
    if (request.json) {
        printDiff(environment.out, left->read.script, leftType, right->read.script, rightType);
    } else {
        DiffPrinter(environment, left->read, right->read).print(diffLines(diff));
    }
    return diff.isSame() && leftType == rightType ? statusWell : statusFound;
}

}  // namespace quendra::cli
