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
    EXPECT_EQ(readBytes(path), old.file);
    EXPECT_FALSE(upgradeScriptFile(path, loaded).value().failure);
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
    writeBytes(path, frozenCase("kinds-iseries-v5").file);
    EXPECT_FALSE(upgradeScriptFile(path, loaded));
    EXPECT_EQ(readBytes(path), frozenCase("kinds-iseries-v5").file);
}

}  // namespace quendra::test
