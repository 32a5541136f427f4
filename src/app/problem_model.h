// The rows of the list of problems: each line is made when it is asked for.
#pragma once

#include "session/live_check.h"

#include <QAbstractListModel>

namespace quendra {

class ProblemModel : public QAbstractListModel {
    Q_OBJECT

  public:
    /// `check` outlives the model.
    explicit ProblemModel(const LiveCheck& check, QObject* parent = nullptr);

    /// Shows the findings as they are now. Between two calls the number of rows stays.
    void reload();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    const LiveCheck& check_;
    int rows_ = 0;
};

}  // namespace quendra
