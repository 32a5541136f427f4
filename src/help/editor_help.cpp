#include "help/editor_help.h"

#include "help/help_window.h"
#include "widgets/ui_text.h"

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

EditorHelp::EditorHelp(ApplicationState& state, HelpLaunchers launchers)
    : state_(state), launchers_(std::move(launchers)) {
    qApp->installEventFilter(this);
}

EditorHelp::~EditorHelp() = default;

void EditorHelp::showHelp() {
    if (!showConfiguredHelp(state_.settings, launchers_)) {
        openPage(QLatin1String(Manual::startPage));
    }
}

void EditorHelp::openPage(const QString& page) {
    if (!manual_) {
        manual_ = std::make_unique<HelpWindow>(
            Manual(manualFolder(state_.settings.programDir), state_.language.language()),
            state_.language, [this](const QString& address) {
                static_cast<void>(launchers_.openAddress(address.toStdString()));
            });
    }
    manual_->open(page);
}

void EditorHelp::helpOn(std::optional<CommandCode> command) {
    if (!command) {
        openPage(manualPageOf(hostTypeInfo(state_.currentHostType).commandLineName));
    } else if (*command == CommandCode::LuFunction) {
        openPage(manualPageOf(luFunctionKeyword));
    } else {
        const std::string_view keyword = commandKeyword(*command);
        openPage(manualPageOf(keyword.empty() ? menuCommandKeyword : keyword));
    }
}

bool EditorHelp::eventFilter(QObject* watched, QEvent* event) {
    if (!asksForHelp(*event) || !watched->isWidgetType()) return false;
    const QString page = helpPageOf(static_cast<QWidget*>(watched));
    if (page.isEmpty()) return false;
    openPage(page);
    return true;
}

}  // namespace quendra
