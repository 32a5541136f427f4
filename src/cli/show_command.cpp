// qds show: the lines of scripts, as the script list of the editor shows them.

#include "analysis/entry_display.h"
#include "cli/qds.h"
#include "forms/full_text.h"
#include "forms/script_json.h"
#include "platform/registry.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_files.h"
#include "text/text_encoding.h"

#include <iomanip>

namespace quendra::cli {

namespace {

struct Show {
    const ShowRequest& request;
    Environment& environment;
    EntryNames names;
    HiddenTextCipher cipher;
};

// JSON has none: what prints one form after another is made for programs.
// No empty line between the files: that would read like one more entry without a command.
void printHeading(const Show& show, const std::string& file) {
    if (show.request.files.size() < 2 || show.request.json) return;
    show.environment.out << "==> " << shownName(file) << " <==\n";
}

void printLines(const Show& show, const ReadResult& read) {
    std::ostream& out = show.environment.out;
    const DisplayNames names = {show.names.luFunctions.of(read.signature.hostType),
                                show.names.menuCommands, show.request.reveal};
    std::size_t number = 0;
    forEachEntry(read.script, show.cipher, [&](const ScriptEntry& entry) {
        if (show.request.numbers) out << std::setw(6) << ++number << '\t';
        out << escapeControlCharacters(formatEntryLine(entry, names)) << '\n';
    });
}

void printForm(const Show& show, const ReadResult& read) {
    const HostType hostType = read.signature.hostType;
    const JsonPrinting printing = {show.names.luFunctions.of(hostType), show.names.menuCommands,
                                   show.cipher, show.request.reveal, whyIncomplete(read)};
    printScript(show.environment.out, read.script, hostType, printing);
    show.environment.out << '\n';
}

// A file that is not whole says so in the form: a failing command would end what compares with it.
void printFull(const Show& show, const ReadResult& read) {
    const HostType hostType = read.signature.hostType;
    const DisplayNames names = {show.names.luFunctions.of(hostType), show.names.menuCommands};
    printFullText(show.environment.out, read.script, hostType, names, show.cipher);
    if (!read.isWhole()) {
        show.environment.out << "(incomplete: " << describe(read.stop) << ")\n";
    }
}

bool showFile(const Show& show, const std::string& file) {
    const auto source = readScriptInput(show.environment, file);
    if (!source) return false;
    printHeading(show, file);
    if (show.request.full) {
        printFull(show, source->read);
        return true;
    }
    if (show.request.json) {
        printForm(show, source->read);
    } else {
        printLines(show, source->read);
    }
    // What was read stands above the message also where both go to the same screen.
    show.environment.out.flush();
    return reportReading(show.environment, file, source->read);
}

}  // namespace

int showScripts(const ShowRequest& request, Environment& environment) {
    const NamesFor reader = request.json ? NamesFor::JsonForm : NamesFor::User;
    const Show show = {request, environment, EntryNames(environment, reader),
                       HiddenTextCipher(userIdentity())};
    bool isWell = show.names.isLoaded;
    for (const std::string& file : request.files) {
        if (!showFile(show, file)) isWell = false;
        if (!environment.out) break;
    }
    return isWell ? statusWell : statusRefused;
}

}  // namespace quendra::cli
