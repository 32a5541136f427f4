#include "scriptfile/script_files.h"

#include "scriptfile/script_writer.h"

#include <utility>

namespace quendra {

LoadedScript loadScriptFile(const std::filesystem::path& path) {
    LoadedScript loaded;
    // One byte over the limit shows that there is more.
    FileContent content = readRegularFile(path, maxScriptFileSize + 1);
    loaded.stamp = content.stamp;
    if (content.failure) {
        loaded.failure = std::move(content.failure);
    } else {
        loaded.read = readScript(std::move(content.storage), content.size);
    }
    return loaded;
}

ReplaceResult saveScriptFile(const std::filesystem::path& path, const Script& script,
                             HostType hostType, OldFile oldFile, NewFile newFile) {
    return replaceFile(path, writeScript(script, hostType), oldFile, newFile);
}

std::optional<ReplaceResult> upgradeScriptFile(const std::filesystem::path& path,
                                               const LoadedScript& loaded) {
    if (!loaded.ok() || !loaded.read.isWhole() || !loaded.read.isOlderVersion()) {
        return std::nullopt;
    }
    if (fileStamp(path) != loaded.stamp) return std::nullopt;
    return saveScriptFile(path, loaded.read.script, loaded.read.signature.hostType,
                          OldFile::KeepAsBackup);
}

std::string describe(ReadStop stop) {
    switch (stop) {
        case ReadStop::None: return "";
        case ReadStop::EndInsideRecord: return "the file ends inside an entry";
        case ReadStop::UnknownCode: return "unknown command code";
        case ReadStop::PromptTooLong: return "an Input prompt is longer than 1023 characters";
        case ReadStop::NestedTooDeep: return "actions are nested too deep";
        case ReadStop::TooManyEntries: return "the file has more than 4096 entries";
        case ReadStop::FileTooLong: return "the file is longer than any script";
    }
    return "";
}

std::string describe(ReadRefusal refusal) {
    return refusal == ReadRefusal::TooShort ? "the file is too short to be a script"
                                            : "the file has no script signature of a known version";
}

}  // namespace quendra
