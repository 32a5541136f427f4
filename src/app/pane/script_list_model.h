// The rows of the script list: each line is made when it is asked for.
#pragma once

#include "session/application_state.h"

#include <QAbstractListModel>

#include <vector>

namespace quendra {

class LiveCheck;

class ScriptListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    /// `state` outlives the model.
    explicit ScriptListModel(ApplicationState& state, QObject* parent = nullptr);

    /// Shows the script as it is now. Between two calls the number of rows stays as it was,
    /// whatever happens to the script.
    void reload();

    /// Marks these rows (ascending), and no others, with a background of their own.
    void markRows(std::vector<std::size_t> rows);

    /// Marks what this check, which outlives the model, has found, from now on and whenever it is
    /// told anew. Null for none.
    void showFindings(const LiveCheck* check);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    /// The display text is one line, with control characters escaped; the tool tip is the same
    /// text, ready to wrap, and says of a hidden text that is not shown why, and what is wrong with
    /// the step, which is also the row's description for screen readers.
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    [[nodiscard]] QVariant lookOf(std::size_t row, int role) const;
    [[nodiscard]] QString toolTipOf(const ScriptEntry& entry, const QString& findings) const;
    [[nodiscard]] QString findingsOf(std::size_t row) const;

    ApplicationState& state_;
    int rows_ = 0;
    std::vector<std::size_t> marked_;
    const LiveCheck* check_ = nullptr;
};

}  // namespace quendra
