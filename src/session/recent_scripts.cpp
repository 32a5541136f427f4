#include "session/recent_scripts.h"

#include "text/path_text.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace quendra {

namespace {

namespace fs = std::filesystem;

constexpr StateKey scriptKey = {"Recent", "Script"};

fs::path lastParts(const fs::path& file, std::ptrdiff_t count) {
    const auto parts = std::distance(file.begin(), file.end());
    fs::path last;
    for (auto part = std::next(file.begin(), std::max<std::ptrdiff_t>(parts - count, 0));
         part != file.end(); ++part)
        last /= *part;
    return last;
}

}  // namespace

std::vector<fs::path> recentScripts(const UserState& state) {
    std::vector<fs::path> scripts;
    for (const std::string& text : state.texts(scriptKey)) {
        const fs::path script(text);
        if (script.is_absolute() && scripts.size() < mostRecentScripts) scripts.push_back(script);
    }
    return scripts;
}

void rememberScript(UserState& state, const fs::path& script) {
    std::vector<std::string> texts = {script.native()};
    for (const fs::path& other : recentScripts(state)) {
        if (other != script && texts.size() < mostRecentScripts) texts.push_back(other.native());
    }
    if (texts != state.texts(scriptKey)) state.setTexts(scriptKey, texts);
}

void forgetRecentScripts(UserState& state) {
    state.setTexts(scriptKey, {});
}

std::vector<std::string> distinctNames(const std::vector<fs::path>& files) {
    std::vector<std::ptrdiff_t> counts(files.size(), 1);
    for (bool isDistinct = false; !isDistinct;) {
        std::map<fs::path, std::vector<std::size_t>> byName;
        for (std::size_t i = 0; i < files.size(); ++i)
            byName[lastParts(files[i], counts[i])].push_back(i);
        isDistinct = true;
        for (const auto& [name, same] : byName) {
            if (same.size() < 2) continue;
            for (const std::size_t i : same) {
                if (name == files[i]) continue;
                ++counts[i];
                isDistinct = false;
            }
        }
    }
    std::vector<std::string> names;
    for (std::size_t i = 0; i < files.size(); ++i)
        names.push_back(pathText(lastParts(files[i], counts[i])));
    return names;
}

}  // namespace quendra
