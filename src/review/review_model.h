// The rows of a comparison: two scripts with their steps beside each other. Lines are made when
// they are asked for.
#pragma once

#include "compare/aligned_rows.h"
#include "session/application_state.h"

#include <QAbstractListModel>
#include <QIcon>

#include <string>

namespace quendra {

/// One of the two scripts, and how it is presented. Texts are UTF-8.
struct ReviewSide {
    Script script;
    HostType hostType = HostType::Mainframe;
    std::string name;
    /// Where it lies; empty where there is nothing to say.
    std::string place;
    /// What is wrong with it; empty when it is whole.
    std::string note;

    bool operator==(const ReviewSide&) const = default;
};

enum class Side : std::uint8_t { Left, Right };

class ReviewModel : public QAbstractListModel {
    Q_OBJECT

  public:
    /// `state` outlives the model; its script is not looked at.
    explicit ReviewModel(ApplicationState& state, QObject* parent = nullptr);

    /// The rows name steps of the two scripts.
    void show(ReviewSide left, ReviewSide right, AlignedScripts aligned);

    [[nodiscard]] const ReviewSide& side(Side side) const {
        return side == Side::Left ? left_ : right_;
    }
    [[nodiscard]] const AlignedScripts& aligned() const { return aligned_; }
    [[nodiscard]] const AlignedRow& row(int row) const {
        return aligned_.rows[static_cast<std::size_t>(row)];
    }

    /// The line of a side in a row, on one line; empty where the side has no step there.
    [[nodiscard]] QString line(int row, Side side) const;
    [[nodiscard]] QIcon icon(int row, Side side) const;
    /// What became of the row's steps: "changed", "only on the left".
    [[nodiscard]] QString fate(int row) const;
    /// What stands where the other side has no step.
    [[nodiscard]] QString emptyText(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    /// The text is the line of one side; the accessible text says what became of the step, and both
    /// sides with their numbers.
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    [[nodiscard]] QString described(int row, const QString& separator) const;

    ApplicationState& state_;
    ReviewSide left_;
    ReviewSide right_;
    AlignedScripts aligned_;
};

/// The step of a side in a row.
[[nodiscard]] inline std::optional<std::size_t> stepOf(const AlignedRow& row, Side side) {
    return side == Side::Left ? row.left : row.right;
}

/// A step as users count.
[[nodiscard]] inline std::string shownNumber(std::size_t step) {
    return std::to_string(step + 1);
}

/// What marks a kind of row beside its colour; empty for the same on both sides.
[[nodiscard]] QString signOf(RowKind kind);

}  // namespace quendra
