#include "app/script_menus.h"

#include "session/recent_scripts.h"
#include "text/path_text.h"
#include "text/text_encoding.h"
#include "text/text_ids.h"
#include "widgets/tool_tip.h"
#include "widgets/ui_text.h"

#include <QMenu>

#include <algorithm>
#include <system_error>
#include <vector>

namespace quendra {

namespace {

namespace fs = std::filesystem;

constexpr const char* exampleFolder = "../share/quendra-script-editor/examples";

std::vector<fs::path> examplesIn(const fs::path& folder) {
    std::vector<fs::path> examples;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->path().extension() == ".qds") examples.push_back(entry->path());
    }
    std::ranges::sort(examples);
    return examples;
}

// The end tells one name from the next as well as the beginning does.
QString menuName(const std::string& name) {
    constexpr qsizetype longest = 60;
    QString shown = qtText(escapeControlCharacters(name));
    if (shown.size() > longest) {
        shown = shown.left(longest / 2) + u'\u2026' + shown.right(longest / 2);
    }
    return shown.replace(u'&', QLatin1String("&&"));
}

}  // namespace

ScriptMenus::ScriptMenus(ApplicationState& state, QMenu& file, QAction& before, QMenu& help)
    : QObject(&file),
      state_(state),
      recent_(new QMenu(qtText(libraryText(state.language, textid::recentMenu)), &file)),
      examples_(new QMenu(qtText(libraryText(state.language, textid::examplesMenu)), &help)) {
    recent_->setObjectName(QStringLiteral("recentMenu"));
    recent_->setToolTipsVisible(true);
    file.insertMenu(&before, recent_);
    examples_->setObjectName(QStringLiteral("examplesMenu"));
    help.addSeparator();
    help.addMenu(examples_);
    connect(&file, &QMenu::aboutToShow, this,
            [this] { recent_->setEnabled(!recentScripts(state_.userState).empty()); });
    connect(&help, &QMenu::aboutToShow, this, &ScriptMenus::fillExamples);
    connect(recent_, &QMenu::aboutToShow, this, &ScriptMenus::fillRecent);
}

void ScriptMenus::fillRecent() {
    recent_->clear();
    const std::vector<fs::path> scripts = recentScripts(state_.userState);
    const std::vector<std::string> names = distinctNames(scripts);
    for (std::size_t i = 0; i < scripts.size(); ++i) {
        std::error_code error;
        const bool isThere = fs::is_regular_file(scripts[i], error);
        QString name = menuName(names[i]);
        if (!isThere) {
            name = qtText(libraryText(state_.language, textid::recentGone, {name.toStdString()}));
        }
        // The last one has the digit 0.
        QAction* item = recent_->addAction(
            QStringLiteral("&%1  %2").arg((i + 1) % mostRecentScripts).arg(name));
        item->setToolTip(wrappingToolTip(qtText(escapeControlCharacters(pathText(scripts[i])))));
        item->setEnabled(isThere);
        connect(item, &QAction::triggered, this,
                [this, script = scripts[i]] { Q_EMIT scriptChosen(script); });
    }
    recent_->addSeparator();
    const QAction* clear =
        recent_->addAction(qtText(libraryText(state_.language, textid::recentClear)));
    connect(clear, &QAction::triggered, this, [this] { forgetRecentScripts(state_.userState); });
}

void ScriptMenus::fillExamples() {
    examples_->clear();
    for (const fs::path& example : examplesIn(state_.settings.programDir / exampleFolder)) {
        const QAction* item = examples_->addAction(menuName(pathText(example.stem())));
        connect(item, &QAction::triggered, this,
                [this, example] { Q_EMIT exampleChosen(example); });
    }
    examples_->menuAction()->setVisible(!examples_->isEmpty());
}

}  // namespace quendra
