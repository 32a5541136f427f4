// The hands and eyes of a user on an open dialog. Widgets go by their object names, texts are
// UTF-8.
#pragma once

#include <QDialog>

#include <stdexcept>
#include <string>

namespace quendra::test {

/// Sends a text as keys, characters outside of ASCII included.
void typeInto(QWidget& widget, const std::string& text);
void pasteInto(QWidget& widget, const std::string& text);
void clickOn(QWidget& widget);

struct OpenDialog {
    QDialog* dialog = nullptr;

    template <class T = QWidget>
    [[nodiscard]] T& widget(const std::string& name) const {
        T* found = dialog->findChild<T*>(QString::fromStdString(name));
        if (found == nullptr) throw std::runtime_error("no widget " + name);
        return *found;
    }

    void click(const std::string& button) const { clickOn(widget(button)); }
    /// Keys to the widget that has the focus.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void type(const std::string& keys) const;
    /// Types over what a field shows, or pastes over it.
    void retype(const std::string& field, const std::string& keys) const;
    void repaste(const std::string& field, const std::string& text) const;
    /// Goes to an item of a drop-down list by its arrow keys.
    void choose(const std::string& list, int item) const;
    void showTab(int page) const;
    void clickRow(const char* list, const std::string& text) const;
    void doubleClickRow(const char* list, const std::string& text) const;

    [[nodiscard]] std::string title() const { return dialog->windowTitle().toStdString(); }
    /// What a label, a button, an edit, a spin box or a combo box shows.
    [[nodiscard]] std::string shown(const std::string& name) const;
    /// One digit for each of the names, parted by blanks: 1 for checked, and for enabled.
    [[nodiscard]] std::string checked(const std::string& buttons) const {
        return states(buttons, "checked");
    }
    [[nodiscard]] std::string enabled(const std::string& names) const {
        return states(names, "enabled");
    }
    [[nodiscard]] std::string states(const std::string& names, const char* property) const;
    [[nodiscard]] bool isChecked(const char* button) const { return checked(button) == "1"; }
    [[nodiscard]] bool isEnabled(const char* name) const { return enabled(name) == "1"; }
    [[nodiscard]] bool has(const char* name) const;
    /// The selected row's text; empty for none.
    [[nodiscard]] std::string selected(const char* list) const;
    /// The object name of what has the focus.
    [[nodiscard]] std::string focused() const;
};

}  // namespace quendra::test
