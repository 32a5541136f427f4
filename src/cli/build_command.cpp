// qds build: a script from its JSON form.

#include "cli/loss_report.h"
#include "cli/qds.h"
#include "forms/script_json.h"
#include "platform/registry.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_writer.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <array>

namespace quendra::cli {

namespace {

bool holdsHiddenText(const ScriptEntry& entry) {
    // What is kept of an action may be the record of an entry with actions; nothing was enciphered
    // for either.
    return std::ranges::any_of(std::array{Slot::Entry, Slot::Then, Slot::Else}, [&](Slot slot) {
        const Step& step = slotFields(entry, slot);
        return isHiddenText(step) && !step.kept;
    });
}

// The first entry with a text that this key hides.
std::optional<std::size_t> firstHidden(const Script& script, const HiddenTextCipher& cipher) {
    std::optional<std::size_t> first;
    std::size_t index = 0;
    forEachEntry(script, cipher, [&](const ScriptEntry& entry) {
        if (!first && holdsHiddenText(entry)) first = index;
        ++index;
    });
    return first;
}

// Tells of texts that are hidden without an identity. False when it is not known whether there is
// one: its owner could not read them again.
bool reportHiding(Environment& environment, const std::string& file, const Script& script,
                  const HiddenTextCipher& cipher) {
    if (!cipher.onlyObscures()) return true;
    const auto hidden = firstHidden(script, cipher);
    if (!hidden) return true;
    const std::string entry = "entry " + std::to_string(*hidden + 1) + ": ";
    if (const auto unreadable = unreadableUserRegistry(processEnvironment())) {
        report(environment, file,
               entry + "its hidden text cannot be enciphered: your identity cannot be read from " +
                   escapeControlCharacters(unreadable->native()));
        return false;
    }
    report(environment, file,
           "note: " + entry +
               "its hidden text is only obscured, for you have no user identity: whoever has the "
               "script can read it");
    return true;
}

// Gives the script, or reports why there is none.
std::optional<ScriptOfJson> readSource(Environment& environment, const std::string& file,
                                       const FileContent& content) {
    if (content.size > maxJsonSize) {
        report(environment, file, withOffset("too long for the JSON form", maxJsonSize));
        return std::nullopt;
    }
    const UserCipher user(environment);
    std::optional<EntryNames> names;
    const auto keys = [&](HostType hostType) {
        if (!names) names.emplace(environment, NamesFor::JsonForm);
        return names->luFunctions.of(hostType);
    };
    ScriptOfJson made = scriptOfJson(content.bytes(), {user.cipher, keys});
    if (!made.ok()) {
        report(environment, file, made.refusal);
        return std::nullopt;
    }
    if (!reportHiding(environment, file, made.script, user.cipher)) return std::nullopt;
    return made;
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
