// qds run in the test's own process, with made-up streams and a made-up identity.
#pragma once

#include "support/fixtures.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quendra::test {

/// What a run gave back.
struct QdsRun {
    int status = -1;
    std::string out;
    std::string err;
};

/// Runs qds in this process. `input` is what standard input holds; the language library is looked
/// for from `programFolder`, and `language.ini` is beside it.
[[nodiscard]] QdsRun runQds(const std::vector<std::string>& arguments,
                            std::span<const std::uint8_t> input = {},
                            const std::filesystem::path& programFolder = QUENDRA_PROGRAM_FOLDER);

/// A folder for the files of a test, and a user with an identity: that of the frozen cases unless
/// another is set.
class QdsTest : public testing::Test {
  public:
    ~QdsTest() override;

  protected:
    QdsTest();

    void setIdentity(const std::string& identity) const;
    /// The path of a file in the folder, written first when bytes are given.
    [[nodiscard]] std::string file(const std::string& name) const { return folder_ / name; }
    std::string file(const std::string& name, std::span<const std::uint8_t> bytes) const {
        writeBytes(folder_ / name, bytes);
        return file(name);
    }
    /// The names of all files in the folder, sorted.
    [[nodiscard]] std::vector<std::string> names() const;

    /// The script that a JSON form builds; the test fails where it is refused.
    [[nodiscard]] static Bytes built(const std::string& json);

  private:
    const TemporaryFolder folder_;
};

}  // namespace quendra::test
