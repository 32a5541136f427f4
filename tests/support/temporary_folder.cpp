#include "support/temporary_folder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace quendra::test {

TemporaryFolder::TemporaryFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "quendra-test-XXXXXX";
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
    path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace quendra::test
