// qds: show, convert and build scripts on the command line.

#include "cli/qds.h"
#include "platform/process.h"
#include "platform/standard_streams.h"
#include "settings/startup.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <exception>
#include <ostream>
#include <span>
#include <string_view>

namespace {

using namespace quendra::cli;

int run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    const auto settings = quendra::findStartupSettings(quendra::processStartupInputs());
    Environment environment = {0,
                               out,
                               err,
                               {settings.programDir, settings.configDir, settings.installDir},
                               quendra::isTerminal(2),
                               quendra::isTerminal(1)};
    try {
        return runQds(arguments, environment);
    } catch (const std::exception& exception) {
        // Out of memory, mostly; every refusal of a file has its own message.
        err << "qds: " << exception.what() << std::endl;
        return statusRefused;
    }
}

// What a command ends with that could not write what it found: of some, 1 says that they found
// something, or nothing.
int lostOutputStatus(const std::vector<std::string>& arguments) {
    constexpr std::array<std::string_view, 4> commands = {"check", "grep", "diff", "merge"};
    const bool hasTrouble =
        !arguments.empty() && std::ranges::find(commands, arguments.front()) != commands.end();
    return hasTrouble ? statusTrouble : statusRefused;
}

}  // namespace

int main(int argc, char** argv) {
    quendra::forbidCoreFile();
    quendra::prepareStandardStreams();
    quendra::DescriptorBuffer outBuffer(1);
    quendra::DescriptorBuffer errBuffer(2);
    std::ostream out(&outBuffer);
    std::ostream err(&errBuffer);
    std::vector<std::string> arguments;
    for (char* argument : std::span(argv, static_cast<std::size_t>(argc)).subspan(argc > 0)) {
        arguments.emplace_back(argument);
    }

    int status = run(arguments, out, err);
    out.flush();
    // A reader that has seen enough goes away; that is no fault.
    if (const auto& failure = outBuffer.failure(); failure && failure->code != EPIPE) {
        err << "qds: standard output: " << failure->message << std::endl;
        status = std::max(status, lostOutputStatus(arguments));
    }
    err.flush();
    return status;
}
