// Drives modal dialogs that open each other: what is to be done in which dialog, in order, while
// the code under test runs.
#pragma once

#include <QDialog>
#include <QListView>
#include <QObject>

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>

namespace quendra::test {

/// One modal dialog on the screen.
struct OpenDialog {
    QDialog& dialog;

    template <class T>
    [[nodiscard]] T& widget(const char* name) const {
        T* found = dialog.findChild<T*>(QLatin1String(name));
        if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }

    void click(const char* button) const;
    /// A key to the widget that has the focus.
    void press(Qt::Key key) const;
    /// Keys (of ASCII) to the widget that has the focus.
    void type(const char* keys) const;
    /// Types over what a line edit or a spin box shows.
    void retype(const char* name, const std::string& keys) const;
    void clickRow(const char* list, const std::string& text) const;
    void doubleClickRow(const char* list, const std::string& text) const;

    [[nodiscard]] std::string title() const;
    /// What a label, a line edit, a spin box or a combo box shows.
    [[nodiscard]] std::string shown(const char* name) const;
    [[nodiscard]] bool isChecked(const char* button) const;
    [[nodiscard]] bool isEnabled(const char* name) const;
    [[nodiscard]] bool has(const char* name) const;
    /// The selected row's text; empty for none.
    [[nodiscard]] std::string selected(const char* list) const;
    [[nodiscard]] std::string focused() const;
};

/// Every step waits until its dialog is the active modal one. Steps that are left when the test
/// ends, and a dialog that is left open, fail it.
class ModalSteps : public QObject {
  public:
    ModalSteps();
    ~ModalSteps() override;
    ModalSteps(const ModalSteps&) = delete;
    ModalSteps& operator=(const ModalSteps&) = delete;

    void in(const char* dialog, std::function<void(const OpenDialog&)> step);
    /// Runs `operation`, which opens the first dialog, to its end.
    bool run(const std::function<bool()>& operation);

  private:
    struct Step {
        std::string dialog;
        std::function<void(const OpenDialog&)> act;
    };
    void watch();
    void look();
    void giveUp();

    std::deque<Step> steps_;
    int idleLooks_ = 0;
    bool running_ = false;
};

}  // namespace quendra::test
