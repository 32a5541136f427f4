// Replacing a file: whole or not at all, whatever stands in the way.
#include "platform/files.h"

#include "support/fixtures.h"
#include "support/full_disk.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quendra::test {

namespace fs = std::filesystem;

class ReplaceFile : public testing::Test {
  protected:
    ReplaceFile() { writeBytes(file, bytesOf("old")); }

    void expectFiles(const char* content, int count) const {
        EXPECT_EQ(readBytes(file), bytesOf(content));
        const fs::directory_iterator files(folder.path());
        EXPECT_EQ(std::distance(files, fs::directory_iterator()), count);
    }

    const TemporaryFolder folder;
    const fs::path file = folder / "a.qds";
};

TEST_F(ReplaceFile, keepsModeAndLinksAndLeavesNothingBehind) {
    const fs::path link = folder / "link.qds";
    ASSERT_EQ(chmod(file.c_str(), 0640), 0);
    fs::create_symlink("a.qds", link);
    const ReplaceResult result = replaceFile(link, bytesOf("new content"), OldFile::Drop);
    EXPECT_FALSE(result.failure);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
    EXPECT_EQ(result.stamp, fileStamp(file));
    expectFiles("new content", 2);
}

TEST_F(ReplaceFile, makesANewFileAsTheUserWouldHaveItAlsoOfABareName) {
    const mode_t maskBefore = umask(027);
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    EXPECT_FALSE(replaceFile("new.qds", bytesOf("x"), OldFile::KeepAsBackup).failure);
    fs::current_path(before);
    umask(maskBefore);
    EXPECT_EQ(readBytes(folder / "new.qds"), bytesOf("x"));
    EXPECT_EQ(fs::status(folder / "new.qds").permissions(), fs::perms(0640));
    expectFiles("old", 2);
}

TEST_F(ReplaceFile, keepsEveryOldFileUnderAFreeName) {
    for (const char* content : {"2", "3"})
        EXPECT_FALSE(replaceFile(file, bytesOf(content), OldFile::KeepAsBackup).failure);
    EXPECT_EQ(readBytes(folder / "a.qds.bak"), bytesOf("old"));
    EXPECT_EQ(readBytes(folder / "a.qds.bak2"), bytesOf("2"));
    expectFiles("3", 3);
}

TEST_F(ReplaceFile, changesNothingWhenTheDiskIsFull) {
    for (const OldFile oldFile : {OldFile::Drop, OldFile::KeepAsBackup}) {
        const FullDisk full;
        const ReplaceResult result = replaceFile(file, bytesOf("does not fit"), oldFile);
        ASSERT_TRUE(result.failure);
        EXPECT_EQ(result.failure->code, EFBIG);
    }
    expectFiles("old", 1);
}

TEST_F(ReplaceFile, refusesFoldersAndMissingFolders) {
    const auto failure = [&](const fs::path& at) {
        return replaceFile(at, bytesOf("x"), OldFile::KeepAsBackup).failure->code;
    };
    EXPECT_EQ(failure(folder.path()), EISDIR);
    EXPECT_EQ(failure(folder / "none/a.qds"), ENOENT);
    expectFiles("old", 1);
}

TEST(ReadFile, readsPipesAndBoundsLongFiles) {
    const TemporaryFolder folder;
    writeBytes(folder / "long", Bytes(200'000, 'x'));
    EXPECT_EQ(readFile(folder / "long", 1'000'000).size, 200'000U);
    EXPECT_EQ(readFile(folder / "long", 1000).size, 1000U);
    EXPECT_EQ(readFile(folder / "none", 1000).failure->code, ENOENT);
    EXPECT_EQ(readFile(folder.path(), 1000).failure->code, EISDIR);
    int ends[2] = {};
    ASSERT_EQ(pipe(ends), 0);
    ASSERT_EQ(write(ends[1], "piped", 5), 5);
    close(ends[1]);
    EXPECT_TRUE(std::ranges::equal(readDescriptor(ends[0], 1000).bytes(), bytesOf("piped")));
    close(ends[0]);
}

}  // namespace quendra::test
