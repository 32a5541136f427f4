// New, Open, Save and Save As without a window: nothing that was read or made is lost.
#include "session/document.h"
#include "session/file_texts.h"
#include "support/editor_fixture.h"
#include "support/full_disk.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <sys/stat.h>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

class DocumentTest : public ::testing::Test {
  protected:
    fs::path file(const std::string& name, const Bytes& bytes) {
        writeBytes(editor.folder / name, bytes);
        return editor.folder / name;
    }
    fs::path openedFile(const std::string& name, const Bytes& bytes) {
        const fs::path path = file(name, bytes);
        EXPECT_TRUE(openDocument(state, path).opened);
        return path;
    }
    void save(const fs::path& path) { ASSERT_TRUE(saveDocument(state, path).saved); }
    Bytes backupOf(const fs::path& path) { return readBytes(path.string() + ".bak"); }
    std::size_t filesInFolder() {
        return static_cast<std::size_t>(
            std::count_if(fs::directory_iterator(editor.folder.path()), fs::directory_iterator(),
                          [](const auto& entry) { return entry.is_regular_file(); }));
    }
    static void expectIn(const std::string& text, const std::string& part) {
        EXPECT_NE(text.find(part), std::string::npos) << text;
    }

    EditorState editor;
    ApplicationState& state = editor.state;
};

TEST_F(DocumentTest, RefusedFilesLeaveEverythingAsItWas) {
    const fs::path before = openedFile("good.qds", commentFile(3));
    state.document.modified = true;
    const std::pair<fs::path, const char*> rows[] = {
        {file("short.qds", bytesOf("QDMDSCR")), "too short to be a script file"},
        {file("unknown.qds", bytesOf("QDMDSCR1")), "is not a script file"},
        {file("version that UTS never had.qds", bytesOf("QDUDSCR7")), "is not a script file"},
        {editor.folder / "missing.qds", "cannot be opened"},
        {editor.folder.path(), "cannot be read"},
        {editor.folder / "pipe.qds", "no regular file"},
    };
    ASSERT_EQ(mkfifo(rows[5].first.c_str(), 0600), 0);
    for (const auto& [path, reason] : rows) {
        SCOPED_TRACE(path);
        const OpenOutcome outcome = openDocument(state, path);
        EXPECT_FALSE(outcome.opened);
        ASSERT_TRUE(outcome.refusal);
        expectIn(outcome.refusal->text, reason);
        expectIn(outcome.refusal->text, path.string());
        EXPECT_EQ(state.script.entryCount(), 3U);
        EXPECT_EQ(state.document.fileName, before);
        EXPECT_TRUE(state.document.modified);
    }
}

TEST_F(DocumentTest, OlderFilesAreConvertedOnceAndKept) {
    state.settings.backupDir = editor.folder / "backup";
    fs::create_directories(editor.folder / "backup/Scripts");
    for (const Case& frozen : frozenCases()) {
        if (frozen.version == '=' || !frozen.name.starts_with("kinds")) continue;
        SCOPED_TRACE(frozen.name);
        const fs::path path = file(frozen.name, frozen.file);
        expectIn(openDocument(state, path).note, frozen.name + ".bak");
        EXPECT_EQ(readBytes(path), frozen.expected);
        EXPECT_EQ(backupOf(path), frozen.file);
        EXPECT_EQ(readBytes(editor.folder / "backup/Scripts" / frozen.name), frozen.expected);
        EXPECT_TRUE(questionsBeforeSave(state, path).empty()) << "our own writing is no change";
        save(path);
        EXPECT_EQ(readBytes(path), frozen.expected);
        EXPECT_FALSE(fs::exists(path.string() + ".bak2"));
    }
    EXPECT_GT(filesInFolder(), 60U);
}

TEST_F(DocumentTest, OlderFileThatCannotBeWrittenIsLoadedAndKeptByTheFirstSave) {
    const Bytes old = scriptFile("QDMDSCR5", {commentRecord("1")});
    const fs::path path = file("old.qds", old);
    {
        const FullDisk full;
        expectIn(openDocument(state, path).note, "older version");
    }
    EXPECT_EQ(readBytes(path), old);
    EXPECT_EQ(filesInFolder(), 1U);
    EXPECT_TRUE(questionsBeforeSave(state, path).empty());
    save(path);
    EXPECT_EQ(readBytes(path), commentFile(1));
    EXPECT_EQ(backupOf(path), old);
}

TEST_F(DocumentTest, FilesThatAreNotWholeAreToldOfAndKeptByTheFirstSaveOnly) {
    Bytes nested = bytesOf("QDMDSCR=");
    for (int depth = 0; depth < 1000; ++depth)
        nested.insert(nested.end(), {9, 0, 0, 0, 0});
    const std::pair<Bytes, const char*> rows[] = {
        {scriptFile("QDMDSCR5", {commentRecord("a"), Bytes{6, 9}}), "1 entry loaded: the file end"},
        {scriptFile("QDMDSCR=", {Bytes{99}}), "No entries loaded: unknown command code (byte 8)"},
        {scriptFile("QDMDSCR=", {Bytes{8, 0}, word(0xFFFF)}),
         "No entries loaded: an Input prompt is longer than 1023 characters (byte 10)"},
        {commentFile(4097), "4096 entries loaded: the file has more than 4096 entries (byte "},
        {nested, "No entries loaded: actions are nested too deep (byte "},
    };
    for (const auto& [bytes, note] : rows) {
        SCOPED_TRACE(note);
        const fs::path path = file("a.qds", bytes);
        fs::remove(path.string() + ".bak");
        const OpenOutcome outcome = openDocument(state, path);
        EXPECT_TRUE(outcome.note.starts_with(note)) << outcome.note;
        EXPECT_FALSE(outcome.refusal) << "no box";
        EXPECT_EQ(readBytes(path), bytes) << "opening never rewrites it";
        save(path);
        EXPECT_EQ(backupOf(path), bytes);
        save(path);
        EXPECT_EQ(filesInFolder(), 2U);
    }
}

TEST_F(DocumentTest, ChangesAtTheEndOfTheSessionAreKeptBesideTheScriptAndToldOf) {
    const Bytes other = bytesOf("other");
    file("b (unsaved).qds", other);
    // Of 255 bytes, an "ä" across the cut.
    const std::string longest = std::string(240, 'n') + "\u00e4" + std::string(9, 'n') + ".qds";
    const std::string cut = std::string(240, 'n') + " (unsaved).qds";
    const std::tuple<std::string, HostType, std::uint32_t, std::string> rows[] = {
        {"a.qds", HostType::Mainframe, 213, "a (unsaved).qds"},
        {longest, HostType::Mainframe, 201, cut},
        {"b.qds", HostType::UTS, 201, "b (unsaved 2).qds"},
        {"what VT cannot store", HostType::VT, 213, "what VT cannot store (unsaved).qds"},
        {"gone/c.qds", HostType::UTS, 201, "c (unsaved).qds"},
        {"", HostType::Mainframe, 201, "Untitled (unsaved).qds"}};
    for (const auto& [name, hostType, menuCommand, kept] : rows) {
        SCOPED_TRACE(name);
        openedFile("source", scriptFile("QDMDSCR=", {menuRecord(menuCommand)}));
        state.document.fileName = name.empty() ? fs::path() : editor.folder / name;
        state.currentHostType = hostType;
        EXPECT_EQ(keepUnsavedScript(state), std::nullopt) << "nothing has changed";
        state.document.modified = true;
        EXPECT_EQ(keepUnsavedScript(state), editor.folder / kept);
        EXPECT_EQ(fs::status(editor.folder / kept).permissions(), fs::perms(0600));
        EXPECT_FALSE(fs::exists(state.document.fileName)) << "the script itself is not written";
        EXPECT_TRUE(state.document.modified);
        const Script before = state.script;
        ASSERT_TRUE(openDocument(state, editor.folder / kept).opened);
        EXPECT_EQ(state.script, before);
    }
    EXPECT_EQ(readBytes(editor.folder / "b (unsaved).qds"), other);
    const fs::path path = file("a.qds", commentFile(2));
    const auto kept = fs::last_write_time(editor.folder / "a (unsaved).qds");
    fs::last_write_time(path, kept - std::chrono::seconds(1));
    EXPECT_EQ(openDocument(state, path).note,
              "2 entries; changes that were not saved are kept as a (unsaved).qds");
    fs::last_write_time(path, kept + std::chrono::seconds(1));
    EXPECT_EQ(openDocument(state, path).note, "") << "the script has been saved since";
}

TEST_F(DocumentTest, OwnFileIsKnownByItsOtherNamesWrittenAgainWhenItVanishedAndCopied) {
    state.settings.backupDir = editor.folder / "backup";
    fs::create_directories(editor.folder / "backup/Scripts");
    const fs::path path = openedFile("a.qds", commentFile(2));
    fs::create_symlink(path, editor.folder / "link.qds");
    writeBytes(path, commentFile(4));
    EXPECT_EQ(questionsBeforeSave(state, editor.folder / "link.qds").size(), 1U);
    fs::remove(path);
    EXPECT_TRUE(questionsBeforeSave(state, path).empty());
    save(path);
    EXPECT_EQ(readBytes(path), commentFile(2));
    state.document.modified = true;
    save(path);
    EXPECT_FALSE(state.document.modified);
    EXPECT_FALSE(fs::exists(path.string() + ".bak")) << "the editor wrote it itself";
    EXPECT_EQ(readBytes(editor.folder / "backup/Scripts/a.qds"), commentFile(2));
}

TEST_F(DocumentTest, FailedWriteLeavesDocumentAndDisk) {
    const fs::path path = openedFile("a.qds", commentFile(2));
    state.document.modified = true;
    state.document.keepOldOnSave = true;
    const auto stamp = state.document.stamp;
    ASSERT_EQ(mkfifo((editor.folder / "pipe.qds").c_str(), 0600), 0);
    const std::tuple<fs::path, bool, const char*> rows[] = {
        {editor.folder / "missing" / "b.qds", false, "cannot be created"},
        {editor.folder.path(), false, "cannot be created"},
        {editor.folder / "pipe.qds", false, "no regular file"},
        {path, true, "cannot be written"},
        {editor.folder / "b.qds", true, "cannot be written"}};
    for (const auto& [target, diskIsFull, reason] : rows) {
        SCOPED_TRACE(target);
        std::optional<FullDisk> full;
        if (diskIsFull) full.emplace();
        const SaveOutcome outcome = saveDocument(state, target);
        full.reset();
        EXPECT_FALSE(outcome.saved);
        ASSERT_TRUE(outcome.refusal);
        expectIn(outcome.refusal->text, reason);
        EXPECT_EQ(state.document.fileName, path);
        EXPECT_TRUE(state.document.modified);
        EXPECT_TRUE(state.document.keepOldOnSave);
        EXPECT_EQ(state.document.stamp, stamp);
        EXPECT_EQ(readBytes(path), commentFile(2));
        EXPECT_EQ(filesInFolder(), 1U);
    }
}

TEST_F(DocumentTest, SavesThatAreNotOrdinaryAreToldOf) {
    ReplaceResult beside;
    beside.backup = editor.folder / "a.qds.bak";
    ReplaceResult elsewhere;
    elsewhere.unsynced = FileFailure{1, "No", editor.folder.path()};
    elsewhere.backup = "/k/a.qds.bak";
    ReplaceResult failed;
    failed.failure = FileFailure{1, "No", "/f"};
    failed.backup = "/k/a.qds.bak";
    EXPECT_EQ(savedNote(state.language, editor.folder / "a.qds", {}), "");
    EXPECT_EQ(savedNote(state.language, editor.folder / "a.qds", beside),
              "The old file is kept as a.qds.bak");
    EXPECT_EQ(savedNote(state.language, editor.folder / "a.qds", elsewhere),
              "Saved, but a power cut may undo it: No. The old file is kept as /k/a.qds.bak");
    EXPECT_EQ(
        failureText(state.language, failed),
        "The folder \u201c/f\u201d takes no file: No\n\nThe old file is kept as /k/a.qds.bak");
}

TEST_F(DocumentTest, FileNamedAtStartIsTheDocumentsEvenWhenItIsMissingOrRefused) {
    const fs::path path = editor.folder / "new.qds";
    const OpenOutcome missing = openDocumentAtStart(state, path);
    EXPECT_FALSE(missing.refusal);
    expectIn(missing.note, "“new.qds” is not there yet");
    EXPECT_EQ(state.document.fileName, path);
    expectIn(openDocumentAtStart(state, editor.folder / "no/a.qds").note, "cannot be opened");
    const Bytes letter = bytesOf("no script at all");
    writeBytes(path, letter);
    EXPECT_TRUE(openDocumentAtStart(state, path).refusal);
    EXPECT_EQ(state.document.fileName, path);
    const auto questions = questionsBeforeSave(state, path);
    ASSERT_EQ(questions.size(), 1U);
    expectIn(questions[0].text, "could not be opened as a script");
    EXPECT_TRUE(questionsBeforeSave(state, editor.folder / "other.qds").empty());
    save(path);
    EXPECT_EQ(readBytes(path), bytesOf("QDMDSCR="));
    EXPECT_EQ(backupOf(path), letter);
    EXPECT_TRUE(questionsBeforeSave(state, path).empty());
}

TEST_F(DocumentTest, WhatIsNoFileIsRefusedAtStartAndLeavesAnUntitledScript) {
    for (const fs::path& path : {editor.folder.path(), editor.folder / "new.qds/",
                                 editor.folder / "..", fs::path("/dev/null")}) {
        SCOPED_TRACE(path);
        EXPECT_TRUE(openDocumentAtStart(state, path).refusal);
        EXPECT_TRUE(state.document.fileName.empty());
    }
}

}  // namespace
}  // namespace quendra::test
