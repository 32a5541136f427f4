// qds build: a script from its JSON form.

#include "cli/loss_report.h"
#include "cli/qds.h"
#include "forms/script_json.h"
#include "platform/registry.h"
#include "scriptfile/script_writer.h"
#include "text/text_encoding.h"

namespace quendra::cli {

namespace {

// Gives the script, or reports why there is none.
std::optional<ScriptOfJson> readSource(Environment& environment, const std::string& file,
                                       const FileContent& content) {
    if (content.size > maxJsonSize) {
        report(environment, file, withOffset("too long for the JSON form", maxJsonSize));
        return std::nullopt;
    }
    const HiddenTextCipher cipher(userIdentity());
    std::optional<EntryNames> names;
    const auto keys = [&](HostType hostType) {
        if (!names) names.emplace(environment, NamesFor::JsonForm);
        return names->luFunctions.of(hostType);
    };
    ScriptOfJson made = scriptOfJson(content.bytes(), {cipher, keys});
    if (made.ok()) return made;
    report(environment, file, made.refusal);
    return std::nullopt;
}

// True when the form is that of a whole script, or of what the user takes for one.
bool isWhole(const BuildRequest& request, Environment& environment, const ScriptOfJson& made) {
    if (made.incomplete.empty()) return true;
    const std::string what =
        "made from a file that was not whole: " + escapeControlCharacters(made.incomplete);
    report(environment, request.source,
           request.allowLoss ? "note: " + what : what + "; --allow-loss builds what there is");
    return request.allowLoss;
}

}  // namespace

int buildScript(const BuildRequest& request, Environment& environment) {
    const auto content = readInput(environment, request.source, maxJsonSize + 1);
    if (!content) return statusRefused;
    const auto made = readSource(environment, request.source, *content);
    if (!made) return statusRefused;
    const bool losesNothing =
        !reportLoss(environment, request.source, made->script, made->hostType, made->hostType);
    if (!isWhole(request, environment, *made)) return statusRefused;
    if (!losesNothing && !request.allowLoss) return statusRefused;
    const auto bytes = writeScript(made->script, made->hostType);
    const bool isWritten = writeOutput(environment, request.output, bytes, *content);
    return isWritten && losesNothing ? statusWell : statusRefused;
}

}  // namespace quendra::cli
