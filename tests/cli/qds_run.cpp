#include "cli/qds_run.h"

#include "cli/qds.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace quendra::test {

namespace fs = std::filesystem;

QdsRun runQds(const std::vector<std::string>& arguments, std::span<const std::uint8_t> input,
              const fs::path& programFolder) {
    std::FILE* stream = std::tmpfile();
    if (!input.empty()) std::fwrite(input.data(), 1, input.size(), stream);
    std::rewind(stream);
    std::ostringstream out;
    std::ostringstream err;
    cli::Environment environment = {
        ::fileno(stream), out, err, {programFolder, programFolder, programFolder}};
    const int status = cli::runQds(arguments, environment);
    std::fclose(stream);
    return {status, out.str(), err.str()};
}

QdsTest::QdsTest() {
    fs::create_directories(folder_ / ".config/quendra");
    ::setenv("XDG_CONFIG_HOME", file(".config").c_str(), 1);
    setIdentity(frozenIdentity());
}

QdsTest::~QdsTest() {
    ::unsetenv("XDG_CONFIG_HOME");
}

void QdsTest::setIdentity(const std::string& identity) const {
    file(".config/quendra/registry.ini", bytesOf("[Identities]\nDefault User ID=" + identity));
}

std::vector<std::string> QdsTest::names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_.path()))
        if (entry.is_regular_file()) names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
}

Bytes QdsTest::built(const std::string& json) {
    const QdsRun run = runQds({"build", "-", "--output", "-"}, bytesOf(json));
    EXPECT_EQ(run.status, 0) << run.err;
    return bytesOf(run.out);
}

}  // namespace quendra::test
