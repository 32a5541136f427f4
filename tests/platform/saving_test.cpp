// Saving where something stands in the way: calls that fail, other people's files and folders,
// saves that were killed. Nobody gains or loses a right, and old bytes are never lost.
#include "platform/failing_calls.h"
#include "platform/files.h"
#include "support/fixtures.h"
#include "support/other_user.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* listName = "system.posix_acl_access";

struct AclEntry {
    std::uint8_t kind;
    std::uint8_t rights;
    std::uint32_t id = 0xFFFFFFFF;
};

Bytes acl(std::initializer_list<AclEntry> entries) {
    Bytes bytes = word(2);
    for (const AclEntry& entry : entries)
        bytes = joined({bytes, {entry.kind, 0, entry.rights, 0}, word(entry.id)});
    return bytes;
}

// The owner, the user 1001, the owning group, the mask and others.
Bytes listFor1001(std::uint8_t group) {
    return acl({{1, 6}, {2, 6, 1001}, {4, group}, {16, 6}, {32, 0}});
}

Bytes attribute(const fs::path& path, const char* name) {
    Bytes value(1000);
    const ssize_t size = getxattr(path.c_str(), name, value.data(), value.size());
    value.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return value;
}

void setAttribute(const fs::path& path, const char* name, const Bytes& value) {
    if (value.empty()) return;
    EXPECT_EQ(setxattr(path.c_str(), name, value.data(), value.size(), 0), 0) << name;
}

struct stat stateOf(const fs::path& path) {
    struct stat state {};
    EXPECT_EQ(stat(path.c_str(), &state), 0) << path;
    return state;
}

class Saving : public testing::Test {
  protected:
    Saving() { setenv("XDG_STATE_HOME", (home / "state").c_str(), 1); }
    ~Saving() override { unsetenv("XDG_STATE_HOME"); }

    void makeOld() {
        for (const auto& entry : fs::directory_iterator(folder.path()))
            fs::remove(entry);
        writeBytes(file, old);
    }
    [[nodiscard]] std::ptrdiff_t files() const {
        return std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator());
    }

    const Bytes old = bytesOf("the old bytes");
    const Bytes text = bytesOf("new");
    const TemporaryFolder home;
    const TemporaryFolder folder;
    const fs::path file = folder / "a.qds";
};

TEST_F(Saving, FailsWholeWhateverFailsAndIsDoneOnceTheFileIsInPlace) {
    struct Row {
        std::vector<FailingCall> calls;
        int failure;
        bool isBackedUp;
        int unsynced = 0;
        OldFile oldFile = OldFile::Drop;
    };
    const FailingCall busy = {"rename", 0, EBUSY};
    const Row rows[] = {
        {{{"fsync", 1, EIO}}, EIO, false},
        {{{"fsync", 1, EINVAL}}, EINVAL, false},
        {{{"fsync", 2, EIO}}, 0, false, EIO},
        {{{"fchmod", 0, EIO}}, EIO, false},
        {{{"fchmod", 0, EPERM}}, 0, false},
        {{{"fsetxattr", 0, ENOSPC}}, ENOSPC, false},
        {{{"fsetxattr", 0, EOPNOTSUPP}}, 0, false},
        {{{"link", 0, EPERM}}, 0, true, 0, OldFile::KeepAsBackup},
        {{{"rename", 0, EIO}}, EIO, false, 0, OldFile::KeepAsBackup},
        {{busy}, 0, true},
        {{busy, {"ftruncate", 1, EIO}}, EIO, false},
        {{busy, {"fsync", 4, EIO}}, EIO, false},
        {{busy, {"fsync", 4, EIO}, {"fsync", 5, EIO}}, EIO, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.calls.back().name << " " << row.calls.back().error);
        makeOld();
        setAttribute(file, "user.note", bytesOf("mine"));
        const ReplaceResult result = [&] {
            const FailingCalls failing(row.calls);
            return replaceFile(file, text, row.oldFile);
        }();
        EXPECT_EQ(result.failure ? result.failure->code : 0, row.failure);
        EXPECT_EQ(result.unsynced ? result.unsynced->code : 0, row.unsynced);
        EXPECT_EQ(readBytes(file), row.failure ? old : text);
        EXPECT_EQ(files(), row.isBackedUp ? 2 : 1);
        EXPECT_EQ(!result.backup.empty(), row.isBackedUp);
        EXPECT_TRUE(result.backup.empty() || readBytes(result.backup) == old);
        EXPECT_TRUE(result.failure || result.stamp == fileStamp(file));
    }
}

TEST_F(Saving, KeepsRightsForOwnersAndTeams) {
    if (!OtherUser::isPossible()) GTEST_SKIP() << "only the superuser can make others' files";
    constexpr gid_t strangers = 777;
    struct Row {
        const char* name;
        uid_t owner;
        gid_t group;
        mode_t mode;
        Bytes list;
        mode_t newMode;
        Bytes newList;
    };
    const Row rows[] = {
        {"own", OtherUser::user, OtherUser::group, 0640, {}, 0640, {}},
        {"the team's", OtherUser::user, OtherUser::team, 0660, {}, 0660, {}},
        {"a group that cannot be kept", OtherUser::user, strangers, 02664, {}, 0604, {}},
        {"a list", OtherUser::user, OtherUser::group, 0600, listFor1001(0), 0660, listFor1001(0)},
        {"a list, its group lost", OtherUser::user, strangers, 0600, listFor1001(4), 0660,
         listFor1001(0)},
        {"another owner", 1001, OtherUser::team, 0660, {}, 0660, {}},
        {"another owner with a list", 1001, OtherUser::team, 0600, listFor1001(6), 0660,
         listFor1001(6)},
    };
    // What a folder gives new files is no right to one that is there already.
    setAttribute(folder.path(), "system.posix_acl_default", listFor1001(6));
    fs::permissions(folder.path(), fs::perms(0777));
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        makeOld();
        removexattr(file.c_str(), listName);
        setAttribute(file, "user.note", bytesOf("mine"));
        ASSERT_EQ(chown(file.c_str(), row.owner, row.group), 0);
        ASSERT_EQ(chmod(file.c_str(), row.mode), 0);
        setAttribute(file, listName, row.list);
        const ReplaceResult result = [&] {
            const OtherUser user;
            EXPECT_TRUE(user.isThere());
            return replaceFile(file, text, OldFile::Drop);
        }();
        EXPECT_FALSE(result.failure) << result.failure->message;
        EXPECT_EQ(readBytes(file), text);
        EXPECT_EQ(stateOf(file).st_uid, row.owner);
        EXPECT_EQ(stateOf(file).st_gid, row.group == strangers ? OtherUser::group : row.group);
        EXPECT_EQ(stateOf(file).st_mode & 07777, row.newMode);
        EXPECT_EQ(attribute(file, listName), row.newList);
        EXPECT_EQ(attribute(file, "user.note"), bytesOf("mine"));
        EXPECT_EQ(result.writtenOver, row.owner != OtherUser::user);
        EXPECT_EQ(files(), result.writtenOver ? 2 : 1);
    }
    for (const NewFile newFile : {NewFile::AsInItsFolder, NewFile::OwnerOnly}) {
        const bool isShared = newFile == NewFile::AsInItsFolder;
        const fs::path made = folder / (isShared ? "shared.qds" : "private.qds");
        EXPECT_FALSE(replaceFile(made, text, OldFile::Drop, newFile).failure);
        EXPECT_EQ(stateOf(made).st_mode & 0777, isShared ? 0660U : 0600U);
    }
}

TEST_F(Saving, WritesOverWhatCannotBeReplacedOnceTheOldBytesAreSafe) {
    if (!OtherUser::isPossible()) GTEST_SKIP() << "the superuser is stopped by no folder";
    struct Row {
        const char* name;
        mode_t folderMode;
        mode_t fileMode;
        const char* state;
        int failure;
        const char* backup;
        int unsynced;
    };
    const Row rows[] = {
        {"a sticky folder", 01777, 0666, "state", 0, "a.qds.bak", 0},
        {"a folder that takes none", 0755, 0666, "state", 0, "state/quendra/kept/a.qds.bak", 0},
        {"the same once more", 0755, 0666, "state", 0, "state/quendra/kept/a.qds.bak2", 0},
        {"no place for the old bytes", 0755, 0666, "none", EACCES, "", 0},
        {"a file that may not be written", 0777, 0644, "state", EACCES, "", 0},
        {"a folder that cannot be searched", 0600, 0666, "state", EACCES, "", 0},
    };
    fs::create_directory(home / "state");
    ASSERT_EQ(chown((home / "state").c_str(), OtherUser::user, OtherUser::group), 0);
    fs::permissions(home.path(), fs::perms(0755));
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        setenv("XDG_STATE_HOME", (home / row.state).c_str(), 1);
        makeOld();
        ASSERT_EQ(chmod(file.c_str(), row.fileMode), 0);
        ASSERT_EQ(chmod(folder.path().c_str(), row.folderMode), 0);
        const ReplaceResult result = [&] {
            const OtherUser user;
            return replaceFile(file, text, OldFile::Drop);
        }();
        EXPECT_EQ(result.failure ? result.failure->code : 0, row.failure);
        EXPECT_EQ(readBytes(file), row.failure ? old : text);
        EXPECT_EQ(stateOf(file).st_uid, 0U);
        EXPECT_EQ(result.writtenOver, !row.failure);
        EXPECT_EQ(files(), row.folderMode == 01777 ? 2 : 1);
        if (*row.backup) {
            EXPECT_TRUE(result.backup.string().ends_with(row.backup)) << result.backup;
            EXPECT_EQ(readBytes(result.backup), old);
        }
        const bool isFolders = std::string_view(row.state) == "none";
        EXPECT_EQ(result.failure && !result.failure->folder.empty(), isFolders);
    }
    EXPECT_EQ(stateOf(home / "state/quendra/kept").st_mode & 0777, 0700U);
    EXPECT_EQ(stateOf(home / "state/quendra/kept/a.qds.bak").st_mode & 0777, 0600U);
}

TEST_F(Saving, IsDoneInAFolderThatCanBeWrittenAndNotRead) {
    if (!OtherUser::isPossible()) GTEST_SKIP() << "the superuser reads every folder";
    ASSERT_EQ(chown(folder.path().c_str(), OtherUser::user, OtherUser::group), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0300), 0);
    const OtherUser user;
    for (const Bytes& bytes : {old, text}) {
        const ReplaceResult result = replaceFile(file, bytes, OldFile::Drop);
        EXPECT_FALSE(result.failure);
        ASSERT_TRUE(result.unsynced);
        EXPECT_EQ(result.unsynced->code, EACCES);
        EXPECT_EQ(result.stamp, fileStamp(file));
        EXPECT_EQ(readBytes(file), bytes);
    }
}

TEST_F(Saving, FollowsLinksToFilesThatAreNotThereYetAndRefusesCircles) {
    fs::create_directory(folder / "sub");
    fs::create_symlink("sub/../new.qds", folder / "dangling");
    fs::create_symlink("dangling", folder / "chain");
    fs::create_symlink("circle2", folder / "circle");
    fs::create_symlink("circle", folder / "circle2");
    EXPECT_FALSE(replaceFile(folder / "chain", text, OldFile::KeepAsBackup).failure);
    EXPECT_TRUE(fs::is_symlink(folder / "chain") && fs::is_symlink(folder / "dangling"));
    EXPECT_EQ(readBytes(folder / "new.qds"), text);
    const auto failure = replaceFile(folder / "circle", text, OldFile::KeepAsBackup).failure;
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->code, ELOOP);
    EXPECT_EQ(files(), 6);
}

TEST_F(Saving, TakesNamesUpToTheLongestAndCutsThoseOfBackupsAtACharacter) {
    for (std::size_t length = 246; length <= 255; ++length) {
        SCOPED_TRACE(length);
        std::string name(length % 2, 'x');
        while (name.size() < length)
            name += "\u00e4";
        for (const Bytes& bytes : {old, text})
            EXPECT_FALSE(replaceFile(folder / name, bytes, OldFile::KeepAsBackup).failure);
        EXPECT_EQ(readBytes(folder / name), text);
        const std::size_t kept = std::min(length, 251 - (251 - length % 2) % 2);
        EXPECT_EQ(readBytes(folder / (name.substr(0, kept) + ".bak")), old);
        makeOld();
    }
}

TEST_F(Saving, RemovesWhatAKilledSaveLeftAndNothingThatIsStillWritten) {
    makeOld();
    const pid_t child = fork();
    if (child == 0) {
        const FailingCalls stopped({{"fsync", 1, stopsHere}});
        static_cast<void>(replaceFile(file, bytesOf("the child's"), OldFile::Drop));
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, WUNTRACED), child);
    ASSERT_TRUE(WIFSTOPPED(status));
    EXPECT_FALSE(replaceFile(file, text, OldFile::Drop).failure);
    EXPECT_FALSE(replaceFile(folder / "b.qds", text, OldFile::Drop).failure);
    EXPECT_EQ(files(), 3);
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    EXPECT_FALSE(replaceFile(folder / "b.qds", text, OldFile::Drop).failure);
    EXPECT_EQ(files(), 3) << "another script's";
    EXPECT_FALSE(replaceFile(file, text, OldFile::Drop).failure);
    EXPECT_EQ(files(), 2);
}

TEST_F(Saving, NeitherWaitsForAPipeNorReplacesIt) {
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(readRegularFile(file, 1000).failure.value().code, notRegularFile);
    EXPECT_EQ(readRegularFile(folder.path(), 1000).failure.value().code, EISDIR);
    const auto failure = replaceFile(file, text, OldFile::KeepAsBackup).failure;
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->code, notRegularFile);
    EXPECT_TRUE(fs::is_fifo(file));
    EXPECT_EQ(files(), 1);
}

}  // namespace
}  // namespace quendra::test
