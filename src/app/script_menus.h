// The submenus that list scripts: those opened last, and the examples that came with the program.
#pragma once

#include "session/application_state.h"

#include <QObject>

#include <filesystem>

class QAction;
class QMenu;

namespace quendra {

/// Both menus are filled when they open, with what there is then.
class ScriptMenus : public QObject {
    Q_OBJECT

  public:
    /// `state` outlives it. The submenus go before `before` of `file`, and to the end of `help`.
    ScriptMenus(ApplicationState& state, QMenu& file, QAction& before, QMenu& help);

  Q_SIGNALS:
    void scriptChosen(const std::filesystem::path& script);
    /// A copy of it is to be edited, not the file itself.
    void exampleChosen(const std::filesystem::path& script);

  private:
    void fillRecent();
    void fillExamples();

    ApplicationState& state_;
    QMenu* recent_;
    QMenu* examples_;
};

}  // namespace quendra
