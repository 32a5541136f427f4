#include "transfer/command_builder.h"

#include "model/menu_commands.h"

#include <string_view>

namespace quendra {

namespace {

using namespace transfer;

struct Options {
    const FileTransferSettings& settings;
    bool tso;
    bool send;

    [[nodiscard]] bool isOn(const TransferField& field) const {
        return transferNumber(settings, field) == 1;
    }
    [[nodiscard]] std::string number(const TransferField& field) const {
        return std::to_string(transferNumber(settings, field));
    }
    [[nodiscard]] bool isZero(const TransferField& field) const {
        return transferNumber(settings, field) == 0;
    }
    [[nodiscard]] std::string text(const TransferField& field) const {
        return std::string(transferText(settings, field));
    }
    [[nodiscard]] bool hasRecordFormat() const {
        const auto format = transferNumber(settings, recordFormat);
        return format >= 1 && format <= 3;
    }
    [[nodiscard]] std::string recordFormatLetter() const {
        return std::string(1, std::string_view("RVFU")[transferNumber(settings, recordFormat)]);
    }
};

void appendSpace(std::string& line, const Options& options) {
    if (!options.isZero(blockSize)) line += "BLKSIZE(" + options.number(blockSize) + ") ";
    if (options.isZero(primarySpace)) return;
    line += "SPACE(" + options.number(primarySpace) + "," + options.number(secondarySpace) + ") ";
    switch (transferNumber(options.settings, spaceUnit)) {
        case 1: line += "AVBLOCK(" + options.number(averageBlock) + ") "; break;
        case 2: line += "CYLINDERS "; break;
        case 3: line += "TRACKS "; break;
        default: break;
    }
}

void appendDataOptions(std::string& line, const Options& options) {
    const std::string_view open = options.tso ? "(" : " ";
    const std::string_view close = options.tso ? ") " : " ";
    const auto append = [&](std::string_view keyword, const std::string& value) {
        line.append(keyword).append(open).append(value).append(close);
    };
    if (options.isZero(binary)) line += "ASCII ";
    if (options.isOn(crlf)) line += "CRLF ";
    if (options.send && options.hasRecordFormat()) {
        if (!options.isZero(recordLength)) append("LRECL", options.number(recordLength));
        append("RECFM", options.recordFormatLetter());
    }
    if (options.send && options.tso) appendSpace(line, options);
    line += options.text(additionalParameters);
}

void appendVmCms(std::string& line, const Options& options) {
    line += ' ';
    for (const TransferField& field : {fileType, fileMode}) {
        const std::string text = options.text(field);
        if (!text.empty()) line += text + " ";
    }
    // A record format alone needs the parenthesis too: without it the host reads RECFM as part of
    // the file name.
    const bool formatAlone = options.send && options.hasRecordFormat();
    if (options.isOn(append) || options.isZero(binary) || options.isOn(crlf) ||
        !options.isZero(recordLength) || formatAlone) {
        line += '(';
    }
    if (options.isOn(append)) line += "APPEND ";
    appendDataOptions(line, options);
}

void appendTso(std::string& line, const Options& options) {
    const std::string memberName = options.text(member);
    if (!memberName.empty()) {
        // The member belongs inside the quotes of a fully qualified data set name.
        const bool quoted = line.ends_with('\'');
        if (quoted) line.pop_back();
        line += "(" + memberName + ")";
        if (quoted) line += '\'';
    }
    const std::string password = options.text(hostFilePassword);
    if (!password.empty()) line += " /" + password;
    line += ' ';
    if (options.isOn(append)) line += "APPEND ";
    appendDataOptions(line, options);
}

void appendCics(std::string& line, const Options& options) {
    line += ' ';
    if (options.isOn(includeLeftParenthesis)) line += '(';
    line += options.isOn(binary) ? "BINARY NOCRLF" : "ASCII CRLF";
    if (options.isOn(includeRightParenthesis)) line += ')';
    line += ' ';
    line += options.text(additionalParameters);
}

}  // namespace

TransferDirection transferDirection(std::uint32_t commandId) {
    return menuParameters(commandId) == MenuParameters::SendFile ? TransferDirection::Send
                                                                 : TransferDirection::Receive;
}

TransferInputs transferInputs(const Step& fields) {
    return {fields.transferSettings, fields.transferHost, transferDirection(fields.commandId)};
}

std::string wholeTransferCommand(const FileTransferSettings& settings, std::uint8_t host,
                                 TransferDirection direction) {
    const bool send = direction == TransferDirection::Send;
    const Options options{settings, host == transferHostTso, send};
    std::string line = options.text(transferProgramName);
    line += send ? " PUT " : " GET ";
    line += options.text(hostFileName);
    switch (host) {
        case transferHostVmCms: appendVmCms(line, options); break;
        case transferHostTso: appendTso(line, options); break;
        case transferHostCics: appendCics(line, options); break;
        default: break;
    }
    return line;
}

std::string buildTransferCommand(const FileTransferSettings& settings, std::uint8_t host,
                                 TransferDirection direction) {
    std::string line = wholeTransferCommand(settings, host, direction);
    if (line.size() > maxTransferCommandLength) line.resize(maxTransferCommandLength);
    return line;
}

}  // namespace quendra
