#include "cli/script_paths.h"

#include <algorithm>
#include <filesystem>

namespace quendra::cli {

namespace {

namespace fs = std::filesystem;

class FolderReader {
  public:
    FolderReader(Environment& environment, const std::function<void(const std::string&)>& function)
        : environment_(environment), function_(function) {}

    // Folder by folder, so that no list of all files below is kept.
    [[nodiscard]] bool read(const fs::path& folder) {
        std::vector<fs::directory_entry> entries;
        std::error_code error;
        fs::directory_iterator next(folder, error);
        for (; !error && next != fs::directory_iterator(); next.increment(error)) {
            entries.push_back(*next);
        }
        if (error) report(environment_, folder.native(), error.message());
        bool isWell = !error;
        std::ranges::sort(entries, {}, [](const fs::directory_entry& entry) -> const fs::path& {
            return entry.path();
        });
        for (const fs::directory_entry& entry : entries) {
            if (!environment_.out) break;
            if (!take(entry)) isWell = false;
        }
        return isWell;
    }

  private:
    [[nodiscard]] bool take(const fs::directory_entry& entry) {
        std::error_code error;
        if (entry.is_directory(error)) return entry.is_symlink(error) || read(entry.path());
        // A pipe without anybody at its other end would be waited for.
        if (entry.is_other(error)) return true;
        if (entry.path().extension() == ".qds") function_(entry.path().native());
        return true;
    }

    Environment& environment_;
    const std::function<void(const std::string&)>& function_;
};

}  // namespace

bool forEachScriptFile(Environment& environment, const std::vector<std::string>& paths,
                       const std::function<void(const std::string&)>& function) {
    FolderReader folders(environment, function);
    bool isWell = true;
    for (const std::string& path : paths) {
        if (!environment.out) break;
        std::error_code error;
        if (!fs::is_directory(path, error)) {
            function(path);
        } else if (!folders.read(path)) {
            isWell = false;
        }
    }
    return isWell;
}

}  // namespace quendra::cli
