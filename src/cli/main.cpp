// qds: show, convert and build scripts on the command line.

#include "cli/output_stream.h"
#include "cli/qds.h"

#include <csignal>
#include <exception>
#include <fcntl.h>
#include <ostream>
#include <span>

namespace {

using namespace quendra::cli;

// Started with a standard descriptor closed, the next file opened would take its place, and
// messages would be written into a script. What opens here refuses to be written.
void occupyStandardDescriptors() {
    for (;;) {
        const int descriptor = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
        if (descriptor < 0 || descriptor > 2) return;
    }
}

int run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Environment environment = {0, out, err, {}};
    std::error_code unknown;
    environment.programFolder =
        std::filesystem::read_symlink("/proc/self/exe", unknown).parent_path();
    try {
        return runQds(arguments, environment);
    } catch (const std::exception& exception) {
        // Out of memory, mostly; every refusal of a file has its own message.
        err << "qds: " << exception.what() << std::endl;
        return statusRefused;
    }
}

}  // namespace

int main(int argc, char** argv) {
    occupyStandardDescriptors();
    // A reader that goes away is a failed write, reported like any other.
    std::signal(SIGPIPE, SIG_IGN);

    DescriptorBuffer outBuffer(1);
    DescriptorBuffer errBuffer(2);
    std::ostream out(&outBuffer);
    std::ostream err(&errBuffer);
    std::vector<std::string> arguments;
    for (char* argument : std::span(argv, static_cast<std::size_t>(argc)).subspan(argc > 0)) {
        arguments.emplace_back(argument);
    }

    int status = run(arguments, out, err);
    out.flush();
    if (outBuffer.failure()) {
        err << "qds: standard output: " << outBuffer.failure()->message << std::endl;
        if (status == statusWell) status = statusRefused;
    }
    err.flush();
    return status;
}
