// qds build: a script from its JSON form.

#include "cli/loss_report.h"
#include "cli/qds.h"
#include "forms/script_json.h"
#include "platform/registry.h"
#include "scriptfile/script_writer.h"

namespace quendra::cli {

namespace {

// Gives the script, or reports why there is none.
std::optional<ScriptOfJson> readSource(Environment& environment, const std::string& file,
                                       const FileContent& content) {
    if (content.size > maxJsonSize) {
        report(environment, file, withOffset("too long for the JSON form", maxJsonSize));
        return std::nullopt;
    }
    ScriptOfJson made = scriptOfJson(content.bytes(), HiddenTextCipher(userIdentity()));
    if (made.ok()) return made;
    report(environment, file, made.refusal);
    return std::nullopt;
}

}  // namespace

int buildScript(const BuildRequest& request, Environment& environment) {
    const auto content = readInput(environment, request.source, maxJsonSize + 1);
    if (!content) return statusRefused;
    const auto made = readSource(environment, request.source, *content);
    if (!made) return statusRefused;
    if (reportLoss(environment, request.source, made->script, made->hostType, made->hostType)) {
        return statusRefused;
    }
    const auto bytes = writeScript(made->script, made->hostType);
    return writeOutput(environment, request.output, bytes, *content) ? statusWell : statusRefused;
}

}  // namespace quendra::cli
