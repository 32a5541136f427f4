// The texts of every language library: all there, usable where they are used, and no two alike
// where the user must choose.
#include "hosts/lu_catalogue.h"
#include "hosts/menu_catalogue.h"
#include "platform/string_ids.h"

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

constexpr StringId browse = 10152;

// Texts that the user meets together in a menu or dialog, with every one that carries a mnemonic:
// within a group mnemonics must not collide, which no single text shows.
struct TextGroup {
    std::string name;
    std::vector<StringId> ids;
    // Texts that the program holds itself, the same in every language.
    std::vector<std::string> literals;
};

std::vector<TextGroup> menuGroups() {
    return {{"menu bar", {10000, 10018, 11193, 10935, 10070}, {}},
            {"menu File", {10001, 10002, 10003, 10004, 10017}, {}},
            {"menu Edit", {15301, 15303, 11190, 11191, 11192, 15319, 15326}, {}},
            {"menu Edit with steps", {15302, 15304, 11190, 11191, 11192, 15319, 15326}, {}},
            {"menu Entry", {11194, 11195, 11196, 15322, 11197, 11198}, {}},
            {"menu Mode", {11199, 11200, 10010}, {"  &UTS", "  &T27", "  IC&L"}},
            {"menu Help", {11201, 15340, 11202}, {}}};
}

std::vector<TextGroup> dialogGroups() {
    std::vector<TextGroup> groups = {
        {"Type", {13750, 11209}, {}},
        {"Set_Cursor", {14557, 10156, 10157}, {}},
        {"Copy", {14834, 14835, 14836, 14837}, {}},
        {"Paste", {14838, 14839, 14840}, {}},
        {"Input", {11216, 11217, 11218, 11219, 11220, 11221, 15242}, {}},
        {"Wait_Until", {11212, 16008, 16009}, {}},
        {"Wait_For",
         {13751, 13807, 14414, 10316, 10317, 14415, 14416, 14417, 14418, 14419, 14300, 14420, 14421,
          14422, 14423},
         {}},
        {"If_Input_Is", {15243, 14300, 15244, 15245, 15246, 15247}, {}},
        {"Watch_For", {13752, 11214}, {}},
    };
    for (const StringId text : {13746, 13747, 13748, 13749, 14833, 13753, 13754})
        groups.push_back({"dialog of the text " + std::to_string(text), {text}, {}});
    for (const StringId file : {13735, 13736, 13738, 13739, 13741, 13743})
        groups.push_back({"dialog of the file " + std::to_string(file), {file, browse}, {}});
    std::vector<StringId> settings{10980, 10982, 10983, 10984, 10985, 10986, 10987, 10988, browse,
                                   10297, 10989, 10811, 10991, 10857, 10992, 10993, 14592};
    for (const StringId last : {10994, 14934}) {
        settings.push_back(last);
        groups.push_back({"Settings", settings, {"&VM/CMS", "&TSO", "CIC&S/VS", "C&R/LF"}});
        settings.pop_back();
    }
    TextGroup advanced{"Advanced", {10102, 10093}, {"Bidi Options", "PC Code Page:"}};
    for (StringId id = 10996; id <= 11013; ++id)
        advanced.ids.push_back(id);
    groups.push_back(advanced);
    return groups;
}

std::vector<TextGroup> mnemonicGroups() {
    auto groups = menuGroups();
    for (auto& group : dialogGroups())
        groups.push_back(std::move(group));
    return groups;
}

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
            if (xml.attributes().hasAttribute(QLatin1String("type")))
                source.unfinished.push_back(id);
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
    for (auto at = text.find('%'); at != std::string::npos; at = text.find('%', at + 2))
        found.push_back(text.substr(at, 2));
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
    for (const auto& [id, text] : source.texts)
        EXPECT_FALSE(QString::fromStdString(text).trimmed().isEmpty()) << id;
}

TEST_P(LanguageTexts, ComeOutOfTheBuiltLibraryUnchanged) {
    QTranslator built;
    ASSERT_TRUE(built.load(QStringLiteral(LANGUAGE_BUILT_DIR "/") +
                           QString::fromStdString(GetParam() + ".qm")));
    for (const auto& [id, text] : source.texts)
        EXPECT_EQ(built.translate(nullptr, std::to_string(id).c_str()).toStdString(), text) << id;
}

TEST_P(LanguageTexts, HaveTheFormatPlacesThatTheProgramFills) {
    std::map<StringId, std::vector<std::string>> filled{
        {15325, {"%d", "%d"}}, {15331, {"%d", "%d"}},       {15392, {"%s", "%s"}},
        {16004, {"%d", "%d"}}, {16005, {"%s", "%d", "%d"}},
    };
    for (const StringId id :
         {12465, 13701, 13702, 13703, 13704, 13705, 13710, 13727, 13728, 13729, 13731,
          15302, 15304, 15306, 15308, 15312, 15313, 15314, 15315, 15316, 15335, 15343,
          15354, 15355, 15380, 15381, 15383, 15386, 15387, 15388, 15389, 16001})
        filled[id] = {"%s"};
    for (const StringId id : {13709, 15333, 15350, 15391, 16002, 16003})
        filled[id] = {"%d"};
    // Six lines about files.
    for (int line = 0; line < 6; ++line)
        filled[15382].insert(filled[15382].end(), {"%s", "%d"});
    for (const auto& [id, text] : source.texts)
        EXPECT_EQ(places(text), filled[id]) << id << ": " << text;
}

TEST_P(LanguageTexts, HaveNoMnemonicTwiceInAMenuOrDialog) {
    for (const auto& group : mnemonicGroups()) {
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
    for (const auto& group : mnemonicGroups())
        grouped.insert(group.ids.begin(), group.ids.end());
    const auto english = readSource("qdstring");
    for (const auto& [id, text] : source.texts) {
        const auto count = std::ranges::count(text, '&');
        EXPECT_LE(count, 1) << id << ": " << text;
        EXPECT_EQ(count == 1, mnemonic(english.texts.at(id)).has_value()) << id << ": " << text;
        EXPECT_TRUE(count == 0 || grouped.contains(id)) << id << " is in no menu or dialog group";
    }
}

TEST_P(LanguageTexts, GiveMenuItemsOfAMenuAMnemonicEach) {
    for (const auto& group : menuGroups()) {
        for (const auto id : group.ids)
            EXPECT_TRUE(mnemonic(source.texts.at(id))) << group.name << ' ' << id;
    }
}

TEST_P(LanguageTexts, NameNoTwoCommandsOrFunctionsAlike) {
    std::set<std::string> names;
    const auto expectNew = [&](const std::string& name) {
        EXPECT_TRUE(names.insert(name).second) << "twice: " << name;
        EXPECT_EQ(QString::fromStdString(name).trimmed().toStdString(), name);
    };
    const auto text = [&](StringId id) { return source.texts.at(id); };
    for (const auto& name : buildMenuCommandCatalogue(text).names)
        expectNew(name);
    for (const HostType type : {HostType::Mainframe, HostType::ISeries, HostType::VT}) {
        names.clear();
        const LuCatalogues catalogues = buildLuCatalogues(text);
        for (const LuFunction& row : catalogues.of(type).rows)
            expectNew(row.name);
    }
}

INSTANTIATE_TEST_SUITE_P(Libraries, LanguageTexts, testing::Values("qdstring", "qdstring_de"),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace quendra
