// Wait_Until: a date, a time of day, or both.
#include "dialogs/command_dialogs.h"
#include "text/text_ids.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace quendra {

namespace {

constexpr int daysOfWeek = 7;
const QDate firstDate(1601, 1, 1);
const QDate lastDate(9999, 12, 31);

// The user's short date, with all digits of the year: two of them would not tell 1926 from 2026.
QString dateFormat() {
    QString format = QLocale().dateFormat(QLocale::ShortFormat);
    if (!format.contains(QStringLiteral("yyyy"))) {
        format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    }
    return format;
}

// The user's long time, for it has seconds. The zone, a "t" that no quotes stand around, goes, and
// the part of the day, "B", which no field has, becomes one half of it.
QString timeFormat() {
    const QString format = QLocale().timeFormat(QLocale::LongFormat);
    static const QRegularExpression zone(QStringLiteral(R"(('[^']*')|,?\s*[\[(]?t+[\])]?\s*|B+)"));
    QString kept;
    qsizetype end = 0;
    for (auto matches = zone.globalMatch(format); matches.hasNext();) {
        const auto match = matches.next();
        const bool isPartOfDay = match.capturedView().startsWith(u'B');
        kept += format.mid(end, match.capturedStart() - end) +
                (isPartOfDay ? QStringLiteral("AP ") : match.captured(1));
        end = match.capturedEnd();
    }
    return (kept + format.mid(end)).trimmed();
}

bool isDateSet(const DateTime& value) {
    return value.year != 0 || value.month != 0 || value.day != 0;
}

bool isTimeSet(const DateTime& value) {
    return value.hour != 0 || value.minute != 0 || value.second != 0;
}

class WaitUntilDialog : public ParameterDialog {
  public:
    WaitUntilDialog(const DialogContext& context, const EditTarget& target)
        : ParameterDialog(context, target, "waitUntilDialog", "Wait_Until") {
        setWindowTitle(QStringLiteral("Wait_Until"));
        body().addWidget(makeLabel("heading", text(textid::waitUntilHeading)));
        QGridLayout& grid = *addGrid();
        hasDate_ = named(new QCheckBox(text(textid::waitUntilDate)), "hasDate");
        date_ = named(new QDateEdit, "date");
        hasTime_ = named(new QCheckBox(text(textid::waitUntilTime)), "hasTime");
        time_ = named(new QTimeEdit, "time");
        date_->setDateRange(firstDate, lastDate);
        date_->setDisplayFormat(dateFormat());
        date_->setCalendarPopup(true);
        date_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        time_->setDisplayFormat(timeFormat());
        addPart(grid, 0, *hasDate_, *date_);
        addPart(grid, 1, *hasTime_, *time_);
        addButtons();
    }

    void load() override {
        const DateTime& value = fields().waitUntil;
        const QDateTime now = QDateTime::currentDateTime();
        const bool unset = !isDateSet(value) && !isTimeSet(value);
        hasDate_->setChecked(unset || isDateSet(value));
        hasTime_->setChecked(unset || isTimeSet(value));
        date_->setDate(now.date());
        time_->setTime(QTime(now.time().hour(), now.time().minute(), now.time().second()));
        // A date or time that a damaged file made impossible leaves the present one.
        const QDate date(value.year, value.month, value.day);
        if (isDateSet(value) && date.isValid()) date_->setDate(date);
        const QTime time(value.hour, value.minute, value.second, value.milliseconds);
        if (isTimeSet(value) && time.isValid()) time_->setTime(time);
    }

    [[nodiscard]] std::optional<Refusal> check() const override { return std::nullopt; }

    void store() override {
        DateTime value;
        if (hasDate_->isChecked()) {
            const QDate date = date_->date();
            value.year = static_cast<std::uint16_t>(date.year());
            value.month = static_cast<std::uint16_t>(date.month());
            value.dayOfWeek = static_cast<std::uint16_t>(date.dayOfWeek() % daysOfWeek);
            value.day = static_cast<std::uint16_t>(date.day());
        }
        if (hasTime_->isChecked()) {
            const QTime time = time_->time();
            value.hour = static_cast<std::uint16_t>(time.hour());
            value.minute = static_cast<std::uint16_t>(time.minute());
            value.second = static_cast<std::uint16_t>(time.second());
            value.milliseconds = static_cast<std::uint16_t>(time.msec());
        }
        fields().waitUntil = value;
    }

  private:
    static void addPart(QGridLayout& grid, int line, QCheckBox& has, QWidget& value) {
        value.setEnabled(has.isChecked());
        value.setAccessibleName(plainLabel(has.text()));
        grid.addWidget(&has, line, 0);
        grid.addWidget(&value, line, 1);
        connect(&has, &QCheckBox::toggled, &value, &QWidget::setEnabled);
    }

    QCheckBox* hasDate_ = nullptr;
    QDateEdit* date_ = nullptr;
    QCheckBox* hasTime_ = nullptr;
    QTimeEdit* time_ = nullptr;
};

}  // namespace

std::unique_ptr<ParameterDialog> makeWaitUntilDialog(const DialogContext& context,
                                                     const EditTarget& target) {
    return std::make_unique<WaitUntilDialog>(context, target);
}

}  // namespace quendra
