// qds check: what is wrong with scripts, or looks wrong.

#include "analysis/script_check.h"
#include "cli/progress_line.h"
#include "cli/qds.h"
#include "cli/script_paths.h"
#include "forms/finding_json.h"
#include "platform/registry.h"

#include <optional>

namespace quendra::cli {

namespace {

std::string counted(std::size_t count, std::string_view what) {
    std::string text = std::to_string(count) + " " + std::string(what);
    return count == 1 ? text : text + "s";
}

class ScriptsCheck {
  public:
    ScriptsCheck(const CheckRequest& request, Environment& environment)
        : request_(request),
          environment_(environment),
          names_(environment, request.json ? NamesFor::JsonForm : NamesFor::User),
          texts_(names_.library.textSource()),
          identity_(userIdentity()),
          cipher_(identity_),
          progress_(environment) {
        if (request.json) form_.emplace(environment.out);
    }

    int check() {
        const bool areFoldersRead = forEachScriptFile(
            environment_, request_.files, [this](const std::string& file) { checkFile(file); });
        if (form_) form_->close();
        progress_.clear();
        if (!form_) printSummary();
        if (hasTrouble_ || !areFoldersRead || !names_.isLoaded) return statusTrouble;
        return counts_[0] + counts_[1] > 0 ? statusFound : statusWell;
    }

  private:
    void checkFile(const std::string& file) {
        const auto source = readScriptInput(environment_, file);
        if (source) checkScriptOf(file, *source);
        if (!source || !reportReading(environment_, file, source->read)) hasTrouble_ = true;
        ++files_;
        progress_.count();
    }

    void checkScriptOf(const std::string& file, const SourceScript& source) {
        const CheckOptions options = {source.read.signature.hostType, !identity_.empty(),
                                      request_.notes, request_.disabled};
        const CheckResult result = checkScript(source.read.script, cipher_, options);
        if (result.findings.empty()) return;
        progress_.clear();
        for (const Finding& finding : result.findings) {
            print(file, finding, findingMessage(finding, result.outline, texts_));
            ++counts_[static_cast<std::size_t>(ruleInfo(finding.rule).severity)];
        }
        // What was found stands above the message about the file's end also on one screen.
        environment_.out.flush();
    }

    void print(const std::string& file, const Finding& finding, const std::string& message) {
        if (form_) return form_->add(file, finding, message);
        const RuleInfo& rule = ruleInfo(finding.rule);
        environment_.out << shownName(file) << ':' << finding.place.step + 1 << ": "
                         << severityName(rule.severity) << ": " << message << " [" << rule.id
                         << "]\n";
    }

    // Apart from the findings, so that these can be counted and cut by line.
    void printSummary() {
        environment_.err << "qds: " << counted(files_, "script") << ": "
                         << counted(counts_[0], "error") << ", " << counted(counts_[1], "warning");
        if (request_.notes) environment_.err << ", " << counted(counts_[2], "note");
        environment_.err << std::endl;
    }

    const CheckRequest& request_;
    Environment& environment_;
    EntryNames names_;
    TextSource texts_;
    std::string identity_;
    HiddenTextCipher cipher_;
    ProgressLine progress_;
    std::optional<FindingsForm> form_;
    std::size_t files_ = 0;
    /// By severity.
    std::array<std::size_t, 3> counts_ = {};
    bool hasTrouble_ = false;
};

}  // namespace

int checkScripts(const CheckRequest& request, Environment& environment) {
    return ScriptsCheck(request, environment).check();
}

}  // namespace quendra::cli
