// The texts of every language library: all there, usable where they are used, and no two alike
// where the user must choose.
#include "platform/string_ids.h"
#include "text_groups.h"

#include <QFile>
#include <QTranslator>
#include <QXmlStreamReader>

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quendra {
namespace {

using Texts = std::map<StringId, std::string>;

struct Source {
    std::vector<StringId> ids;  // as they stand in the file, so that a repetition shows
    Texts texts;
    std::vector<StringId> withoutRole;
    std::vector<StringId> unfinished;
};

// The text of the element, with the control characters that the format spells as <byte
// value="x9"/>.
QString textWithBytes(QXmlStreamReader& xml) {
    QString text;
    while (xml.readNext() != QXmlStreamReader::EndElement) {
        if (xml.isCharacters()) text += xml.text();
        if (!xml.isStartElement()) continue;
        text += QChar(xml.attributes().value(QLatin1String("value")).mid(1).toInt(nullptr, 16));
        xml.skipCurrentElement();
    }
    return text;
}

void readMessage(QXmlStreamReader& xml, Source& source) {
    const auto id = xml.attributes().value(QLatin1String("id")).toInt();
    source.ids.push_back(id);
    QString role;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("translation")) {
            if (xml.attributes().hasAttribute(QLatin1String("type"))) {
                source.unfinished.push_back(id);
            }
            source.texts[id] = textWithBytes(xml).toStdString();
        } else if (xml.name() == QLatin1String("extracomment")) {
            role = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    if (role.isEmpty()) source.withoutRole.push_back(id);
}

Source readSource(const std::string& name) {
    Source source;
    QFile file(QStringLiteral(LANGUAGE_SOURCE_DIR "/") + QString::fromStdString(name + ".ts"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement &&
            xml.name() == QLatin1String("message")) {
            readMessage(xml, source);
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return source;
}

// The lower-case letter behind the single '&', or none. A shortcut after a tab is not part of the
// mnemonic's text.
std::optional<QChar> mnemonic(const std::string& text) {
    const auto label = QString::fromStdString(text).section(u'\t', 0, 0);
    const auto at = label.indexOf(u'&');
    if (at < 0 || at + 1 == label.size()) return std::nullopt;
    return label.at(at + 1).toLower();
}

// Every '%' with the character behind it, so that a stray one shows too.
std::vector<std::string> places(const std::string& text) {
    std::vector<std::string> found;
    for (auto at = text.find('%'); at != std::string::npos; at = text.find('%', at + 2)) {
        found.push_back(text.substr(at, 2));
    }
    return found;
}

class LanguageTexts : public testing::TestWithParam<std::string> {
  protected:
    const Source source = readSource(GetParam());
};

TEST_P(LanguageTexts, HoldExactlyTheIdsThatTheProgramUses) {
    EXPECT_THAT(source.ids, testing::ElementsAreArray(stringIds()));
}

TEST_P(LanguageTexts, AreFinishedAndTellTranslatorsTheirRole) {
    EXPECT_THAT(source.withoutRole, testing::IsEmpty());
    EXPECT_THAT(source.unfinished, testing::IsEmpty());
    for (const auto& [id, text] : source.texts) {
        EXPECT_FALSE(QString::fromStdString(text).trimmed().isEmpty()) << id;
    }
}

TEST_P(LanguageTexts, ComeOutOfTheBuiltLibraryUnchanged) {
    QTranslator built;
    ASSERT_TRUE(built.load(QStringLiteral(LANGUAGE_BUILT_DIR "/") +
                           QString::fromStdString(GetParam() + ".qm")));
    for (const auto& [id, text] : source.texts) {
        EXPECT_EQ(built.translate(nullptr, std::to_string(id).c_str()).toStdString(), text) << id;
    }
}

TEST_P(LanguageTexts, HaveTheFormatPlacesThatTheProgramFills) {
    const std::map<StringId, std::vector<std::string>> filled{
        {12465, {"%s"}},       {13701, {"%s"}},       {13702, {"%s"}},
        {13703, {"%s"}},       {13704, {"%s"}},       {13705, {"%s"}},
        {13709, {"%d"}},       {13710, {"%s"}},       {13727, {"%s"}},
        {13728, {"%s"}},       {13729, {"%s"}},       {13731, {"%s"}},
        {15302, {"%s"}},       {15304, {"%s"}},       {15306, {"%s"}},
        {15308, {"%s"}},       {15312, {"%s"}},       {15313, {"%s"}},
        {15314, {"%s"}},       {15315, {"%s"}},       {15316, {"%s"}},
        {15325, {"%d", "%d"}}, {15331, {"%d", "%d"}}, {15333, {"%d"}},
        {15335, {"%s"}},       {16001, {"%s"}},       {16002, {"%d"}},
        {16003, {"%d"}},       {16004, {"%d", "%d"}}, {16005, {"%s", "%d", "%d"}},
    };
    for (const auto& [id, text] : source.texts) {
        const auto expected = filled.find(id);
        EXPECT_EQ(places(text),
                  expected == filled.end() ? std::vector<std::string>{} : expected->second)
            << id << ": " << text;
    }
}

TEST_P(LanguageTexts, HaveNoMnemonicTwiceInAMenuOrDialog) {
    for (const auto& group : test::mnemonicGroups()) {
        auto texts = group.literals;
        for (const auto id : group.ids)
            texts.push_back(source.texts.at(id));
        std::map<QChar, std::string> taken;
        for (const auto& text : texts) {
            const auto letter = mnemonic(text);
            if (!letter) continue;
            EXPECT_TRUE(letter->isLetterOrNumber()) << group.name << ": " << text;
            const auto [first, isNew] = taken.emplace(*letter, text);
            EXPECT_TRUE(isNew) << group.name << ": " << text << " and " << first->second;
        }
    }
}

TEST_P(LanguageTexts, CarryAMnemonicWhereTheOtherLanguagesDo) {
    std::set<StringId> grouped;
    for (const auto& group : test::mnemonicGroups()) {
        grouped.insert(group.ids.begin(), group.ids.end());
    }
    const auto english = readSource("qdstring");
    for (const auto& [id, text] : source.texts) {
        const auto count = std::ranges::count(text, '&');
        EXPECT_LE(count, 1) << id << ": " << text;
        EXPECT_EQ(count == 1, mnemonic(english.texts.at(id)).has_value()) << id << ": " << text;
        EXPECT_TRUE(count == 0 || grouped.contains(id)) << id << " is in no menu or dialog group";
    }
}

TEST_P(LanguageTexts, GiveMenuItemsOfAMenuAMnemonicEach) {
    for (const auto& group : test::mnemonicGroups()) {
        if (!group.name.starts_with("menu ") || group.name.starts_with("menu command")) continue;
        for (const auto id : group.ids) {
            EXPECT_TRUE(mnemonic(source.texts.at(id))) << group.name << ' ' << id;
        }
    }
}

TEST_P(LanguageTexts, NameNoTwoCommandsOrFunctionsAlike) {
    const std::map<std::string, std::size_t> rows{
        {"menu commands", 68}, {"Mainframe", 64}, {"iSeries", 63}, {"VT", 142}};
    for (const auto& group : test::nameGroups()) {
        std::set<std::string> names(group.literals.begin(), group.literals.end());
        for (const auto id : group.ids) {
            const auto& name = source.texts.at(id);
            EXPECT_TRUE(names.insert(name).second) << group.name << " has two: " << name;
            EXPECT_EQ(QString::fromStdString(name).trimmed().toStdString(), name) << id;
        }
        EXPECT_EQ(names.size(), rows.at(group.name)) << group.name;
    }
}

INSTANTIATE_TEST_SUITE_P(Libraries, LanguageTexts, testing::Values("qdstring", "qdstring_de"),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace quendra
