#include "text/language_library.h"

#include "platform/profile_file.h"
#include "platform/settings_file.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>
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
constexpr qint64 maxFileSize = qint64{16} * 1024 * 1024;
constexpr const char* defaultBaseName = "qdstring";
constexpr const char* extension = ".qm";
constexpr const char* dataFolder = "../share/quendra-script-editor/language";

// Cuts at whole characters: half a surrogate pair would come out as a replacement character.
QString cut(const QString& text, qsizetype length) {
    if (text.size() <= length) return text;
    return text.left(text.at(length - 1).isHighSurrogate() ? length - 1 : length);
}

// "language.ini" may lie in a folder that anybody may write: its name must not lead to a library of
// theirs, whose sum would be theirs too.
bool staysBelowFolders(const std::string& baseName) {
    const fs::path name = fs::path(baseName).relative_path().lexically_normal();
    return !name.empty() && *name.begin() != "..";
}

// A base name that begins with a separator stays below the folder too.
fs::path libraryPath(const fs::path& folder, const std::string& baseName) {
    return folder / fs::path(baseName + extension).relative_path();
}

// Length and digest as they are written beside a library, empty when there are none.
std::string statedSum(const fs::path& path) {
    const auto text = readSettingsFile(fs::path(path) += ".sum").value_or("");
    return text.substr(0, text.find_last_not_of(" \r\n") + 1);
}

std::string sumOf(const QByteArray& content) {
    return std::to_string(content.size()) + " " +
           QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex().toStdString();
}

// The bytes of exactly this file when they are those that were built; otherwise none.
QByteArray readWhole(const fs::path& path) {
    std::error_code ignored;
    if (!fs::is_regular_file(path, ignored)) return {};
    QFile file(QString::fromStdString(path.string()));
    if (!file.open(QIODevice::ReadOnly)) return {};
    QByteArray content = file.read(maxFileSize);
    return sumOf(content) == statedSum(path) ? content : QByteArray();
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
    const fs::path last = libraryPath(folders.installDir, baseName);
    const LanguageNotice missing = {last.string(), "Unable to load language library"};
    unload();
    if (!staysBelowFolders(baseName)) return missing;
    for (const auto& folder : {folders.programDir, folders.programDir / dataFolder}) {
        if (loadFile(libraryPath(folder, baseName))) return std::nullopt;
    }
    if (isTrusted(last) && loadFile(last)) return std::nullopt;
    return missing;
}

// Read here and not by the toolkit, which goes on with shorter names ("qdstring" for a missing
// "qdstring_de"): the user would get another language instead of the message.
bool LanguageLibrary::loadFile(const fs::path& path) {
    unload();
    file_ = readWhole(path);
    if (file_.isEmpty()) return false;
    texts_ = std::make_unique<QTranslator>();
    const auto* bytes = reinterpret_cast<const uchar*>(file_.constData());
    if (texts_->load(bytes, static_cast<int>(file_.size()))) return true;
    unload();
    return false;
}

void LanguageLibrary::unload() {
    texts_.reset();
    file_.clear();
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
