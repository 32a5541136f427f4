#include "platform/crash/mappings.h"

#include <cinttypes>
#include <cstdio>
#include <sstream>
#include <string_view>

namespace quendra {

namespace {

bool readHeader(const std::string& line, Mapping& mapping) {
    char mode[5] = {};
    int nameStart = 0;
    const int fields =
        std::sscanf(line.c_str(), "%" SCNxPTR "-%" SCNxPTR " %4s %" SCNx64 " %*s %*u %n",
                    &mapping.start, &mapping.end, mode, &mapping.fileOffset, &nameStart);
    if (fields != 4 || nameStart == 0) return false;
    mapping.readable = mode[0] == 'r';
    mapping.writable = mode[1] == 'w';
    mapping.executable = mode[2] == 'x';
    mapping.name = line.substr(static_cast<std::size_t>(nameStart));
    return true;
}

// dd: MADV_DONTDUMP. io, pf: memory of a device, which reading may disturb.
bool isLeftOut(std::string_view flags) {
    std::istringstream words{std::string(flags)};
    std::string word;
    while (words >> word) {
        if (word == "dd" || word == "io" || word == "pf") return true;
    }
    return false;
}

}  // namespace

std::vector<Mapping> readMappings(std::istream& smaps) {
    std::vector<Mapping> mappings;
    std::string line;
    while (std::getline(smaps, line)) {
        Mapping next;
        const std::string_view view = line;
        if (readHeader(line, next)) {
            mappings.push_back(std::move(next));
        } else if (mappings.empty()) {
            continue;
        } else if (view.starts_with("Rss:")) {
            mappings.back().untouched = view.find(" 0 kB") != std::string_view::npos;
        } else if (view.starts_with("Swap:")) {
            if (view.find(" 0 kB") == std::string_view::npos) mappings.back().untouched = false;
        } else if (view.starts_with("VmFlags:")) {
            mappings.back().leftOut = isLeftOut(view.substr(8));
        }
    }
    return mappings;
}

}  // namespace quendra
