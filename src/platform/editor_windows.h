// The windows of other editor processes: who shows a script, and bringing that window to the front.
//
// Every editor listens on a local socket in a folder that only its user can enter. A second editor
// asks them all at once and waits for a bounded time, so that one that hangs costs a second and no
// more. The listening side never waits at all.
#pragma once

#include "platform/descriptor.h"
#include "platform/environment.h"
#include "platform/files.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// What an editor says of its own window. Both functions are called from serve().
struct EditorWindow {
    /// The class of the window; it answers to every part of it.
    std::string className;
    /// The file that the window shows now, empty for none; a relative path counts from the current
    /// directory.
    std::function<std::filesystem::path()> shownScript;
    /// Restores the window and brings it to the front; the argument is the token of whoever asks.
    std::function<void(const std::string&)> raise;
};

/// Whether two paths name the same file: links, "." and ".." followed as far as the file exists.
[[nodiscard]] bool sameScript(const std::filesystem::path& left,
                              const std::filesystem::path& right);

/// The folder of the sockets, made if need be: "quendra-script-editor" in $XDG_RUNTIME_DIR; where
/// that is not set, not the user's own or too long for a socket's address (107 bytes),
/// "quendra-script-editor-UID" in `fallbackParent`. None when neither can be made so that only this
/// user enters it; editors then do not know of each other.
[[nodiscard]] std::optional<std::filesystem::path> editorSocketFolder(
    const Environment& environment, const std::filesystem::path& fallbackParent = "/tmp");

/// Has one editor whose class contains `className` and whose window shows `script` bring that
/// window to the front. False when none does. Sockets that killed editors left behind are removed.
/// Takes at most two seconds whatever the others do, and no time to speak of when all are well.
/// `activationToken` is handed to that editor. The one that listens at `self` is not asked: whoever
/// asks cannot answer at the same time.
[[nodiscard]] bool raiseEditorShowing(const std::filesystem::path& folder,
                                      const std::filesystem::path& script,
                                      std::string_view className,
                                      std::string_view activationToken = {},
                                      const std::filesystem::path& self = {});

/// What the desktop gave this process for the window that it is to bring to the front, as
/// XDG_ACTIVATION_TOKEN or DESKTOP_STARTUP_ID; empty when it gave nothing.
[[nodiscard]] std::string activationToken(const Environment& environment);

/// Answers the questions of other editors about this one's window.
class EditorListener {
  public:
    /// Listens in `folder`; `failure` then says why it does not.
    EditorListener(const std::filesystem::path& folder, EditorWindow window);
    /// Removes the socket.
    ~EditorListener();
    EditorListener(const EditorListener&) = delete;
    EditorListener& operator=(const EditorListener&) = delete;

    [[nodiscard]] const std::optional<FileFailure>& failure() const { return failure_; }
    /// Readable whenever serve() has something to do; -1 after a failure. Stays the listener's.
    [[nodiscard]] int descriptor() const { return events_.get(); }
    /// raiseEditorShowing for an editor that listens itself.
    [[nodiscard]] bool raiseOther(const std::filesystem::path& script) const;
    /// Does what can be done without waiting, and a bounded amount of it.
    void serve();

  private:
    bool listen(const std::filesystem::path& folder);
    bool watch(int descriptor);
    void accept();
    void answer(int descriptor);
    [[nodiscard]] bool isAskedFor(std::string_view className, std::string_view script) const;
    void drop(int descriptor);

    EditorWindow window_;
    std::filesystem::path address_;
    Descriptor events_;
    Descriptor socket_;
    /// Oldest first.
    std::vector<Descriptor> connections_;
    std::optional<FileFailure> failure_;
};

/// What a starting editor learns: another one shows its script and has been raised, or it listens
/// itself. Neither when no folder for the sockets can be had; the editor then starts all the same.
struct EditorAdmission {
    bool raisedOther = false;
    std::unique_ptr<EditorListener> listener;
};

/// raiseEditorShowing, and where that is false a listener for `window`, with other starting editors
/// kept waiting meanwhile: two that start at the same time for the same script would otherwise miss
/// each other. An empty `script` asks nobody. The window's functions must be fit to be called as
/// soon as serve() is.
[[nodiscard]] EditorAdmission admitEditor(const std::optional<std::filesystem::path>& folder,
                                          const std::filesystem::path& script, EditorWindow window,
                                          std::string_view activationToken = {});

}  // namespace quendra
