// What New, Open, Save and Save As do to the document, without a window: each changes the state and
// gives what there is to show. What was read from a file is never lost by saving it, and a failure
// leaves everything as it was.
#pragma once

#include "platform/message.h"
#include "session/application_state.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quendra {

/// The window title: the file's path or "Untitled", and " *" while there are unsaved changes.
[[nodiscard]] std::string documentTitle(const ScriptDocument& document);

/// "No entries", "1 entry", "12 entries" in the user's language.
[[nodiscard]] std::string entryCountText(LanguageLibrary& language, std::size_t count);

/// Which command would discard the changes.
enum class DiscardingCommand : std::uint8_t { NewOrOpen, Exit };
/// The question whether to save the changes first.
[[nodiscard]] Message savePrompt(ApplicationState& state, DiscardingCommand command);

/// Empties the script and starts an untitled document. Host type and clipboard stay.
void newDocument(ApplicationState& state);

struct OpenOutcome {
    /// False: the file was refused, and script, host type and document are as they were.
    bool opened = false;
    std::optional<Message> refusal;
    /// For the status bar in place of the entry count; empty when there is nothing to tell.
    std::string note;
};

/// Loads a script file and makes its host type the current one. An older file is rewritten in the
/// current version at once, the old bytes kept beside it, and copied into the backup directory like
/// every saved script; one that was not read whole is never rewritten here.
[[nodiscard]] OpenOutcome openDocument(ApplicationState& state, const std::filesystem::path& path);

/// The same for the file named on the command line, which becomes the document's file even when it
/// was not read, so that a new script can be started by its name: without a message when it cannot
/// be opened. The first save asks before it replaces what is there, and keeps it. What is no file,
/// a folder above all, is refused as by Open.
[[nodiscard]] OpenOutcome openDocumentAtStart(ApplicationState& state,
                                              const std::filesystem::path& path);

/// Begins an untitled script with what an example holds, unmodified, since nothing of it is the
/// user's.
[[nodiscard]] OpenOutcome openExample(ApplicationState& state, const std::filesystem::path& path);

/// The question whether to give the changes up and read the file again.
[[nodiscard]] Message reloadQuestion(ApplicationState& state);

/// The entries of a script file that is not opened for it.
struct OtherScript {
    Script script;
    HostType hostType = HostType::Mainframe;
    /// The file was refused, and there are no entries.
    std::optional<Message> refusal;
    /// For the status bar; empty when there is nothing to tell.
    std::string note;
};

/// Reads a script file of any version, and leaves file and document as they are.
[[nodiscard]] OtherScript readOtherScript(ApplicationState& state,
                                          const std::filesystem::path& path);

/// The two files of a comparison, either of which may be refused. The null device and a file
/// without bytes stand for a script that there is not on that side: empty, of the other's host
/// type.
struct ComparedScripts {
    OtherScript left;
    OtherScript right;
};
[[nodiscard]] ComparedScripts readComparedScripts(ApplicationState& state,
                                                  const std::filesystem::path& left,
                                                  const std::filesystem::path& right);

/// What has to be answered with Yes, in this order, before the script may be saved at `path`: the
/// file was refused when the editor started, or has changed on disk since it was loaded; the host
/// type cannot store some entries.
[[nodiscard]] std::vector<Message> questionsBeforeSave(ApplicationState& state,
                                                       const std::filesystem::path& path);

struct SaveOutcome {
    /// False: nothing was written, and the document is as it was.
    bool saved = false;
    std::optional<Message> refusal;
    std::string note;
    /// The script has become what the file holds: the host type could not store all of it.
    bool scriptChanged = false;
};

/// Writes the script to `path`, which becomes the document's file. Bytes that nobody has agreed to
/// lose (another file's, or those that the editor could not read whole) stay beside it as a backup.
/// Where the host type cannot store all of the script, it becomes what was stored, which can be
/// undone; `selection` is shown then, as it was.
[[nodiscard]] SaveOutcome saveDocument(ApplicationState& state, const std::filesystem::path& path,
                                       const EntrySelection& selection = {});

/// Keeps the changes of a script that is going without having been saved, when the desktop's
/// session ends or an untitled one was to be saved and got no name: a copy "NAME (unsaved).qds"
/// beside the script, or in the scripts folder for an untitled one and where that fails. Opening
/// the script tells of it. Gives the copy; none when there is nothing to keep or no place for it.
/// Script, document and their file stay as they are.
[[nodiscard]] std::optional<std::filesystem::path> keepUnsavedScript(const ApplicationState& state);

}  // namespace quendra
