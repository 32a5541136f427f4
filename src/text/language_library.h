// The language library: the texts of the user interface by number, in the language that
// "language.ini" names.
#pragma once

#include "text/format_text.h"
#include "text/string_ids.h"

#include <QByteArray>

#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

class QTranslator;

namespace quendra {

// Gives the text of an id in UTF-8. Catalogues and tables take one of these instead of the library,
// so that tests can make their own texts.
using TextSource = std::function<std::string(StringId)>;

// A message for the user. The library never opens a box itself: the caller knows whether there are
// windows.
struct LanguageNotice {
    std::string text;
    std::string caption;
};

// Where the library and its setting are looked for.
struct LanguageFolders {
    std::filesystem::path programDir;  // the folder of the program file
    std::filesystem::path configDir;   // holds "language.ini"; empty: the default, English
    std::filesystem::path installDir;
};

// The base name of the library: "Language" of section "Language" in "language.ini" of `configDir`,
// cut to 64 characters; "qdstring" when that is missing or empty.
[[nodiscard]] std::string languageBaseName(const std::filesystem::path& configDir);

// One loaded library. loadText may be called from any thread; load, unload and the destructor only
// while no other thread uses it.
class LanguageLibrary {
  public:
    // `report` receives the message for threads beyond the limit, on the thread that asked.
    explicit LanguageLibrary(std::function<void(const LanguageNotice&)> report = {});
    ~LanguageLibrary();
    LanguageLibrary(const LanguageLibrary&) = delete;
    LanguageLibrary& operator=(const LanguageLibrary&) = delete;

    // Loads the library from the program's folder or, since an installation keeps its data apart
    // from its programs, the data folder beside that; then from `installDir`. Gives none when it is
    // loaded; otherwise the notice to show: all texts are then empty, and the program goes on.
    //
    // A library is passed over like a missing one when it is not what was built, as "NAME.qm.sum"
    // beside it says: the toolkit crashes on a damaged one. So is one whose name leads out of these
    // folders, and that of an `installDir` elsewhere also when anybody but the user and root may
    // have written it, for that may be any current folder.
    [[nodiscard]] std::optional<LanguageNotice> load(const LanguageFolders& folders);

    // Drops the texts; loadText then gives empty ones.
    void unload();

    // The text of `id`, at most 1023 characters; empty when the library lacks it or none is loaded.
    // The library serves the first 32 threads that ask; the 33rd is reported and gets the empty
    // text each time.
    [[nodiscard]] std::string loadText(StringId id);

    // loadText as a value. The library must outlive it.
    [[nodiscard]] TextSource textSource();

  private:
    bool loadFile(const std::filesystem::path& path);
    bool servesThisThread();

    std::function<void(const LanguageNotice&)> report_;
    // What the texts are read from as long as they are used.
    QByteArray file_;
    std::unique_ptr<QTranslator> texts_;
    std::mutex threadsLock_;
    std::vector<std::thread::id> threads_;
};

// A text of the library with its places filled, as formatText does.
[[nodiscard]] std::string libraryText(LanguageLibrary& language, StringId id,
                                      std::initializer_list<std::string> args = {});

}  // namespace quendra
