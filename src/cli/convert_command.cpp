// qds convert: scripts in the current version of the format, for the same or another host type.

#include "cli/loss_report.h"
#include "cli/qds.h"
#include "scriptfile/script_writer.h"

namespace quendra::cli {

namespace {

bool convertFile(const ConvertRequest& request, Environment& environment, const std::string& file) {
    const auto source =
        readScriptInput(environment, file, request.inPlace ? Input::RegularFile : Input::AnyFile);
    if (!source) return false;
    const ReadResult& read = source->read;
    const HostType hostType = request.hostType.value_or(read.signature.hostType);

    bool losesNothing = reportReading(environment, file, read);
    if (reportLoss(environment, file, read.script, read.signature.hostType, hostType)) {
        losesNothing = false;
    }
    if (!losesNothing && !request.allowLoss) return false;

    const auto bytes = writeScript(read.script, hostType);
    const bool isWritten = request.inPlace
                               ? replaceSource(environment, file, bytes, source->content)
                               : writeOutput(environment, request.output, bytes, source->content);
    return isWritten && losesNothing;
}

}  // namespace

int convertScripts(const ConvertRequest& request, Environment& environment) {
    bool isWell = true;
    for (const std::string& file : request.files) {
        if (!convertFile(request, environment, file)) isWell = false;
    }
    return isWell ? statusWell : statusRefused;
}

}  // namespace quendra::cli
