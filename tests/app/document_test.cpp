// New, Open, Save and Save As without a window: nothing that was read or made is lost.
#include "app/document.h"

#include "app/editor_fixture.h"
#include "support/full_disk.h"

#include <algorithm>
#include <filesystem>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

class DocumentTest : public ::testing::Test {
  protected:
    fs::path file(const std::string& name, const Bytes& bytes) {
        const fs::path path = editor.folder / name;
        writeBytes(path, bytes);
        return path;
    }
    fs::path openedFile(const std::string& name, const Bytes& bytes) {
        const fs::path path = file(name, bytes);
        EXPECT_TRUE(openDocument(state, path).opened);
        return path;
    }
    std::size_t filesInFolder() {
        return static_cast<std::size_t>(
            std::count_if(fs::directory_iterator(editor.folder.path()), fs::directory_iterator(),
                          [](const auto& entry) { return entry.is_regular_file(); }));
    }

    EditorState editor;
    ApplicationState& state = editor.state;
};

TEST_F(DocumentTest, TitlesFollowFileAndChanges) {
    EXPECT_EQ(documentTitle({}), "Quendra Script Editor  -  Untitled");
    EXPECT_EQ(documentTitle({{}, true, {}, false}), "Quendra Script Editor  -  Untitled *");
    EXPECT_EQ(documentTitle({"/s/a.qds", true, {}, false}), "Quendra Script Editor  -  /s/a.qds *");
}

TEST_F(DocumentTest, CountTextHasItsThreeForms) {
    EXPECT_EQ(entryCountText(state.language, 0), "No entries");
    EXPECT_EQ(entryCountText(state.language, 1), "1 entry");
    EXPECT_EQ(entryCountText(state.language, 4096), "4096 entries");
}

TEST_F(DocumentTest, OpenTakesScriptHostTypeAndName) {
    const Bytes bytes = scriptFile("QDUDSCR=", {commentRecord("a"), commentRecord("b")});
    const fs::path path = openedFile("a.qds", bytes);
    EXPECT_EQ(state.currentHostType, HostType::UTS);
    EXPECT_EQ(state.script.entryCount(), 2U);
    EXPECT_EQ(state.currentIndex, 0);
    EXPECT_EQ(state.document.fileName, path);
    EXPECT_FALSE(state.document.modified);
    EXPECT_EQ(readBytes(path), bytes) << "a current file is not written by opening it";
    EXPECT_EQ(filesInFolder(), 1U);
}

struct Refused {
    const char* name;
    Bytes bytes;
    const char* text;
};

TEST_F(DocumentTest, RefusedFilesLeaveEverythingAsItWas) {
    const fs::path before = openedFile("good.qds", commentFile(3));
    state.document.modified = true;
    const Refused rows[] = {
        {"too short", bytesOf("QDMDSCR"), "too short to be a script file"},
        {"unknown signature", bytesOf("QDMDSCR1"), "is not a script file"},
        {"version that this host type never had", bytesOf("QDUDSCR7"), "is not a script file"},
        {"missing", {}, "cannot be opened"},
        {"folder", {}, "cannot be read"},
    };
    for (const Refused& row : rows) {
        SCOPED_TRACE(row.name);
        const fs::path path = editor.folder / (std::string(row.name) + ".qds");
        if (!row.bytes.empty()) writeBytes(path, row.bytes);
        if (std::string_view(row.name) == "folder") fs::create_directory(path);
        const OpenOutcome outcome = openDocument(state, path);
        EXPECT_FALSE(outcome.opened);
        ASSERT_TRUE(outcome.refusal);
        EXPECT_NE(outcome.refusal->text.find(row.text), std::string::npos) << outcome.refusal->text;
        EXPECT_NE(outcome.refusal->text.find(path.string()), std::string::npos);
        EXPECT_EQ(outcome.refusal->icon, MessageIcon::Exclamation);
        EXPECT_EQ(state.script.entryCount(), 3U);
        EXPECT_EQ(state.currentHostType, HostType::Mainframe);
        EXPECT_EQ(state.document.fileName, before);
        EXPECT_TRUE(state.document.modified);
    }
}

TEST_F(DocumentTest, OlderFilesAreConvertedOnceAndKept) {
    int converted = 0;
    for (const Case& frozen : frozenCases()) {
        if (frozen.version == '=' || frozen.name.find("kinds") != 0) continue;
        SCOPED_TRACE(frozen.name);
        state.cipher = HiddenTextCipher(frozenIdentity());
        const fs::path path = file(frozen.name + ".qds", frozen.file);
        const OpenOutcome outcome = openDocument(state, path);
        ASSERT_TRUE(outcome.opened);
        EXPECT_NE(outcome.note.find(frozen.name + ".qds.bak"), std::string::npos) << outcome.note;
        EXPECT_EQ(readBytes(path), frozen.expected);
        EXPECT_EQ(readBytes(path.string() + ".bak"), frozen.file);
        EXPECT_TRUE(questionsBeforeSave(state, path).empty()) << "our own writing is no change";
        ASSERT_TRUE(saveDocument(state, path).saved);
        EXPECT_EQ(readBytes(path), frozen.expected);
        EXPECT_FALSE(fs::exists(path.string() + ".bak2"));
        ++converted;
    }
    EXPECT_GT(converted, 30);
}

TEST_F(DocumentTest, OlderFileThatCannotBeWrittenIsLoadedAndKeptByTheFirstSave) {
    const auto& cases = frozenCases();
    const auto old = std::find_if(cases.begin(), cases.end(), [](const Case& frozen) {
        return frozen.version == '5' && frozen.entries > 0;
    });
    ASSERT_NE(old, cases.end());
    const fs::path path = file("old.qds", old->file);
    {
        const FullDisk full;
        const OpenOutcome outcome = openDocument(state, path);
        ASSERT_TRUE(outcome.opened);
        EXPECT_NE(outcome.note.find("older version"), std::string::npos) << outcome.note;
    }
    EXPECT_EQ(state.script.entryCount(), old->entries);
    EXPECT_EQ(readBytes(path), old->file);
    EXPECT_EQ(filesInFolder(), 1U);
    EXPECT_TRUE(questionsBeforeSave(state, path).empty());
    ASSERT_TRUE(saveDocument(state, path).saved);
    EXPECT_EQ(readBytes(path), old->expected);
    EXPECT_EQ(readBytes(path.string() + ".bak"), old->file);
}

struct NotWhole {
    const char* name;
    Bytes bytes;
    std::size_t loaded;
    const char* reason;
};

TEST_F(DocumentTest, FilesThatAreNotWholeAreToldOfAndKeptByTheFirstSaveOnly) {
    const NotWhole rows[] = {
        {"cut", scriptFile("QDMDSCR=", {commentRecord("a"), Bytes{6, 9, 'b'}}), 1, "ends inside"},
        {"unknown code", scriptFile("QDMDSCR=", {commentRecord("a"), Bytes{99}}), 1, "unknown"},
        {"older and cut", scriptFile("QDMDSCR5", {commentRecord("a"), Bytes{6, 9}}), 1, "ends"},
        {"too many", commentFile(4097), 4096, "4096"},
    };
    for (const NotWhole& row : rows) {
        SCOPED_TRACE(row.name);
        const fs::path path = file(std::string(row.name) + ".qds", row.bytes);
        const OpenOutcome outcome = openDocument(state, path);
        ASSERT_TRUE(outcome.opened);
        EXPECT_FALSE(outcome.refusal) << "no box";
        EXPECT_EQ(outcome.note.find(entryCountText(state.language, row.loaded)), 0U)
            << outcome.note;
        EXPECT_NE(outcome.note.find(row.reason), std::string::npos) << outcome.note;
        EXPECT_EQ(readBytes(path), row.bytes) << "opening never rewrites it";
        EXPECT_FALSE(fs::exists(path.string() + ".bak"));

        ASSERT_TRUE(saveDocument(state, path).saved);
        EXPECT_EQ(readBytes(path.string() + ".bak"), row.bytes);
        ASSERT_TRUE(saveDocument(state, path).saved);
        EXPECT_FALSE(fs::exists(path.string() + ".bak2"));
    }
}

TEST_F(DocumentTest, ChangedFileIsAskedAboutAndKept) {
    const fs::path path = openedFile("a.qds", commentFile(2));
    const Bytes foreign = commentFile(5);
    writeBytes(path, foreign);
    const auto questions = questionsBeforeSave(state, path);
    ASSERT_EQ(questions.size(), 1U);
    EXPECT_TRUE(questions[0].defaultsToNo);
    EXPECT_NE(questions[0].text.find(path.string()), std::string::npos);
    ASSERT_TRUE(saveDocument(state, path).saved);
    EXPECT_EQ(readBytes(path.string() + ".bak"), foreign);
    EXPECT_TRUE(questionsBeforeSave(state, path).empty());
}

TEST_F(DocumentTest, ChangeIsSeenThroughAnotherNameOfTheFile) {
    const fs::path path = openedFile("a.qds", commentFile(2));
    fs::create_symlink(path, editor.folder / "link.qds");
    writeBytes(path, commentFile(4));
    EXPECT_EQ(questionsBeforeSave(state, editor.folder / "link.qds").size(), 1U);
}

TEST_F(DocumentTest, FileThatVanishedIsSimplyWrittenAgain) {
    const fs::path path = openedFile("a.qds", commentFile(2));
    fs::remove(path);
    EXPECT_TRUE(questionsBeforeSave(state, path).empty());
    ASSERT_TRUE(saveDocument(state, path).saved);
    EXPECT_EQ(readBytes(path), commentFile(2));
}

TEST_F(DocumentTest, SavingOverOwnFileLeavesNoBackup) {
    const fs::path path = openedFile("a.qds", commentFile(2));
    state.document.modified = true;
    ASSERT_TRUE(saveDocument(state, path).saved);
    EXPECT_FALSE(state.document.modified);
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(DocumentTest, SaveAsOverAnotherFileAsksNothingAndKeepsItsBytes) {
    openedFile("a.qds", commentFile(2));
    const Bytes others = bytesOf("somebody's letter");
    const fs::path path = file("b.qds", others);
    EXPECT_TRUE(questionsBeforeSave(state, path).empty());
    const SaveOutcome outcome = saveDocument(state, path);
    ASSERT_TRUE(outcome.saved);
    EXPECT_EQ(readBytes(path.string() + ".bak"), others);
    EXPECT_NE(outcome.note.find("b.qds.bak"), std::string::npos);
    EXPECT_EQ(state.document.fileName, path);
}

TEST_F(DocumentTest, FailedWriteLeavesDocumentAndDisk) {
    const fs::path path = openedFile("a.qds", commentFile(2));
    state.document.modified = true;
    state.document.keepOldOnSave = true;
    const auto stamp = state.document.stamp;
    struct Row {
        const char* name;
        fs::path path;
        bool diskIsFull;
        const char* text;
    };
    const Row rows[] = {
        {"no such folder", editor.folder / "missing" / "b.qds", false, "cannot be created"},
        {"name of a folder", editor.folder.path(), false, "cannot be created"},
        {"full disk", path, true, "cannot be written"},
        {"full disk, new file", editor.folder / "b.qds", true, "cannot be written"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        std::optional<FullDisk> full;
        if (row.diskIsFull) full.emplace();
        const SaveOutcome outcome = saveDocument(state, row.path);
        full.reset();
        EXPECT_FALSE(outcome.saved);
        ASSERT_TRUE(outcome.refusal);
        EXPECT_NE(outcome.refusal->text.find(row.text), std::string::npos) << outcome.refusal->text;
        EXPECT_EQ(state.document.fileName, path);
        EXPECT_TRUE(state.document.modified);
        EXPECT_TRUE(state.document.keepOldOnSave);
        EXPECT_EQ(state.document.stamp, stamp);
        EXPECT_EQ(readBytes(path), commentFile(2));
        EXPECT_EQ(filesInFolder(), 1U);
    }
}

TEST_F(DocumentTest, SavedScriptIsCopiedToTheBackupDirectory) {
    const fs::path path = openedFile("a.qds", commentFile(2));
    state.settings.backupDir = editor.folder / "backup";
    fs::create_directories(state.settings.backupDir / "Scripts");
    ASSERT_TRUE(saveDocument(state, path).saved);
    EXPECT_EQ(readBytes(state.settings.backupDir / "Scripts" / "a.qds"), commentFile(2));
}

TEST_F(DocumentTest, SavingAsVtNamesWhatWouldBeLost) {
    const fs::path path = openedFile(
        "a.qds", scriptFile("QDMDSCR=", {commentRecord("a"), menuRecord(213), menuRecord(201)}));
    EXPECT_TRUE(questionsBeforeSave(state, path).empty());
    state.currentHostType = HostType::VT;
    const auto questions = questionsBeforeSave(state, path);
    ASSERT_EQ(questions.size(), 1U);
    EXPECT_TRUE(questions[0].defaultsToNo);
    EXPECT_NE(questions[0].text.find("2:  " + state.menuCommands.names[12]), std::string::npos)
        << questions[0].text;
    EXPECT_EQ(questions[0].text.find("3:  "), std::string::npos) << questions[0].text;
}

TEST_F(DocumentTest, SwitchedHostTypeIsWhatIsSaved) {
    const fs::path path = openedFile("a.qds", commentFile(1));
    state.currentHostType = HostType::T27;
    ASSERT_TRUE(saveDocument(state, path).saved);
    EXPECT_EQ(readBytes(path), scriptFile("QDTDSCR=", {commentRecord("1")}));
}

TEST_F(DocumentTest, NewKeepsHostTypeAndClipboard) {
    openedFile("a.qds", scriptFile("QD7DSCR=", {commentRecord("a")}));
    state.entryClipboard = state.script.entries;
    state.document.modified = true;
    newDocument(state);
    EXPECT_EQ(state.currentHostType, HostType::ICL);
    EXPECT_EQ(state.entryClipboard.size(), 1U);
    EXPECT_EQ(state.script.entryCount(), 0U);
    EXPECT_EQ(state.currentIndex, -1);
    EXPECT_TRUE(state.document.fileName.empty());
    EXPECT_FALSE(state.document.modified);
}

TEST_F(DocumentTest, MissingFileAtStartGivesItsNameToANewScript) {
    const fs::path path = editor.folder / "new.qds";
    const OpenOutcome outcome = openDocumentAtStart(state, path);
    EXPECT_FALSE(outcome.refusal);
    EXPECT_EQ(state.document.fileName, path);
    ASSERT_TRUE(saveDocument(state, path).saved);
    EXPECT_EQ(readBytes(path), bytesOf("QDMDSCR="));
}

TEST_F(DocumentTest, FileThatAppearsUnderTheNameGivenAtStartIsAskedAbout) {
    const fs::path path = editor.folder / "new.qds";
    EXPECT_FALSE(openDocumentAtStart(state, path).refusal);
    writeBytes(path, commentFile(1));
    EXPECT_EQ(questionsBeforeSave(state, path).size(), 1U);
}

TEST_F(DocumentTest, RefusedFileAtStartIsToldOfAndSurvivesASave) {
    const Bytes letter = bytesOf("no script at all");
    const fs::path path = file("letter.qds", letter);
    const OpenOutcome outcome = openDocumentAtStart(state, path);
    ASSERT_TRUE(outcome.refusal);
    EXPECT_EQ(state.document.fileName, path);
    ASSERT_TRUE(saveDocument(state, path).saved);
    EXPECT_EQ(readBytes(path.string() + ".bak"), letter);
}

}  // namespace
}  // namespace quendra::test
