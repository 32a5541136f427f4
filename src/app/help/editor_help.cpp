#include "app/help/editor_help.h"

#include "app/help/help_window.h"
#include "app/main_window.h"
#include "app/toolkit_language.h"
#include "app/ui_text.h"

#include <QApplication>
#include <QKeyEvent>

#include <utility>

namespace quendra {

namespace {

constexpr std::string_view menuCommandKeyword = "Menu_Command";
constexpr std::string_view luFunctionKeyword = "LU_Function";

QString helpPageOf(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        const QString keyword = widget->property("helpPage").toString();
        if (!keyword.isEmpty()) return manualPageOf(keyword.toStdString());
        if (widget->isWindow()) break;
    }
    return {};
}

bool asksForHelp(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F1 && !key.isAutoRepeat() &&
           (key.modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) == Qt::NoModifier;
}

}  // namespace

EditorHelp::EditorHelp(ApplicationState& state, MainWindow& window, HelpLaunchers launchers)
    : state_(state), window_(window), launchers_(std::move(launchers)) {
    window_.setHelpCommands({[this] { showHelp(); }, [this] { helpOnSelection(); }});
    qApp->installEventFilter(this);
}

EditorHelp::~EditorHelp() {
    window_.setHelpCommands({});
}

void EditorHelp::showHelp() {
    if (!showConfiguredHelp(state_.settings, launchers_)) {
        openPage(QLatin1String(Manual::startPage));
    }
}

void EditorHelp::openPage(const QString& page) {
    if (!manual_) {
        manual_ = std::make_unique<HelpWindow>(
            Manual(manualFolder(state_.settings.programDir),
                   interfaceLanguage(state_.settings.configDir)),
            state_.language, [this](const QString& address) {
                static_cast<void>(launchers_.openAddress(address.toStdString()));
            });
    }
    manual_->open(page);
}

QString EditorHelp::pageOfSelection() const {
    const EditorPane& pane = window_.pane();
    const QString hostPage = manualPageOf(hostTypeInfo(state_.currentHostType).commandLineName);
    const auto pageOf = [&](CommandCode code) {
        if (code == CommandCode::LuFunction) return manualPageOf(luFunctionKeyword);
        const std::string_view keyword = commandKeyword(code);
        return manualPageOf(keyword.empty() ? menuCommandKeyword : keyword);
    };
    const std::optional<Palette> palette = pane.focusedPalette();
    if (!palette) {
        const int entry = pane.focusedEntry();
        if (entry < 0 || pane.selectedEntries().empty()) return hostPage;
        return pageOf(state_.script.entries[static_cast<std::size_t>(entry)].code());
    }
    const int row = pane.selectedRow(*palette);
    if (row < 0) return hostPage;
    if (*palette == Palette::LuFunctions) return manualPageOf(luFunctionKeyword);
    if (*palette == Palette::MenuCommands) return manualPageOf(menuCommandKeyword);
    return pageOf(scriptEvents()[static_cast<std::size_t>(row)].code);
}

void EditorHelp::helpOnSelection() {
    openPage(pageOfSelection());
}

bool EditorHelp::eventFilter(QObject* watched, QEvent* event) {
    if (!asksForHelp(*event) || !watched->isWidgetType()) return false;
    const QString page = helpPageOf(static_cast<QWidget*>(watched));
    if (page.isEmpty()) return false;
    openPage(page);
    return true;
}

}  // namespace quendra
