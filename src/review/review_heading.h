// What stands above a side of a comparison: which script it is.
#pragma once

#include "review/review_model.h"

#include <QWidget>

class QLabel;

namespace quendra {

class StatusLine;

class ReviewHeading : public QWidget {
  public:
    /// `name` is the object name; those of its lines follow from it.
    explicit ReviewHeading(const QString& name, QWidget* parent = nullptr);

    /// What is wrong with a script wraps, for it has to be read whole.
    void show(const ReviewSide& side, const std::string& count);
    /// In UTF-8, in place of the side's own.
    void setName(const std::string& name);

  private:
    StatusLine* name_;
    StatusLine* place_;
    QLabel* note_;
};

}  // namespace quendra
