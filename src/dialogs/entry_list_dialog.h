// A list of entries to go to one of them.
#pragma once

#include "text/language_library.h"

#include <QString>
#include <QStringList>

#include <optional>

class QWidget;

namespace quendra {

/// Shows lines (at least one) under a title, that of `current` selected; gives the number of the
/// one that was chosen with Return, a double-click or OK, from 0. None after Cancel.
[[nodiscard]] std::optional<int> chooseEntryLine(LanguageLibrary& language, QWidget* window,
                                                 const QString& title, const QStringList& lines,
                                                 int current);

}  // namespace quendra
