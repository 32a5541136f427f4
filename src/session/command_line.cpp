#include "session/command_line.h"

#include "platform/product_version.h"

#include <algorithm>
#include <string_view>

namespace quendra {

namespace {

namespace fs = std::filesystem;

class Parser {
  public:
    Parser(std::span<const std::string> arguments, const PathProbe& probe)
        : rest_(arguments), probe_(probe) {}

    CommandLine parse() {
        while (!rest_.empty() && result_.error.empty())
            parseArgument(take());
        if (result_.error.empty() && result_.compared && !result_.script.empty()) {
            fail("--compare opens no further script: " + result_.script.string());
        }
        return result_;
    }

  private:
    const std::string& take() {
        const std::string& first = rest_.front();
        rest_ = rest_.subspan(1);
        return first;
    }

    void fail(const std::string& message) { result_.error = message; }

    void setScript(const std::string& path) {
        if (path.empty()) return fail("the name of the script is empty");
        if (!result_.script.empty()) return fail("more than one script: " + path);
        result_.script = path;
    }

    void parseArgument(const std::string& argument) {
        if (onlyPaths_) return setScript(argument);
        if (argument.starts_with('-')) return parseOption(argument);
        if (!isPath(argument) && parseSlashOptions(argument)) return;
        setScript(argument);
    }

    void parseOption(const std::string& option) {
        if (option == "--") {
            onlyPaths_ = true;
        } else if (option == "--compare") {
            compare();
        } else if (option == "--help") {
            result_.help = true;
        } else if (option == "--version") {
            result_.version = true;
        } else {
            fail("unknown option " + option);
        }
    }

    void compare() {
        if (rest_.size() < 2) return fail("--compare needs the names of two scripts");
        const std::string& left = take();
        const std::string& right = take();
        if (left.empty() || right.empty()) return fail("the name of the script is empty");
        result_.compared = {left, right};
    }

    [[nodiscard]] bool isPath(const std::string& argument) const {
        const fs::path path = argument;
        const fs::path folder = path.parent_path();
        const fs::file_type type = probe_(path);
        const bool isFile = type != fs::file_type::not_found && type != fs::file_type::none &&
                            type != fs::file_type::directory;
        return isFile || (folder.has_relative_path() && probe_(folder) == fs::file_type::directory);
    }

    // "/tX" any number of times, then "/e" or nothing. False, and nothing taken, when the argument
    // is something else.
    bool parseSlashOptions(std::string_view argument) {
        std::string_view text = argument;
        std::string_view types;
        while (text.starts_with("/t") && (text.size() <= 3 || text[3] == '/')) {
            const std::size_t length = std::min<std::size_t>(text.size(), 3);
            if (types.empty()) types = text.substr(0, length);
            text.remove_prefix(length);
        }
        const bool opens = text.starts_with("/e");
        if (!opens && (types.empty() || !text.empty())) return false;
        if (!types.empty()) chooseHostType(types);
        if (opens) openScript(text.substr(2));
        return true;
    }

    void chooseHostType(std::string_view option) {
        if (hostTypeSeen_) return;
        hostTypeSeen_ = true;
        if (option == "/t1") result_.hostType = HostType::ISeries;
        if (option == "/t2") result_.hostType = HostType::VT;
    }

    void openScript(std::string_view path) {
        if (!path.empty()) return setScript(std::string(path));
        if (rest_.empty()) return fail("/e needs the name of a script");
        setScript(take());
    }

    std::span<const std::string> rest_;
    const PathProbe& probe_;
    bool onlyPaths_ = false;
    bool hostTypeSeen_ = false;
    CommandLine result_;
};

}  // namespace

fs::file_type fileTypeAt(const fs::path& path) {
    std::error_code error;
    return fs::status(path, error).type();
}

CommandLine parseCommandLine(std::span<const std::string> arguments, const PathProbe& probe) {
    return Parser(arguments, probe).parse();
}

fs::path tidyPath(const fs::path& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    if (error) return path;
    const fs::path tidy = absolute.lexically_normal();
    const fs::path folder = fs::canonical(absolute.parent_path(), error);
    // A folder that is not there is not behind a link either.
    if (error || fs::equivalent(tidy.parent_path(), folder, error)) return tidy;
    return folder / absolute.filename();
}

std::string commandLineHelp() {
    return "usage: quendra-script-editor [OPTION]... [SCRIPT]\n"
           "\n"
           "Edits one script of the Quendra terminal emulators (.qds).\n"
           "\n"
           "  SCRIPT, /e SCRIPT    open this script; one that is not there yet is made by saving\n"
           "  /t1, /t2             begin with an iSeries or a VT script (otherwise mainframe)\n"
           "  --compare A B        show the difference of two scripts, and change neither\n"
           "  --                   what follows is the name of the script\n"
           "  --help               show this and end\n"
           "  --version            show the version and end\n"
           "\n"
           "Pictures of the window, for manuals:\n"
           "  --screenshot FILE    write one to FILE and end\n"
           "  --size WIDTHxHEIGHT, --scale FACTOR, --light, --dark\n";
}

std::string versionText() {
    return std::string("Quendra Script Editor ") + fullVersion + "\n";
}

}  // namespace quendra
