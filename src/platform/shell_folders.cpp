#include "platform/shell_folders.h"

#include <fstream>
#include <string>
#include <string_view>

namespace quendra {

namespace {

namespace fs = std::filesystem;

// The text between the double quotes at the start of `value`, a backslash taking the character
// behind it as it is. None when the quotes are missing.
std::optional<std::string> unquotedShellText(std::string_view value) {
    if (!value.starts_with('"')) return std::nullopt;
    std::string text;
    for (std::size_t i = 1; i < value.size(); ++i) {
        if (value[i] == '"') return text;
        if (value[i] == '\\' && i + 1 < value.size()) ++i;
        text += value[i];
    }
    return std::nullopt;
}

std::string_view withoutLeadingBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

// The folder of one line of "user-dirs.dirs" if it is the one for documents: an absolute path or
// one below "$HOME", the only forms that desktops write.
std::optional<fs::path> documentsOfLine(std::string_view line,
                                        const std::optional<fs::path>& home) {
    constexpr std::string_view name = "XDG_DOCUMENTS_DIR";
    constexpr std::string_view homePrefix = "\"$HOME";
    line = withoutLeadingBlanks(line);
    if (!line.starts_with(name)) return std::nullopt;
    line = withoutLeadingBlanks(line.substr(name.size()));
    if (!line.starts_with('=')) return std::nullopt;
    line = withoutLeadingBlanks(line.substr(1));

    const bool belowHome = line.starts_with(homePrefix);
    const auto text = unquotedShellText(line);
    if (!text) return std::nullopt;
    if (!belowHome) return text->starts_with('/') ? std::optional<fs::path>(*text) : std::nullopt;
    const std::string_view rest = std::string_view(*text).substr(homePrefix.size() - 1);
    if (!home || (!rest.empty() && rest.front() != '/')) return std::nullopt;
    return (*home / fs::path(rest).relative_path()).lexically_normal();
}

// The last line counts, as it does for a shell that reads the file.
std::optional<fs::path> documentsOfUserDirs(const fs::path& file,
                                            const std::optional<fs::path>& home) {
    std::error_code error;
    if (!fs::is_regular_file(file, error)) return std::nullopt;
    std::ifstream stream(file);
    std::optional<fs::path> documents;
    for (std::string line; std::getline(stream, line);) {
        if (auto found = documentsOfLine(line, home)) documents = std::move(found);
    }
    return documents;
}

std::optional<fs::path> below(const std::optional<fs::path>& home, const char* name) {
    return home ? std::optional(*home / name) : std::nullopt;
}

std::optional<fs::path> documentsFolder(const Environment& environment,
                                        const std::optional<fs::path>& home) {
    auto config = folderVariable(environment, "XDG_CONFIG_HOME");
    if (!config) config = below(home, ".config");
    if (config) {
        if (auto documents = documentsOfUserDirs(*config / "user-dirs.dirs", home))
            return documents;
    }
    return below(home, "Documents");
}

}  // namespace

const std::optional<fs::path>& ShellFolders::of(ShellFolder folder) const {
    switch (folder) {
        case ShellFolder::Documents: return documents;
        case ShellFolder::ApplicationData: return applicationData;
        case ShellFolder::CommonApplicationData: return commonApplicationData;
        case ShellFolder::CommonDocuments: break;
    }
    return commonDocuments;
}

ShellFolders shellFolders(const Environment& environment) {
    const auto home = folderVariable(environment, "HOME");
    ShellFolders folders;
    folders.documents = documentsFolder(environment, home);
    folders.applicationData = folderVariable(environment, "XDG_DATA_HOME");
    if (!folders.applicationData) folders.applicationData = below(home, ".local/share");
    folders.commonApplicationData = "/var/lib";
    folders.commonDocuments = "/srv";
    folders.temporary = folderVariable(environment, "TMPDIR").value_or("/tmp");
    return folders;
}

std::optional<fs::path> stateFolder(const Environment& environment) {
    const auto folder = folderVariable(environment, "XDG_STATE_HOME");
    return folder ? folder : below(folderVariable(environment, "HOME"), ".local/state");
}

}  // namespace quendra
