#include "session/crash_message.h"

#include "platform/product_version.h"

#include <cstdio>

namespace quendra {

namespace {

std::string formatted(const char* format, unsigned long number) {
    char text[32];
    std::snprintf(text, sizeof(text), format, number);
    return text;
}

}  // namespace

std::filesystem::path crashDumpPath(const std::filesystem::path& folder, const std::string& program,
                                    const std::tm& localTime) {
    char minute[16] = {};
    std::strftime(minute, sizeof(minute), "%m%d%H%M", &localTime);
    return folder / (program + "." + fullVersion + "." + minute + ".dmp");
}

std::string crashMessage(const std::string& program, const Fault& fault,
                         const std::filesystem::path& dump,
                         const std::optional<std::string>& noDump) {
    std::string text = "Caught program exception in " + program + " " + fullVersion + "\r\n";
    if (fault.access) {
        text += "Type = EXCEPTION_ACCESS_VIOLATION\r\n";
        text += "Address = " + formatted("%08lx", fault.address) + "\r\n";
        text += std::string("Details = Illegal ") + (fault.access->isWrite ? "write" : "read") +
                " at address " + formatted("%08lx", fault.access->address) + "\r\n";
    } else {
        text += "Type = " + formatted("%lx", fault.code) + "\r\n";
        text += "Address = " + formatted("%08lx", fault.address);
    }
    text += "\r\nA diagnostic file was written to: " + dump.string();
    // The line above belongs to every message.
    if (noDump) text += "\r\nThis failed, and there is no such file: " + *noDump;
    return text;
}

}  // namespace quendra
