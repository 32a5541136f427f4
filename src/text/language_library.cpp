#include "text/language_library.h"

#include "platform/profile_file.h"

#include <QByteArray>
#include <QString>
#include <QTranslator>

#include <algorithm>
#include <utility>

namespace quendra {
namespace {

namespace fs = std::filesystem;

constexpr qsizetype maxBaseName = 64;
constexpr qsizetype maxText = 1023;
constexpr std::size_t maxThreads = 32;
constexpr const char* defaultBaseName = "qdstring";
constexpr const char* extension = ".qm";
constexpr const char* dataFolder = "../share/quendra-script-editor/language";

// Cuts at whole characters: half a surrogate pair would come out as a replacement character.
QString cut(const QString& text, qsizetype length) {
    if (text.size() <= length) return text;
    return text.left(text.at(length - 1).isHighSurrogate() ? length - 1 : length);
}

// A base name from "language.ini" stays below the folder even when it begins with a separator.
fs::path libraryPath(const fs::path& folder, const std::string& baseName) {
    return folder / fs::path(baseName + extension).relative_path();
}

// Looks for exactly this file. Left to itself, QTranslator goes on with shorter names ("qdstring"
// for a missing "qdstring_de"), and the user would get another language instead of the message.
std::unique_ptr<QTranslator> loadFile(const fs::path& path) {
    std::error_code ignored;
    if (!fs::is_regular_file(path, ignored)) return nullptr;
    auto texts = std::make_unique<QTranslator>();
    if (!texts->load(QString::fromStdString(path.string()))) return nullptr;
    return texts;
}

}  // namespace

std::string languageBaseName(const fs::path& configDir) {
    const auto profile =
        configDir.empty() ? std::nullopt : readProfileFile(configDir / "language.ini");
    const auto name = profile ? lookup(*profile, "Language", "Language") : std::nullopt;
    if (!name || name->empty()) return defaultBaseName;
    return cut(QString::fromStdString(*name), maxBaseName).toStdString();
}

LanguageLibrary::LanguageLibrary(std::function<void(const LanguageNotice&)> report)
    : report_(std::move(report)) {}

LanguageLibrary::~LanguageLibrary() = default;

std::optional<LanguageNotice> LanguageLibrary::load(const LanguageFolders& folders) {
    const auto baseName = languageBaseName(folders.configDir);
    for (const auto& folder :
         {folders.programDir, folders.programDir / dataFolder, folders.installDir}) {
        texts_ = loadFile(libraryPath(folder, baseName));
        if (texts_) return std::nullopt;
    }
    return LanguageNotice{libraryPath(folders.installDir, baseName).string(),
                          "Unable to load language library"};
}

void LanguageLibrary::unload() {
    texts_.reset();
}

std::string LanguageLibrary::loadText(StringId id) {
    if (!servesThisThread()) {
        if (report_) report_({"Thread Maximum Exceeded", "Quendra Fatal Error"});
        return {};
    }
    if (!texts_) return {};
    const auto text = texts_->translate(nullptr, QByteArray::number(id).constData());
    return cut(text, maxText).toStdString();
}

TextSource LanguageLibrary::textSource() {
    return [this](StringId id) { return loadText(id); };
}

bool LanguageLibrary::servesThisThread() {
    const auto self = std::this_thread::get_id();
    const std::lock_guard lock(threadsLock_);
    if (std::ranges::find(threads_, self) != threads_.end()) return true;
    if (threads_.size() == maxThreads) return false;
    threads_.push_back(self);
    return true;
}

std::string libraryText(LanguageLibrary& language, StringId id,
                        std::initializer_list<std::string> args) {
    const std::string text = language.loadText(id);
    return args.size() == 0 ? text : formatText(text, args);
}

}  // namespace quendra
