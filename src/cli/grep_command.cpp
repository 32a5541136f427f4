// qds grep: which scripts, steps and fields hold a text.

#include "analysis/field_search.h"
#include "cli/progress_line.h"
#include "cli/qds.h"
#include "cli/script_paths.h"
#include "text/text_encoding.h"

namespace quendra::cli {

namespace {

class Grep {
  public:
    Grep(const GrepRequest& request, Environment& environment)
        : request_(request), environment_(environment), progress_(environment) {}

    int run() {
        const bool areFoldersRead = forEachScriptFile(
            environment_, request_.files, [this](const std::string& file) { searchFile(file); });
        if (hasTrouble_ || !areFoldersRead) return statusTrouble;
        return isFound_ ? statusWell : statusFound;
    }

  private:
    void searchFile(const std::string& file) {
        const auto source = readScriptInput(environment_, file);
        if (source) print(file, source->read);
        environment_.out.flush();
        if (request_.search.pattern->takeGaveUp()) {
            progress_.clear();
            report(environment_, file,
                   "the expression tries too many ways; texts in which that was so are left out");
            hasTrouble_ = true;
        }
        if (!source || !reportReading(environment_, file, source->read)) hasTrouble_ = true;
        progress_.count();
    }

    void print(const std::string& file, const ReadResult& read) {
        const Script& script = read.script;
        const FieldFilter filter(request_.search.fields, read.signature.hostType);
        const TextPattern& pattern = *request_.search.pattern;
        if (request_.filesOnly) {
            if (!holdsMatch(script, pattern, filter)) return;
            isFound_ = true;
            progress_.clear();
            environment_.out << shownName(file) << '\n';
            return;
        }
        for (const FieldHit& hit : searchFields(script, pattern, filter)) {
            isFound_ = true;
            progress_.clear();
            environment_.out << shownName(file) << ':' << hit.place.step + 1 << ':' << hit.path
                             << ": " << escapeControlCharacters(hit.value) << '\n';
        }
    }

    const GrepRequest& request_;
    Environment& environment_;
    ProgressLine progress_;
    bool isFound_ = false;
    bool hasTrouble_ = false;
};

}  // namespace

int searchScripts(const GrepRequest& request, Environment& environment) {
    return Grep(request, environment).run();
}

}  // namespace quendra::cli
