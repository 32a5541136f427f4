#include "session/document.h"

#include "scriptfile/entry_codec.h"
#include "scriptfile/script_files.h"
#include "scriptfile/script_writer.h"
#include "session/application_life.h"
#include "session/file_texts.h"
#include "text/path_text.h"
#include "text/text_encoding.h"
#include "text/text_ids.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace quendra {

namespace {

namespace fs = std::filesystem;

Message fileError(ApplicationState& state, StringId text, StringId title, const fs::path& path,
                  const std::string& reason) {
    std::string shown = libraryText(state.language, text, {pathText(path)});
    if (!reason.empty()) shown += "\n\n" + reason;
    return {shown, libraryText(state.language, title), MessageIcon::Exclamation, MessageButtons::Ok,
            false};
}

// A folder can be opened and a damaged disk may fail later: what failed is then the reading.
bool failedWhileReading(const FileFailure& failure) {
    return failure.code == EISDIR || failure.code == EIO;
}

// A full or failing disk stops the writing; everything else stops the file from being created.
bool failedWhileWriting(const FileFailure& failure) {
    return failure.code == ENOSPC || failure.code == EDQUOT || failure.code == EIO ||
           failure.code == EFBIG;
}

std::optional<Message> openRefusal(ApplicationState& state, const fs::path& path,
                                   const LoadedScript& loaded) {
    if (loaded.failure) {
        const StringId text = failedWhileReading(*loaded.failure) ? textid::scriptCannotBeRead
                                                                  : textid::scriptCannotBeOpened;
        return fileError(state, text, textid::openScriptErrorTitle, path,
                         failureText(state.language, *loaded.failure));
    }
    if (loaded.read.refusal == ReadRefusal::TooShort) {
        return fileError(state, textid::scriptCannotBeRead, textid::openScriptErrorTitle, path, {});
    }
    if (loaded.read.refusal)
        return fileError(state, textid::scriptOfUnknownVersion, textid::openScriptErrorTitle, path,
                         {});
    return std::nullopt;
}

StringId stopTextId(ReadStop stop) {
    switch (stop) {
        case ReadStop::None: break;
        case ReadStop::EndInsideRecord: return textid::fileEndsInsideEntry;
        case ReadStop::UnknownCode: return textid::fileHasUnknownCommand;
        case ReadStop::PromptTooLong: return textid::fileHasTooLongPrompt;
        case ReadStop::NestedTooDeep: return textid::fileHasTooDeepActions;
        case ReadStop::TooManyEntries: return textid::fileHasTooManyEntries;
        case ReadStop::FileTooLong: return textid::fileIsTooLong;
    }
    return 0;
}

std::string stopText(ApplicationState& state, const ReadResult& read) {
    return libraryText(state.language, stopTextId(read.stop),
                       {entryCountText(state.language, read.script.entryCount()),
                        std::to_string(read.stopOffset)});
}

// What there is to tell about a loaded file; empty for an ordinary one. `unsaved` is the name of a
// copy with changes that were not saved, empty for none.
std::string loadNote(ApplicationState& state, const fs::path& path, const ReadResult& read,
                     const std::optional<ReplaceResult>& upgrade, const fs::path& unsaved) {
    std::string remarks;
    const auto add = [&](StringId id, const std::string& what) {
        remarks += "; " + libraryText(state.language, id, {what});
    };
    if (upgrade && upgrade->failure)
        add(textid::conversionFailed, failureText(state.language, *upgrade->failure));
    if (upgrade && !upgrade->backup.empty())
        add(upgrade->failure ? textid::oldFileKept : textid::convertedKeeping,
            keptName(path, upgrade->backup));
    if (upgrade && upgrade->unsynced) add(textid::convertedUnsynced, upgrade->unsynced->message);
    if (!unsaved.empty()) add(textid::unsavedChangesKept, pathText(unsaved));
    if (!read.isWhole()) return stopText(state, read) + remarks;
    if (remarks.empty()) return {};
    return entryCountText(state.language, read.script.entryCount()) + remarks;
}

// Where changes go that were not saved: "login (unsaved).qds", "login (unsaved 2).qds", ... A name
// that is too long for that is cut at a whole character.
fs::path unsavedName(const fs::path& script, int number) {
    constexpr std::size_t longestName = 255;
    const std::string mark = number == 1 ? "" : " " + std::to_string(number);
    const std::string ending = " (unsaved" + mark + ").qds";
    std::string stem = script.stem();
    std::size_t length = std::min(stem.size(), longestName - ending.size());
    while (length < stem.size() && (static_cast<unsigned char>(stem[length]) & 0xC0) == 0x80)
        --length;
    stem.resize(length);
    return script.parent_path() / (stem + ending);
}

// The name of the latest such copy that is newer than the script itself; empty for none.
fs::path newerUnsavedCopy(const fs::path& script) {
    std::error_code error;
    const auto saved = fs::last_write_time(script, error);
    fs::path newest;
    for (int number = 1; !error; ++number) {
        const fs::path copy = unsavedName(script, number);
        const auto kept = fs::last_write_time(copy, error);
        if (!error && kept > saved) newest = copy.filename();
    }
    return newest;
}

// The document takes over what was loaded. From here on nothing can fail.
void takeOver(ApplicationState& state, const fs::path& path, LoadedScript loaded,
              const std::optional<ReplaceResult>& upgrade) {
    const bool upgraded = upgrade && !upgrade->failure;
    ScriptDocument document;
    document.fileName = path;
    document.stamp = upgraded ? upgrade->stamp : loaded.stamp;
    document.keepOldOnSave = !loaded.read.isWhole() || (loaded.read.isOlderVersion() && !upgraded);
    document.saved = loaded.read.script;
    document.savedHostType = loaded.read.signature.hostType;
    state.document = std::move(document);
    state.history.clear();
    state.jumps.clear();
    state.currentHostType = loaded.read.signature.hostType;
    state.script = std::move(loaded.read.script);
    state.currentIndex = state.script.entryCount() == 0 ? -1 : 0;
    state.dropPending = false;
}

// A folder or a device, or a path that names nothing in its folder: no script can be saved there.
bool isNoFile(const fs::path& path) {
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    return !path.has_filename() || (fs::exists(status) && !fs::is_regular_file(status));
}

bool isYetToBeMade(const fs::path& path) {
    std::error_code ignored;
    return fs::status(path, ignored).type() == fs::file_type::not_found &&
           fs::is_directory(path.parent_path(), ignored);
}

bool isOwnFile(const ScriptDocument& document, const fs::path& path) {
    if (document.fileName.empty()) return false;
    std::error_code ignored;
    return path == document.fileName || fs::equivalent(path, document.fileName, ignored);
}

bool changedOnDisk(const ScriptDocument& document, const fs::path& path) {
    if (!isOwnFile(document, path)) return false;
    const auto now = fileStamp(path);
    return now && now != document.stamp;
}

std::string shortEntryLine(const ApplicationState& state, std::size_t index) {
    constexpr std::size_t longest = 72;
    const ScriptEntry entry = unpackEntry(state.script.entries[index], state.cipher);
    return std::to_string(index + 1) + ":  " +
           shortened(escapeControlCharacters(formatEntryLine(entry, state.displayNames())),
                     longest);
}

Message replaceQuestion(ApplicationState& state, StringId text, const fs::path& path) {
    return {libraryText(state.language, text, {pathText(path)}),
            libraryText(state.language, textid::saveScriptErrorTitle), MessageIcon::Question,
            MessageButtons::YesNo, true};
}

Message lossQuestion(ApplicationState& state, const std::vector<std::size_t>& entries) {
    constexpr std::size_t shown = 10;
    std::string lines;
    for (std::size_t i = 0; i < std::min(entries.size(), shown); ++i) {
        lines += shortEntryLine(state, entries[i]) + "\n";
    }
    if (entries.size() > shown) lines += "...\n";
    const std::string text = libraryText(state.language, textid::lossInVtQuestion, {lines});
    return {text, libraryText(state.language, textid::saveScriptErrorTitle), MessageIcon::Question,
            MessageButtons::YesNo, true};
}

// What is shown after a save is what opening the file would show.
bool takeWhatWasStored(ApplicationState& state, const EntrySelection& selection) {
    if (unstorableEntries(state.script, state.currentHostType).empty()) return false;
    const ScriptView before = {state.script, selection};
    state.script = readScript(writeScript(state.script, state.currentHostType)).script;
    state.history.record(before, {state.script, selection},
                         libraryText(state.language, textid::saveAsVtStep));
    return true;
}

}  // namespace

std::string documentTitle(const ScriptDocument& document) {
    return "Quendra Script Editor  -  " +
           (document.fileName.empty() ? "Untitled" : pathText(document.fileName)) +
           (document.modified ? " *" : "");
}

std::string entryCountText(LanguageLibrary& language, std::size_t count) {
    if (count == 0) return libraryText(language, textid::noEntriesCount);
    if (count == 1) return libraryText(language, textid::oneEntryCount);
    return libraryText(language, textid::entriesCount, {std::to_string(count)});
}

Message savePrompt(ApplicationState& state, DiscardingCommand command) {
    const fs::path& fileName = state.document.fileName;
    return {
        fileName.empty()
            ? libraryText(state.language, textid::saveUntitledScriptQuestion)
            : libraryText(state.language, textid::saveNamedScriptQuestion, {pathText(fileName)}),
        libraryText(state.language, command == DiscardingCommand::Exit ? textid::exitTitle
                                                                       : textid::saveChangesTitle),
        MessageIcon::Question, MessageButtons::YesNoCancel, false};
}

void newDocument(ApplicationState& state) {
    state.script = {};
    state.document = {};
    state.history.clear();
    state.jumps.clear();
    state.currentIndex = -1;
    state.dropPending = false;
}

OpenOutcome openDocument(ApplicationState& state, const fs::path& path) {
    LoadedScript loaded = loadScriptFile(path);
    if (auto refusal = openRefusal(state, path, loaded)) return {false, std::move(refusal), {}};
    // Asked before the upgrade, which makes the script itself the newer one.
    const fs::path unsaved = newerUnsavedCopy(path);
    const auto upgrade = upgradeScriptFile(path, loaded);
    if (upgrade && !upgrade->failure) backupSavedScript(state.settings, path);
    std::string note = loadNote(state, path, loaded.read, upgrade, unsaved);
    takeOver(state, path, std::move(loaded), upgrade);
    return {true, std::nullopt, std::move(note)};
}

OpenOutcome openDocumentAtStart(ApplicationState& state, const fs::path& path) {
    OpenOutcome outcome = openDocument(state, path);
    if (outcome.opened || isNoFile(path)) return outcome;
    state.document.fileName = path;
    state.document.stamp = fileStamp(path);
    state.document.refused = state.document.keepOldOnSave = state.document.stamp.has_value();
    if (!readRegularFile(path, 1).failure) return outcome;
    // It cannot be opened at all: no box, but it is not passed over unseen.
    outcome.note =
        isYetToBeMade(path)
            ? libraryText(state.language, textid::scriptIsNotThereYet, {pathText(path.filename())})
            : outcome.refusal->text.substr(0, outcome.refusal->text.find('\n'));
    outcome.refusal.reset();
    return outcome;
}

OtherScript readOtherScript(ApplicationState& state, const fs::path& path) {
    LoadedScript loaded = loadScriptFile(path);
    if (auto refusal = openRefusal(state, path, loaded)) return {{}, {}, std::move(refusal), {}};
    std::string note = loadNote(state, path, loaded.read, std::nullopt, {});
    return {std::move(loaded.read.script), loaded.read.signature.hostType, std::nullopt,
            std::move(note)};
}

OpenOutcome openExample(ApplicationState& state, const fs::path& path) {
    OtherScript example = readOtherScript(state, path);
    if (example.refusal) return {false, std::move(example.refusal), {}};
    newDocument(state);
    state.currentHostType = example.hostType;
    state.script = state.document.saved = std::move(example.script);
    state.document.savedHostType = example.hostType;
    state.currentIndex = state.script.entryCount() == 0 ? -1 : 0;
    return {true, std::nullopt,
            libraryText(state.language, textid::exampleOpened, {pathText(path.filename())})};
}

Message reloadQuestion(ApplicationState& state) {
    return {
        libraryText(state.language, textid::reloadDiscards, {pathText(state.document.fileName)}),
        state.language.loadText(textid::reloadToolTip), MessageIcon::Question,
        MessageButtons::YesNo, true};
}

ComparedScripts readComparedScripts(ApplicationState& state, const fs::path& left,
                                    const fs::path& right) {
    const bool isLeftNothing = holdsNothing(left);
    const bool isRightNothing = holdsNothing(right);
    ComparedScripts read;
    if (!isLeftNothing) read.left = readOtherScript(state, left);
    if (!isRightNothing) read.right = readOtherScript(state, right);
    if (isLeftNothing) read.left.hostType = read.right.hostType;
    if (isRightNothing) read.right.hostType = read.left.hostType;
    return read;
}

std::vector<Message> questionsBeforeSave(ApplicationState& state, const fs::path& path) {
    std::vector<Message> questions;
    if (state.document.refused && isOwnFile(state.document, path)) {
        questions.push_back(replaceQuestion(state, textid::replaceRefusedFileQuestion, path));
    } else if (changedOnDisk(state.document, path)) {
        questions.push_back(replaceQuestion(state, textid::replaceChangedFileQuestion, path));
    }
    const auto unstorable = unstorableEntries(state.script, state.currentHostType);
    if (!unstorable.empty()) questions.push_back(lossQuestion(state, unstorable));
    return questions;
}

SaveOutcome saveDocument(ApplicationState& state, const fs::path& path,
                         const EntrySelection& selection) {
    const bool keepOld = !isOwnFile(state.document, path) || state.document.keepOldOnSave ||
                         changedOnDisk(state.document, path);
    Script script = encipheredAnew(state.script, state.cipher);
    const ReplaceResult result = saveScriptFile(path, script, state.currentHostType,
                                                keepOld ? OldFile::KeepAsBackup : OldFile::Drop);
    if (result.failure) {
        const StringId text = failedWhileWriting(*result.failure) ? textid::scriptCannotBeWritten
                                                                  : textid::scriptCannotBeCreated;
        return {false,
                fileError(state, text, textid::saveScriptErrorTitle, path,
                          failureText(state.language, result)),
                {}};
    }
    state.script = std::move(script);
    SaveOutcome outcome = {true, std::nullopt, {}, takeWhatWasStored(state, selection)};
    state.document = {path, false, result.stamp, false, false, state.script, state.currentHostType};
    backupSavedScript(state.settings, path);
    outcome.note = savedNote(state.language, path, result);
    return outcome;
}

std::optional<fs::path> keepUnsavedScript(const ApplicationState& state) {
    if (!state.document.modified || state.script.entryCount() == 0) return std::nullopt;
    // A VT file cannot store every entry; there is nobody to ask, and the others can.
    const bool storable = unstorableEntries(state.script, state.currentHostType).empty();
    const HostType hostType = storable ? state.currentHostType : HostType::Mainframe;
    const fs::path& own = state.document.fileName;
    const fs::path script = own.empty() ? state.settings.scriptsDir / "Untitled.qds" : own;
    const Script unsaved = encipheredAnew(state.script, state.cipher);
    for (const fs::path& folder : {script.parent_path(), state.settings.scriptsDir}) {
        std::error_code ignored;
        int number = 1;
        const fs::path name = folder / script.filename();
        while (fs::exists(fs::symlink_status(unsavedName(name, number), ignored)))
            ++number;
        fs::path copy = unsavedName(name, number);
        // Nobody else has been allowed to read it.
        const auto result =
            saveScriptFile(copy, unsaved, hostType, OldFile::KeepAsBackup, NewFile::OwnerOnly);
        if (!result.failure) return copy;
    }
    return std::nullopt;
}

}  // namespace quendra
