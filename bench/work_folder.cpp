#include "work_folder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace quendra::bench {

namespace fs = std::filesystem;

const fs::path& workFolder() {
    struct Folder {
        fs::path path;
        Folder() {
            std::string pattern = fs::temp_directory_path() / "quendra-bench-XXXXXX";
            if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp");
            path = pattern;
        }
        ~Folder() {
            std::error_code ignored;
            fs::remove_all(path, ignored);
        }
    };
    static const Folder folder;
    return folder.path;
}

}  // namespace quendra::bench
