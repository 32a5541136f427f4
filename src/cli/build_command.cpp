// qds build: a script from its JSON form.

#include "cli/loss_report.h"
#include "cli/qds.h"
#include "forms/json_text.h"
#include "forms/script_json.h"
#include "platform/registry.h"
#include "scriptfile/script_writer.h"

#include <nlohmann/json.hpp>

namespace quendra::cli {

namespace {

// The largest script, with every character escaped, stays below.
constexpr std::size_t maxSourceSize = std::size_t{128} * 1024 * 1024;

// Gives the script, or reports why there is none.
std::optional<ScriptOfJson> readSource(Environment& environment, const std::string& file,
                                       const FileContent& content) {
    if (content.size > maxSourceSize) {
        report(environment, file, withOffset("too long for the JSON form", maxSourceSize));
        return std::nullopt;
    }
    const ParsedJson parsed = parseJson(content.bytes());
    if (!parsed.value) {
        report(environment, file, parsed.refusal);
        return std::nullopt;
    }
    ScriptOfJson made = scriptOfJson(*parsed.value, HiddenTextCipher(userIdentity()));
    if (made.ok()) return made;
    report(environment, file, made.refusal);
    return std::nullopt;
}

}  // namespace

int buildScript(const BuildRequest& request, Environment& environment) {
    const auto content = readInput(environment, request.source, maxSourceSize + 1);
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
