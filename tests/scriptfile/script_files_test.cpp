// Script files on disk: opening never harms a file, and an older one is brought up to date with its
// bytes kept.
#include "scriptfile/script_files.h"

#include "support/fixtures.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quendra::test {

TEST(ScriptFiles, upgradeAnOlderFileOnceAndKeepTheOldBytes) {
    const TemporaryFolder folder;
    const auto path = folder / "old.qds";
    const Case& old = frozenCase("kinds-iseries-v4");
    writeBytes(path, old.file);
    const LoadedScript loaded = loadScriptFile(path);
    ASSERT_TRUE(loaded.ok());
    EXPECT_EQ(readBytes(path), old.file);
    const auto upgrade = upgradeScriptFile(path, loaded);
    ASSERT_TRUE(upgrade);
    EXPECT_FALSE(upgrade->failure);
    EXPECT_EQ(readBytes(path), old.expected);
    EXPECT_EQ(readBytes(folder / "old.qds.bak"), old.file);
    EXPECT_FALSE(upgradeScriptFile(path, loadScriptFile(path)));
}

TEST(ScriptFiles, neverRewriteWhatWasNotReadWholeOrHasChanged) {
    const TemporaryFolder folder;
    const auto path = folder / "cut.qds";
    const Bytes& file = frozenCase("kinds-iseries-v4").file;
    const Bytes cut(file.begin(), file.end() - 1);
    writeBytes(path, cut);
    EXPECT_FALSE(upgradeScriptFile(path, loadScriptFile(path)));
    EXPECT_EQ(readBytes(path), cut);

    writeBytes(path, file);
    const LoadedScript loaded = loadScriptFile(path);
    const Bytes newer = frozenCase("kinds-iseries-v5").file;
    writeBytes(path, newer);
    EXPECT_FALSE(upgradeScriptFile(path, loaded));
    EXPECT_EQ(readBytes(path), newer);
}

TEST(ScriptFiles, tellWhyAFileCannotBeLoaded) {
    const TemporaryFolder folder;
    const LoadedScript missing = loadScriptFile(folder / "none.qds");
    ASSERT_TRUE(missing.failure);
    EXPECT_EQ(missing.failure->code, ENOENT);
    writeBytes(folder / "text.qds", bytesOf("not a script"));
    EXPECT_EQ(loadScriptFile(folder / "text.qds").read.refusal, ReadRefusal::UnknownSignature);
}

}  // namespace quendra::test
