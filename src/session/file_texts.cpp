#include "session/file_texts.h"

#include "text/path_text.h"
#include "text/text_ids.h"

namespace quendra {

namespace fs = std::filesystem;

std::string failureText(LanguageLibrary& language, const FileFailure& failure) {
    if (failure.code == notRegularFile) return libraryText(language, textid::fileIsNotRegular);
    if (failure.folder.empty()) return failure.message;
    return libraryText(language, textid::folderTakesNoFile,
                       {pathText(failure.folder), failure.message});
}

std::string failureText(LanguageLibrary& language, const ReplaceResult& result) {
    std::string text = failureText(language, *result.failure);
    if (!result.backup.empty())
        text += "\n\n" + libraryText(language, textid::oldFileKept, {pathText(result.backup)});
    return text;
}

std::string keptName(const fs::path& path, const fs::path& kept) {
    std::error_code error;
    const fs::path folder = fs::absolute(path, error).parent_path();
    const bool isBeside = !error && fs::equivalent(folder, kept.parent_path(), error);
    return pathText(isBeside ? kept.filename() : kept);
}

std::string savedNote(LanguageLibrary& language, const fs::path& path,
                      const ReplaceResult& result) {
    std::string note;
    if (result.unsynced)
        note = libraryText(language, textid::savedUnsynced, {result.unsynced->message});
    if (!result.backup.empty()) {
        note += (note.empty() ? "" : ". ") +
                libraryText(language, textid::oldFileKept, {keptName(path, result.backup)});
    }
    return note;
}

}  // namespace quendra
