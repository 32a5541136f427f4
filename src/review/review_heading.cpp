#include "review/review_heading.h"

#include "widgets/status_line.h"
#include "widgets/ui_text.h"

#include <QLabel>
#include <QVBoxLayout>

namespace quendra {

ReviewHeading::ReviewHeading(const QString& name, QWidget* parent)
    : QWidget(parent), name_(new StatusLine), place_(new StatusLine), note_(new QLabel) {
    setObjectName(name);
    name_->setObjectName(name + QLatin1String("Name"));
    QFont bold = name_->font();
    bold.setBold(true);
    name_->setFont(bold);
    place_->setObjectName(name + QLatin1String("Place"));
    note_->setObjectName(name + QLatin1String("Note"));
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(1);
    for (QLabel* line : {static_cast<QLabel*>(name_), static_cast<QLabel*>(place_), note_})
        all->addWidget(line);
    all->addStretch();
}

void ReviewHeading::setName(const std::string& name) {
    name_->setLine(qtText(name));
}

void ReviewHeading::show(const ReviewSide& side, const std::string& count) {
    setName(side.name);
    const std::string kind = count + ", " + std::string(hostTypeInfo(side.hostType).name);
    place_->setLine(qtText(side.place.empty() ? kind : kind + ", " + side.place));
    note_->setText(qtText(side.note));
    note_->setVisible(!side.note.empty());
}

}  // namespace quendra
