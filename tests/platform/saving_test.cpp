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
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* listName = "system.posix_acl_access";

// An access control list: the owner, the user 1001, the owning group, the mask and others.
Bytes listFor1001(std::uint8_t group) {
    return joined({word(2),
                   {1, 0, 6, 0},
                   word(~0U),
                   {2, 0, 6, 0},
                   word(1001),
                   {4, 0, group, 0},
                   word(~0U),
                   {16, 0, 6, 0},
                   word(~0U),
                   {32, 0, 0, 0},
                   word(~0U)});
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

int codeOf(const std::optional<FileFailure>& failure) {
    return failure ? failure->code : 0;
}

class Saving : public testing::Test {
  protected:
    ~Saving() override { unsetenv("XDG_STATE_HOME"); }

    void makeOld() {
        for (const auto& entry : fs::directory_iterator(folder.path()))
            fs::remove(entry);
        writeBytes(file, old);
        setAttribute(file, "user.note", bytesOf("mine"));
    }
    ReplaceResult saveAsOtherUser() {
        const OtherUser user;
        EXPECT_EQ(user.done, 0);
        return replaceFile(file, text, OldFile::Drop);
    }
    // How many files there are, and what is in the saved one.
    void expectFiles(int count, const Bytes& content) const {
        const fs::directory_iterator files(folder.path());
        EXPECT_EQ(std::distance(files, fs::directory_iterator()), count);
        EXPECT_EQ(readBytes(file), content);
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
        {{{"stat", 1, EIO}}, EIO, false},
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
    setenv("XDG_STATE_HOME", "/proc/none", 1);
    const Bytes longer = bytesOf("longer than the old bytes");
    for (std::size_t i = 0; i < std::size(rows) * 2; ++i) {
        const Row& row = rows[i / 2];
        const Bytes& bytes = i % 2 == 0 ? text : longer;
        SCOPED_TRACE(testing::Message() << row.calls.back().name << " " << row.calls.back().error);
        makeOld();
        const ReplaceResult result = [&] {
            const FailingCalls failing(row.calls);
            return replaceFile(file, bytes, row.oldFile);
        }();
        EXPECT_EQ(codeOf(result.failure), row.failure);
        EXPECT_EQ(codeOf(result.unsynced), row.unsynced);
        expectFiles(row.isBackedUp ? 2 : 1, row.failure ? old : bytes);
        EXPECT_EQ(!result.backup.empty(), row.isBackedUp);
        EXPECT_TRUE(result.backup.empty() || readBytes(result.backup) == old);
        EXPECT_TRUE(result.failure || result.stamp == fileStamp(file));
    }
}

TEST_F(Saving, KeepsRightsForOwnersAndTeams) {
    if (!OtherUser::isPossible()) GTEST_SKIP() << "only the superuser can make others' files";
    constexpr uid_t own = OtherUser::user;
    constexpr gid_t team = OtherUser::team;
    constexpr gid_t strangers = 777;
    const std::tuple<const char*, uid_t, gid_t, mode_t, Bytes, mode_t, Bytes> rows[] = {
        {"own", own, OtherUser::group, 0640, {}, 0640, {}},
        {"the team's", own, team, 0660, {}, 0660, {}},
        {"a group that cannot be kept", own, strangers, 02664, {}, 0604, {}},
        {"a list", own, OtherUser::group, 0600, listFor1001(0), 0660, listFor1001(0)},
        {"a list, its group lost", own, strangers, 0600, listFor1001(4), 0660, listFor1001(0)},
        {"another owner", 1001, team, 0660, {}, 0660, {}},
        {"another owner with a list", 1001, team, 0600, listFor1001(6), 0660, listFor1001(6)},
    };
    // What a folder gives new files is no right to one that is there already.
    setAttribute(folder.path(), "system.posix_acl_default", listFor1001(6));
    fs::permissions(folder.path(), fs::perms(0777));
    for (const auto& [name, owner, group, mode, list, newMode, newList] : rows) {
        SCOPED_TRACE(name);
        makeOld();
        removexattr(file.c_str(), listName);
        ASSERT_EQ(chown(file.c_str(), owner, group), 0);
        ASSERT_EQ(chmod(file.c_str(), mode), 0);
        setAttribute(file, listName, list);
        const ReplaceResult result = saveAsOtherUser();
        EXPECT_EQ(codeOf(result.failure), 0);
        EXPECT_EQ(result.writtenOver, owner != own) << "the owner could not be kept";
        EXPECT_TRUE(!result.writtenOver || stateOf(result.backup).st_gid == group);
        expectFiles(result.writtenOver ? 2 : 1, text);
        EXPECT_EQ(stateOf(file).st_uid, owner);
        EXPECT_EQ(stateOf(file).st_gid, group == strangers ? OtherUser::group : group);
        EXPECT_EQ(stateOf(file).st_mode & 07777, newMode);
        EXPECT_EQ(attribute(file, listName), newList);
        EXPECT_EQ(attribute(file, "user.note"), bytesOf("mine"));
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
    const std::tuple<const char*, mode_t, mode_t, int, const char*, int> rows[] = {
        {"a sticky folder", 01777, 0666, 0, "a.qds.bak", 0},
        {"a folder that cannot be read", 0733, 0666, 0, "a.qds.bak", EACCES},
        {"a folder that takes none", 0755, 0666, 0, "state/quendra/kept/a.qds.bak", 0},
        {"the same once more", 0755, 0666, 0, "state/quendra/kept/a.qds.bak2", 0},
        {"a file that may not be written", 0777, 0644, EACCES, "", 0},
        {"a folder that cannot be searched", 0600, 0666, EACCES, "", 0},
    };
    setenv("XDG_STATE_HOME", (home / "state").c_str(), 1);
    fs::create_directory(home / "state");
    ASSERT_EQ(chown((home / "state").c_str(), OtherUser::user, OtherUser::group), 0);
    fs::permissions(home.path(), fs::perms(0755));
    for (const auto& [name, folderMode, fileMode, failure, backup, unsynced] : rows) {
        SCOPED_TRACE(name);
        makeOld();
        ASSERT_EQ(chmod(file.c_str(), fileMode), 0);
        ASSERT_EQ(chmod(folder.path().c_str(), folderMode), 0);
        const ReplaceResult result = saveAsOtherUser();
        EXPECT_EQ(codeOf(result.failure), failure);
        EXPECT_EQ(codeOf(result.unsynced), unsynced);
        EXPECT_EQ(result.writtenOver, !failure);
        EXPECT_TRUE(result.backup.string().ends_with(backup)) << result.backup;
        EXPECT_TRUE(failure || readBytes(result.backup) == old);
        expectFiles(std::string_view(backup) == "a.qds.bak" ? 2 : 1, failure ? old : text);
    }
    EXPECT_EQ(stateOf(home / "state/quendra/kept").st_mode & 0777, 0700U);
    EXPECT_EQ(stateOf(home / "state/quendra/kept/a.qds.bak").st_mode & 0777, 0600U);
    setenv("XDG_STATE_HOME", "/proc/none", 1);
    fs::permissions(folder.path(), fs::perms(0755));
    fs::permissions(file, fs::perms(0666));
    const auto failure = saveAsOtherUser().failure;
    ASSERT_TRUE(failure) << "no place for the old bytes";
    EXPECT_EQ(failure->folder, folder.path());
    expectFiles(1, old);
}

TEST_F(Saving, FollowsLinksToFilesThatAreNotThereYetAndRefusesCirclesAndPipes) {
    fs::create_directory(folder / "sub");
    fs::create_symlink("sub/../a.qds", folder / "dangling");
    fs::create_symlink("dangling", folder / "chain");
    fs::create_symlink("circle", folder / "circle");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const auto save = [&](const char* name) {
        return codeOf(replaceFile(folder / name, text, OldFile::KeepAsBackup).failure);
    };
    EXPECT_EQ(save("chain"), 0);
    EXPECT_EQ(save("circle"), ELOOP);
    EXPECT_EQ(save("pipe"), notRegularFile);
    EXPECT_TRUE(fs::is_symlink(folder / "chain") && fs::is_symlink(folder / "dangling"));
    expectFiles(6, text);
    EXPECT_EQ(codeOf(readRegularFile(folder / "pipe", 1000).failure), notRegularFile);
    EXPECT_EQ(codeOf(readRegularFile(folder.path(), 1000).failure), EISDIR);
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
        const std::size_t kept = std::min(length, length % 2 == 0 ? 250UL : 251UL);
        EXPECT_EQ(readBytes(folder / (name.substr(0, kept) + ".bak")), old);
        makeOld();
    }
}

TEST_F(Saving, RemovesWhatAKilledSaveLeftAndNothingThatIsStillWritten) {
    makeOld();
    const pid_t child = fork();
    if (child == 0) {
        const FailingCalls stopped({{"fsync", 1, stopsHere}});
        static_cast<void>(replaceFile(file, old, OldFile::Drop));
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, WUNTRACED), child);
    ASSERT_TRUE(WIFSTOPPED(status));
    const auto save = [&](const char* name) {
        EXPECT_FALSE(replaceFile(folder / name, text, OldFile::Drop).failure);
    };
    save("a.qds");
    expectFiles(2, text);
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    save("b.qds");
    expectFiles(3, text);
    save("a.qds");
    expectFiles(2, text);
}

}  // namespace
}  // namespace quendra::test
