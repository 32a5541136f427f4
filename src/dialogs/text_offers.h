// What a field for a text offers to choose from, beside any text that can be typed.
#pragma once

#include "model/script.h"

#include <QString>
#include <QStringList>

class QWidget;

namespace quendra {

class TextEdit;

/// The names of the script's labels in its order, each once, as far as they can be typed.
[[nodiscard]] QStringList labelsOf(const Script& script);

/// The names of the variables that a Type can name: first those that an Input of the script stores.
[[nodiscard]] QStringList variablesOf(const Script& script);

/// The field with a button beside it that opens a list of the offers (at least one), as Down in the
/// field does. While it is open, what is typed goes into the field and leaves the offers that hold
/// it; Return takes the selected one, Esc none. A masked field offers nothing. The widget, which
/// owns the field, takes its place in the layout; `name` is what screen readers and the tool tip
/// call the button, "offers" its object name.
[[nodiscard]] QWidget* withOffers(TextEdit* field, const QStringList& offers, const QString& name);

}  // namespace quendra
