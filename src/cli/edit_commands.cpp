// qds replace and qds rename-label: one change in all scripts, each made whole or not at all.

#include "analysis/script_changes.h"
#include "cli/loss_report.h"
#include "cli/qds.h"
#include "cli/script_paths.h"
#include "scriptfile/script_writer.h"
#include "text/text_encoding.h"

#include <functional>

namespace quendra::cli {

namespace {

std::string describe(ChangeFault fault) {
    switch (fault) {
        case ChangeFault::Empty: return "nothing would be left";
        case ChangeFault::TooLong: return "the result is too long";
        case ChangeFault::CannotBeStored: return "the result cannot be stored";
        case ChangeFault::OutOfRange: return "the result is no number that the field can hold";
        case ChangeFault::None: break;
    }
    return {};
}

std::string shown(std::string_view windows1252) {
    return escapeControlCharacters(utf8FromWindows1252(windows1252));
}

class ScriptEdit {
  public:
    /// What is to be changed in a script; none when the file is refused, which was reported.
    using Changes =
        std::function<std::optional<ScriptChanges>(const std::string&, const ReadResult&)>;

    ScriptEdit(Environment& environment, bool isDryRun, Changes changes)
        : environment_(environment), isDryRun_(isDryRun), changes_(std::move(changes)) {}

    int run(const std::vector<std::string>& files) {
        const bool areFoldersRead =
            forEachScriptFile(environment_, files, [this](const std::string& file) {
                if (!editFile(file)) isRefused_ = true;
            });
        environment_.out.flush();
        environment_.err << "qds: " << fields_ << (fields_ == 1 ? " field" : " fields") << " in "
                         << files_ << (files_ == 1 ? " file" : " files")
                         << (isDryRun_ ? " would be changed" : " changed") << std::endl;
        return isRefused_ || !areFoldersRead ? statusRefused : statusWell;
    }

  private:
    [[nodiscard]] bool editFile(const std::string& file) {
        auto source = readScriptInput(environment_, file, Input::RegularFile);
        if (!source) return false;
        ReadResult& read = source->read;
        if (!reportReading(environment_, file, read)) return false;
        const auto changes = changes_(file, read);
        if (!changes) return false;
        if (changes->fields.empty()) return true;
        const HostType hostType = read.signature.hostType;
        if (!reportFaults(file, *changes)) return false;
        if (reportLoss(environment_, file, read.script, hostType, hostType)) return false;
        if (isDryRun_) {
            print(file, *changes);
        } else {
            applyChanges(read.script, *changes);
            const auto bytes = writeScript(read.script, hostType);
            if (!replaceSource(environment_, file, bytes, source->content)) return false;
        }
        fields_ += changes->fields.size();
        ++files_;
        return true;
    }

    [[nodiscard]] bool reportFaults(const std::string& file, const ScriptChanges& changes) {
        for (const FieldChange& change : changes.fields) {
            if (change.fault == ChangeFault::None) continue;
            report(environment_, file,
                   "entry " + std::to_string(change.place.step + 1) + ": " + change.path + ": " +
                       describe(change.fault));
        }
        return changes.canAllBeMade();
    }

    void print(const std::string& file, const ScriptChanges& changes) {
        for (const FieldChange& change : changes.fields) {
            environment_.out << shownName(file) << ':' << change.place.step + 1 << ':'
                             << change.path << ": " << shown(change.before) << " -> "
                             << shown(change.after) << '\n';
        }
    }

    Environment& environment_;
    bool isDryRun_;
    Changes changes_;
    std::size_t fields_ = 0;
    std::size_t files_ = 0;
    bool isRefused_ = false;
};

}  // namespace

int replaceInScripts(const ReplaceRequest& request, Environment& environment) {
    const TextPattern& pattern = *request.search.pattern;
    const auto changes = [&](const std::string& file,
                             const ReadResult& read) -> std::optional<ScriptChanges> {
        const FieldFilter filter(request.search.fields, read.signature.hostType);
        ScriptChanges made = replaceInFields(read.script, pattern, request.replacement, filter);
        if (!pattern.takeGaveUp()) return made;
        report(environment, file, "the expression tries too many ways; the file is left as it is");
        return std::nullopt;
    };
    return ScriptEdit(environment, request.isDryRun, changes).run(request.files);
}

int renameLabelInScripts(const RenameLabelRequest& request, Environment& environment) {
    const auto changes = [&](const std::string& file,
                             const ReadResult& read) -> std::optional<ScriptChanges> {
        ScriptChanges made = renameLabel(read.script, request.before, request.after);
        if (made.fields.empty()) return made;
        const auto existing = definitionOfLabel(read.script, request.after);
        if (!existing) return made;
        const StepPlace& first = made.fields.front().place;
        report(environment, file,
               "entry " + std::to_string(first.step + 1) + ": " + made.fields.front().path +
                   ": there is a label of that name already, in entry " +
                   std::to_string(*existing + 1));
        return std::nullopt;
    };
    return ScriptEdit(environment, request.isDryRun, changes).run(request.files);
}

}  // namespace quendra::cli
