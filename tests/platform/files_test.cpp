// Replacing a file: whole or not at all, whatever stands in the way.
#include "platform/files.h"

#include "support/fixtures.h"
#include "support/full_disk.h"
#include "support/temporary_folder.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quendra::test {

namespace fs = std::filesystem;

namespace {

std::size_t filesIn(const fs::path& folder) {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

}  // namespace

TEST(ReplaceFile, keepsModeAndLinksAndLeavesNothingBehind) {
    const TemporaryFolder folder;
    const fs::path file = folder / "script.qds";
    const fs::path link = folder / "link.qds";
    writeBytes(file, bytesOf("old"));
    ASSERT_EQ(chmod(file.c_str(), 0640), 0);
    fs::create_symlink("script.qds", link);
    const ReplaceResult result = replaceFile(link, bytesOf("new content"), OldFile::Drop);
    EXPECT_FALSE(result.failure);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(readBytes(file), bytesOf("new content"));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
    EXPECT_EQ(result.stamp, fileStamp(file));
    EXPECT_EQ(filesIn(folder.path()), 2u);
}

TEST(ReplaceFile, makesANewFileAsTheUserWouldHaveIt) {
    const TemporaryFolder folder;
    const mode_t before = umask(027);
    EXPECT_FALSE(replaceFile(folder / "new.qds", bytesOf("x"), OldFile::KeepAsBackup).failure);
    umask(before);
    EXPECT_EQ(fs::status(folder / "new.qds").permissions(), fs::perms(0640));
    EXPECT_EQ(filesIn(folder.path()), 1u);
}

TEST(ReplaceFile, keepsEveryOldFileUnderAFreeName) {
    const TemporaryFolder folder;
    const fs::path file = folder / "a.qds";
    for (const char* content : {"1", "2", "3"}) {
        EXPECT_FALSE(replaceFile(file, bytesOf(content), OldFile::KeepAsBackup).failure);
    }
    EXPECT_EQ(readBytes(folder / "a.qds.bak"), bytesOf("1"));
    EXPECT_EQ(readBytes(folder / "a.qds.bak2"), bytesOf("2"));
    EXPECT_EQ(readBytes(file), bytesOf("3"));
}

TEST(ReplaceFile, changesNothingWhenTheDiskIsFull) {
    const TemporaryFolder folder;
    const fs::path file = folder / "a.qds";
    writeBytes(file, bytesOf("old"));
    for (const OldFile oldFile : {OldFile::Drop, OldFile::KeepAsBackup}) {
        const FullDisk full;
        const ReplaceResult result = replaceFile(file, bytesOf("does not fit"), oldFile);
        ASSERT_TRUE(result.failure);
        EXPECT_EQ(result.failure->code, EFBIG);
    }
    EXPECT_EQ(readBytes(file), bytesOf("old"));
    EXPECT_EQ(filesIn(folder.path()), 1u);
}

TEST(ReplaceFile, refusesFoldersAndMissingFolders) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "a.qds");
    EXPECT_EQ(replaceFile(folder / "a.qds", bytesOf("x"), OldFile::Drop).failure->code, EISDIR);
    EXPECT_EQ(replaceFile(folder / "none/a.qds", bytesOf("x"), OldFile::Drop).failure->code,
              ENOENT);
    EXPECT_EQ(filesIn(folder.path()), 1u);
}

TEST(ReplaceFile, leavesAWriteProtectedFileAlone) {
    if (geteuid() == 0) GTEST_SKIP() << "the superuser may write everything";
    const TemporaryFolder folder;
    writeBytes(folder / "script.qds", bytesOf("old"));
    ASSERT_EQ(chmod((folder / "script.qds").c_str(), 0444), 0);
    const ReplaceResult result =
        replaceFile(folder / "script.qds", bytesOf("new"), OldFile::KeepAsBackup);
    ASSERT_TRUE(result.failure);
    EXPECT_EQ(result.failure->code, EACCES);
    EXPECT_EQ(readBytes(folder / "script.qds"), bytesOf("old"));
    EXPECT_EQ(filesIn(folder.path()), 1U);
}

TEST(ReadFile, readsPipesAndBoundsLongFiles) {
    const TemporaryFolder folder;
    const Bytes content(200'000, 'x');
    writeBytes(folder / "long", content);
    EXPECT_EQ(readFile(folder / "long", 1'000'000).size, content.size());
    EXPECT_EQ(readFile(folder / "long", 1000).size, 1000u);
    EXPECT_EQ(readFile(folder / "none", 1000).failure->code, ENOENT);
    EXPECT_EQ(readFile(folder.path(), 1000).failure->code, EISDIR);
    int ends[2] = {};
    ASSERT_EQ(pipe(ends), 0);
    ASSERT_EQ(write(ends[1], "piped", 5), 5);
    close(ends[1]);
    const FileContent piped = readDescriptor(ends[0], 1000);
    close(ends[0]);
    EXPECT_EQ(Bytes(piped.bytes().begin(), piped.bytes().end()), bytesOf("piped"));
}

}  // namespace quendra::test
