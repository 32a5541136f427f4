#include "help/manual.h"

#include "widgets/ui_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>

namespace quendra {

namespace {

namespace fs = std::filesystem;

constexpr const char* dataFolder = "../share/quendra-script-editor/help";
constexpr const char* defaultLanguage = "en";

struct FlatLine {
    int depth;
    QString title;
    QString page;
};

QString pageOfLink(const QString& link) {
    const QString page = link.section(u'#', 0, 0);
    return page.endsWith(QLatin1String(".html")) && !page.contains(u'/') ? page : QString();
}

// The title of a line with a link is the link's text: what stands behind it explains the page.
FlatLine lineOf(const QTextBlock& block, int depth) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextCharFormat format = part.fragment().charFormat();
        if (!format.isAnchor()) continue;
        QString title;
        for (; !part.atEnd() && part.fragment().charFormat().anchorHref() == format.anchorHref();
             ++part) {
            title += part.fragment().text();
        }
        return {depth, title.trimmed(), pageOfLink(format.anchorHref())};
    }
    return {depth, block.text().trimmed(), {}};
}

std::vector<FlatLine> flatContents(const QString& html) {
    QTextDocument document;
    document.setHtml(html);
    std::vector<FlatLine> lines;
    int groupDepth = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const int heading = block.blockFormat().headingLevel();
        if (heading >= 2) {
            groupDepth = heading - 1;
            lines.push_back(lineOf(block, groupDepth));
        } else if (block.textList() != nullptr) {
            const int indent = std::max(block.textList()->format().indent(), 1);
            lines.push_back(lineOf(block, groupDepth + indent));
        }
    }
    return lines;
}

// Takes the lines from `at` on that are deeper than `depth`.
std::vector<ContentsLine> nested(const std::vector<FlatLine>& flat, std::size_t& at, int depth) {
    std::vector<ContentsLine> lines;
    while (at < flat.size() && flat[at].depth > depth) {
        const FlatLine& line = flat[at++];
        lines.push_back({line.title, line.page, nested(flat, at, line.depth)});
    }
    // A heading over nothing that can be opened.
    std::erase_if(
        lines, [](const ContentsLine& line) { return line.page.isEmpty() && line.lines.empty(); });
    return lines;
}

QString titleIn(const std::vector<ContentsLine>& lines, const QString& page) {
    for (const ContentsLine& line : lines) {
        if (line.page == page) return line.title;
        const QString below = titleIn(line.lines, page);
        if (!below.isEmpty()) return below;
    }
    return {};
}

void addPages(const std::vector<ContentsLine>& lines, QStringList& pages) {
    for (const ContentsLine& line : lines) {
        if (!line.page.isEmpty() && !pages.contains(line.page)) pages.append(line.page);
        addPages(line.lines, pages);
    }
}

QString readText(const QString& path) {
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll());
}

qsizetype countWords(const QString& text, const QStringList& words) {
    return std::ranges::count_if(
        words, [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

bool holdsAll(const QStringList& lines, const QStringList& words) {
    return std::ranges::all_of(words, [&](const QString& word) {
        return std::ranges::any_of(
            lines, [&](const QString& line) { return line.contains(word, Qt::CaseInsensitive); });
    });
}

// "de" also serves "de_AT".
QStringList languagesFor(const std::string& language, const QString& folder) {
    QStringList languages;
    QString name = qtText(language);
    for (; !name.isEmpty(); name = name.left(std::max<qsizetype>(name.lastIndexOf(u'_'), 0))) {
        if (!name.contains(u'/') && QFileInfo(folder + u'/' + name).isDir()) languages += name;
    }
    languages += QLatin1String(defaultLanguage);
    return languages;
}

}  // namespace

QString manualPageOf(std::string_view keyword) {
    return qtText(keyword).toLower().replace(u'_', u'-') + QLatin1String(".html");
}

fs::path manualFolder(const fs::path& programDir) {
    return programDir / dataFolder;
}

QStringList searchWords(const QString& text) {
    return text.simplified().split(u' ', Qt::SkipEmptyParts);
}

Manual::Manual(const fs::path& folder, const std::string& language)
    : folder_(QDir::cleanPath(qtText(pathText(folder)))),
      languages_(languagesFor(language, folder_)) {
    const std::vector<FlatLine> flat = flatContents(htmlOf(QLatin1String(startPage)));
    std::size_t at = 0;
    contents_ = nested(flat, at, 0);
}

QString Manual::fileOf(const QString& page) const {
    if (page.contains(u'/')) return {};
    for (const QString& language : languages_) {
        const QString file = folder_ + u'/' + language + u'/' + page;
        if (QFileInfo(file).isFile()) return file;
    }
    return {};
}

QString Manual::htmlOf(const QString& page) const {
    return readText(fileOf(page));
}

QString Manual::titleOf(const QString& page) const {
    const QString title = titleIn(contents_, page);
    return title.isEmpty() ? readPage(page).title : title;
}

QStringList Manual::pages() const {
    QStringList all;
    addPages(contents_, all);
    for (const QString& language : languages_) {
        const QDir folder(folder_ + u'/' + language);
        for (const QString& page : folder.entryList({QStringLiteral("*.html")}, QDir::Files)) {
            if (!all.contains(page) && page != QLatin1String(startPage)) all.append(page);
        }
    }
    return all;
}

Manual::SearchablePage Manual::readPage(const QString& page) const {
    QTextDocument document;
    document.setHtml(htmlOf(page));
    SearchablePage result;
    result.page = page;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QString text = block.text();
        // Stands for a picture.
        text.remove(QChar::ObjectReplacementCharacter);
        text = text.simplified();
        if (text.isEmpty()) continue;
        const bool isHeading = block.blockFormat().headingLevel() > 0;
        if (isHeading && result.title.isEmpty()) {
            result.title = text;
        } else {
            (isHeading ? result.headings : result.lines).append(text);
        }
    }
    return result;
}

void Manual::readAll() {
    for (const QString& page : pages()) {
        SearchablePage read = readPage(page);
        const QString title = titleIn(contents_, page);
        if (!title.isEmpty()) read.title = title;
        if (!read.lines.isEmpty() || !read.title.isEmpty()) searchable_.push_back(std::move(read));
    }
}

std::vector<SearchHit> Manual::search(const QStringList& words) {
    if (words.isEmpty()) return {};
    if (searchable_.empty()) readAll();
    std::vector<SearchHit> byRank[3];
    for (const SearchablePage& page : searchable_) {
        const QStringList all = QStringList(page.title) + page.headings + page.lines;
        if (!holdsAll(all, words)) continue;
        const std::size_t rank = holdsAll({page.title}, words)    ? 0
                                 : holdsAll(page.headings, words) ? 1
                                                                  : 2;
        const QStringList shown = page.lines + page.headings;
        const auto line = std::ranges::max_element(
            shown, {}, [&](const QString& text) { return countWords(text, words); });
        byRank[rank].push_back({page.page, page.title, line == shown.end() ? QString() : *line});
    }
    std::vector<SearchHit> hits = std::move(byRank[0]);
    for (std::size_t rank = 1; rank < std::size(byRank); ++rank) {
        hits.insert(hits.end(), byRank[rank].begin(), byRank[rank].end());
    }
    return hits;
}

}  // namespace quendra
