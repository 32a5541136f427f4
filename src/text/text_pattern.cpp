#include "text/text_pattern.h"

#include "text/text_encoding.h"

#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <array>
#include <utility>

namespace quendra {

namespace {

// So many steps of the matcher for one text of at most 1023 characters: no sensible expression
// comes near, and a senseless one gives up after milliseconds instead of minutes.
constexpr char16_t stepLimit[] = u"(*LIMIT_MATCH=200000)";

// Settings of the matcher, which are such at the very start of an expression only.
constexpr char16_t leadingSettings[] =
    u"^(?:\\(\\*(?:UTF|UCP|NOTEMPTY(?:_ATSTART)?|NO_[A-Z_]+|LIMIT_[A-Z]+=\\d+|CR|LF|CRLF|ANY|"
    u"ANYCRLF|NUL|BSR_[A-Z]+)\\))*";

bool isWordPart(QChar character) {
    return character.isLetterOrNumber() || character == u'_';
}

// The UTF-16 unit of every byte: all characters of windows-1252 lie in the basic plane, so that a
// place in the one text is the same in the other.
const std::array<char16_t, 256>& unitsOfBytes() {
    static const auto units = [] {
        std::array<char16_t, 256> made = {};
        for (std::size_t byte = 0; byte < made.size(); ++byte) {
            const char character = static_cast<char>(byte);
            made[byte] =
                QString::fromStdString(utf8FromWindows1252({&character, 1})).at(0).unicode();
        }
        return made;
    }();
    return units;
}

PatternFault faultOf(const QRegularExpression& expression) {
    const auto offset = std::max(expression.patternErrorOffset(), qsizetype{0});
    return {expression.errorString().toStdString(), static_cast<std::size_t>(offset)};
}

// The expression where no word goes on beside its match. A quotation that is not ended must not
// take our own end in, nor must a comment, whose end is that of the line.
QRegularExpression ofWholeWords(const QString& text, QRegularExpression::PatternOptions kind) {
    const qsizetype split =
        QRegularExpression(QString::fromUtf16(leadingSettings)).match(text).capturedLength();
    const QString head =
        QString::fromUtf16(stepLimit) + text.left(split) + QStringLiteral("(?<!\\w)(?:");
    const QString body = text.mid(split);
    QRegularExpression made(head + body + QStringLiteral("\\E)(?!\\w)"), kind);
    if (!made.isValid()) made.setPattern(head + body + QStringLiteral("\r\n)(?!\\w)"));
    return made;
}

}  // namespace

struct TextPattern::Matcher {
    PatternOptions options;
    QString text;
    QRegularExpression expression;
    bool gaveUp = false;
    /// The text that is looked into, kept for its memory.
    QString subject;

    [[nodiscard]] Qt::CaseSensitivity sensitivity() const {
        return options.ignoreCase ? Qt::CaseInsensitive : Qt::CaseSensitive;
    }

    void setSubject(std::string_view bytes) {
        const auto& units = unitsOfBytes();
        subject.resize(static_cast<qsizetype>(bytes.size()));
        QChar* to = subject.data();
        for (const char byte : bytes) {
            *to++ = QChar(units[static_cast<unsigned char>(byte)]);
        }
    }

    std::optional<TextMatch> next(qsizetype from) {
        return options.isExpression ? nextByExpression(from) : nextByText(from);
    }

    std::optional<TextMatch> nextByExpression(qsizetype from) {
        const auto match = expression.match(subject, from);
        if (!match.isValid()) gaveUp = true;
        if (!match.hasMatch()) return std::nullopt;
        return TextMatch{static_cast<std::size_t>(match.capturedStart()),
                         static_cast<std::size_t>(match.capturedLength())};
    }

    [[nodiscard]] std::optional<TextMatch> nextByText(qsizetype from) const {
        for (qsizetype at = subject.indexOf(text, from, sensitivity()); at >= 0;
             at = subject.indexOf(text, at + 1, sensitivity())) {
            if (options.wholeWords && !isWholeWord(at)) continue;
            return TextMatch{static_cast<std::size_t>(at), static_cast<std::size_t>(text.size())};
        }
        return std::nullopt;
    }

    [[nodiscard]] bool isWholeWord(qsizetype at) const {
        const qsizetype end = at + text.size();
        const bool goesOnBefore = at > 0 && isWordPart(subject[at - 1]) && isWordPart(subject[at]);
        const bool goesOnAfter =
            end < subject.size() && isWordPart(subject[end]) && isWordPart(subject[end - 1]);
        return !goesOnBefore && !goesOnAfter;
    }
};

TextPattern::TextPattern(std::unique_ptr<Matcher> matcher) : matcher_(std::move(matcher)) {}
TextPattern::~TextPattern() = default;
TextPattern::TextPattern(TextPattern&&) noexcept = default;
TextPattern& TextPattern::operator=(TextPattern&&) noexcept = default;

bool TextPattern::isInWindows1252(std::string_view bytes) const {
    matcher_->setSubject(bytes);
    return matcher_->next(0).has_value();
}

bool TextPattern::isInUtf8(std::string_view utf8) const {
    matcher_->subject = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    return matcher_->next(0).has_value();
}

std::vector<TextMatch> TextPattern::matches(std::string_view bytes) const {
    matcher_->setSubject(bytes);
    std::vector<TextMatch> found;
    if (matcher_->options.isExpression) {
        // Who goes on by hand behind a match of nothing finds it again for ever.
        auto each = matcher_->expression.globalMatch(matcher_->subject);
        while (each.hasNext()) {
            const auto match = each.next();
            if (!match.hasMatch()) break;
            found.push_back({static_cast<std::size_t>(match.capturedStart()),
                             static_cast<std::size_t>(match.capturedLength())});
        }
        // Behind a match of nothing at the end it is no more valid than after a failure.
        const TextMatch atEnd = {bytes.size(), 0};
        const bool isDone = !found.empty() && found.back() == atEnd;
        if (!each.isValid() && !isDone) matcher_->gaveUp = true;
        return found;
    }
    for (auto match = matcher_->next(0); match;
         match = matcher_->next(static_cast<qsizetype>(match->start + match->length))) {
        found.push_back(*match);
    }
    return found;
}

bool TextPattern::gaveUp() const {
    return matcher_->gaveUp;
}

bool TextPattern::takeGaveUp() const {
    return std::exchange(matcher_->gaveUp, false);
}

std::variant<TextPattern, PatternFault> TextPattern::of(std::string_view pattern,
                                                        const PatternOptions& options) {
    auto matcher = std::make_unique<Matcher>();
    matcher->options = options;
    matcher->text = QString::fromUtf8(pattern.data(), static_cast<qsizetype>(pattern.size()));
    if (!options.isExpression) {
        // Scripts hold letters with their accents as one character.
        matcher->text = matcher->text.normalized(QString::NormalizationForm_C);
        return TextPattern(std::move(matcher));
    }

    QRegularExpression::PatternOptions kind = QRegularExpression::UseUnicodePropertiesOption;
    if (options.ignoreCase) kind |= QRegularExpression::CaseInsensitiveOption;
    // Looked at by itself first, for a parenthesis too many would otherwise close ours.
    const QRegularExpression bare(matcher->text, kind);
    if (!bare.isValid()) return faultOf(bare);
    matcher->expression =
        options.wholeWords
            ? ofWholeWords(matcher->text, kind)
            : QRegularExpression(QString::fromUtf16(stepLimit) + matcher->text, kind);
    if (!matcher->expression.isValid()) return faultOf(matcher->expression);
    matcher->expression.optimize();
    return TextPattern(std::move(matcher));
}

std::string replaced(std::string_view bytes, const std::vector<TextMatch>& matches,
                     std::string_view replacement) {
    std::string result;
    std::size_t done = 0;
    for (const TextMatch& match : matches) {
        result.append(bytes.substr(done, match.start - done)).append(replacement);
        done = match.start + match.length;
    }
    return result.append(bytes.substr(done));
}

}  // namespace quendra
