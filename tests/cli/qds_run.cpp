#include "cli/qds_run.h"

#include "cli/qds.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace quendra::test {

namespace fs = std::filesystem;

QdsRun runQds(const std::vector<std::string>& arguments, std::span<const std::uint8_t> input,
              const std::filesystem::path& programFolder) {
    std::FILE* stream = std::tmpfile();
    if (!input.empty()) std::fwrite(input.data(), 1, input.size(), stream);
    std::rewind(stream);
    std::ostringstream out;
    std::ostringstream err;
    cli::Environment environment = {::fileno(stream), out, err, programFolder};
    const int status = cli::runQds(arguments, environment);
    std::fclose(stream);
    return {status, out.str(), err.str()};
}

QdsTest::QdsTest() {
    ::setenv("XDG_CONFIG_HOME", configuration_.path().c_str(), 1);
    setIdentity(frozenIdentity());
}

QdsTest::~QdsTest() {
    ::unsetenv("XDG_CONFIG_HOME");
}

void QdsTest::setIdentity(const std::string& identity) {
    fs::create_directories(configuration_ / "quendra");
    std::ofstream registry(configuration_ / "quendra/registry.ini");
    registry << "[Identities]\nDefault User ID=" << identity << "\n";
}

std::string QdsTest::file(const std::string& name, std::span<const std::uint8_t> bytes) const {
    writeBytes(folder_ / name, bytes);
    return file(name);
}

std::vector<std::string> QdsTest::names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_.path()))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

std::string QdsTest::textOf(const std::string& name) const {
    const Bytes bytes = readBytes(file(name));
    return {bytes.begin(), bytes.end()};
}

Bytes QdsTest::built(const std::string& json) const {
    const QdsRun run = runQds({"build", "-", "--output", "-"}, bytesOf(json));
    EXPECT_EQ(run.status, 0) << run.err;
    return bytesOf(run.out);
}

Bytes scriptFile(const char* signature, std::initializer_list<Bytes> records) {
    return joined({bytesOf(signature), joined(records)});
}

}  // namespace quendra::test
