#include "platform/process.h"

#include <QFile>
#include <QProcess>
#include <QStringList>

#include <unistd.h>

namespace quendra {

namespace {

// Our own descriptors stay here anyway. Those that this process was started with do too from now
// on: a viewer that outlives the editor would keep a pipe or a lock of whoever started it.
void keepDescriptors() {
    constexpr unsigned firstBehindStandard = 3;
    ::close_range(firstBehindStandard, ~0U, CLOSE_RANGE_CLOEXEC);
}

QString fromSystem(const std::string& text) {
    return QFile::decodeName(QByteArray::fromStdString(text));
}

}  // namespace

std::optional<std::string> startDetached(const std::string& program,
                                         const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments)
        list.append(fromSystem(argument));
    QProcess process;
    process.setProgram(fromSystem(program));
    process.setArguments(list);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    keepDescriptors();
    if (process.startDetached()) return std::nullopt;
    return process.errorString().toStdString();
}

std::optional<std::string> openWebPage(const std::string& address) {
    if (address.empty() || address.front() == '-') {
        return "not a web address: \"" + address + "\"";
    }
    if (!startDetached("xdg-open", {address})) return std::nullopt;
    return startDetached("gio", {"open", address});
}

}  // namespace quendra
