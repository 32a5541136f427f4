// One gesture after the other on the real window, each chosen at random among all that a user has.
#pragma once

#include "app/editor_fixture.h"
#include "app/storm_hands.h"

#include <QEvent>

#include <span>
#include <string>

namespace quendra {
class PaneList;
}

namespace quendra::test {

class Gestures {
  public:
    /// `files` are offered to Open, Save As and Insert Script.
    Gestures(Chance& chance, MainWindow& window, std::span<const std::filesystem::path> files);

    /// Makes the next gesture and gives its name.
    std::string make();
    /// What a file dialog is answered with.
    [[nodiscard]] std::optional<std::filesystem::path> chooseFile();

  private:
    struct Kind {
        const char* name;
        unsigned int weight;
        void (Gestures::*make)();
    };
    static const Kind kinds[];

    void clickRow();
    void walk();
    void typeAhead();
    void doubleClick();
    void pressReturn();
    void dragFromPalette();
    void dragInScript();
    void spoilDrag();
    void moveByKeys();
    void editKey();
    void fileKey();
    void undoOrRedo();
    void findSomething();
    void useFindBar();
    void clickToolButton();
    void useMenu();
    void resizeWindow();
    void turnWheel();
    void closeWindow();

    [[nodiscard]] PaneList& list(const char* name);
    [[nodiscard]] PaneList& palette();
    [[nodiscard]] PaneList& anyList();
    [[nodiscard]] QPoint onRow(PaneList& shown, int row);
    [[nodiscard]] QPoint onSomeRow(PaneList& shown);
    [[nodiscard]] QPoint anywhere();
    void mouse(QEvent::Type type, QPoint point, Qt::MouseButton button,
               Qt::KeyboardModifiers held = {});
    void click(QPoint point, Qt::KeyboardModifiers held = {});
    void press(Qt::Key key, Qt::KeyboardModifiers held = {});
    void drag(QPoint from, QPoint to);

    Chance& chance_;
    MainWindow& window_;
    std::span<const std::filesystem::path> files_;
};

}  // namespace quendra::test
