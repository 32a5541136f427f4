// A folder of its own for a test, removed with all it holds.
#pragma once

#include <filesystem>

namespace quendra::test {

class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] std::filesystem::path operator/(const std::filesystem::path& name) const {
        return path_ / name;
    }

  private:
    std::filesystem::path path_;
};

}  // namespace quendra::test
