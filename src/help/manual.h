// The manual that is shipped with the program: HTML pages, one folder per language, and
// index.html as its contents.
#pragma once

#include <QString>
#include <QStringList>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// A line of the contents: a page, a group of lines, or both.
struct ContentsLine {
    QString title;
    /// File name, such as "wait-for.html"; empty for a mere group.
    QString page;
    std::vector<ContentsLine> lines;
};

/// A page that holds all words of a search.
struct SearchHit {
    QString page;
    QString title;
    /// The line of the page that holds the most of them.
    QString line;
};

/// The page about a command, a dialog or a host type: "wait-for.html" for "Wait_For".
[[nodiscard]] QString manualPageOf(std::string_view keyword);

/// Where an installation and a build tree alike keep the manual: beside the folder of the
/// programs.
[[nodiscard]] std::filesystem::path manualFolder(const std::filesystem::path& programDir);

/// Pages are read when they are asked for; the text of all of them with the first search.
class Manual {
  public:
    /// `language` is "de" or the like. A page that it lacks is taken from English.
    Manual(const std::filesystem::path& folder, const std::string& language);

    static constexpr const char* startPage = "index.html";

    [[nodiscard]] const QString& folder() const { return folder_; }
    /// The contents in reading order, from the lists and headings of the start page; empty when
    /// there is no manual.
    [[nodiscard]] const std::vector<ContentsLine>& contents() const { return contents_; }
    /// The file of a page; empty when no language has it. Pages are names without folders.
    [[nodiscard]] QString fileOf(const QString& page) const;
    /// The HTML of a page; empty when it cannot be read.
    [[nodiscard]] QString htmlOf(const QString& page) const;
    /// What the contents call the page, else its first heading.
    [[nodiscard]] QString titleOf(const QString& page) const;

    /// The pages that hold every word, whatever its case: those with the words in their title
    /// first, then those with them in a heading, each in reading order.
    [[nodiscard]] std::vector<SearchHit> search(const QStringList& words);

  private:
    struct SearchablePage {
        QString page;
        QString title;
        QStringList headings;
        QStringList lines;
    };
    void readAll();
    [[nodiscard]] SearchablePage readPage(const QString& page) const;
    /// In reading order, those that the contents lack behind them.
    [[nodiscard]] QStringList pages() const;

    QString folder_;
    QStringList languages_;
    std::vector<ContentsLine> contents_;
    std::vector<SearchablePage> searchable_;
};

/// The words of a search, in the order in which they were typed.
[[nodiscard]] QStringList searchWords(const QString& text);

}  // namespace quendra
