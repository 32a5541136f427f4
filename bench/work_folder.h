// Where benchmarks put their files.
#pragma once

#include <filesystem>

namespace quendra::bench {

/// A folder on the disk of the temporary folder, gone at the end of the run.
[[nodiscard]] const std::filesystem::path& workFolder();

}  // namespace quendra::bench
