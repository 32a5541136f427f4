// The texts of every language library: all there, usable where they are used, with one
// mnemonic each in a menu. Mnemonics of dialogs are looked at in the dialogs themselves.
#include "support/fixtures.h"
#include "text/string_ids.h"
#include "text/text_ids.h"

#include <QRegularExpression>
#include <QTranslator>

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace quendra {
namespace {

using Texts = std::map<StringId, std::string>;

// The texts as they come out of the built library.
Texts textsOf(const std::string& name) {
    QTranslator built;
    const auto folder = QStringLiteral(LANGUAGE_BUILT_DIR "/");
    EXPECT_TRUE(built.load(folder + QString::fromStdString(name + ".qm")));
    Texts texts;
    for (const StringId id : stringIds())
        texts[id] = built.translate(nullptr, std::to_string(id).c_str()).toStdString();
    return texts;
}

// The lower-case letter behind the single '&', or none. A shortcut after a tab is not part of the
// mnemonic's text.
QChar mnemonic(const std::string& text) {
    const auto label = QString::fromStdString(text).section(u'\t', 0, 0);
    const auto at = label.indexOf(u'&');
    return at < 0 || at + 1 == label.size() ? QChar() : label.at(at + 1).toLower();
}

// Every '%' with the character behind it, so that a stray one shows too.
std::string places(const std::string& text) {
    std::string found;
    for (auto at = text.find('%'); at != std::string::npos; at = text.find('%', at + 2))
        found += text.substr(at, 2);
    return found;
}

class LanguageTexts : public testing::TestWithParam<std::string> {
  protected:
    const Texts texts = textsOf(GetParam());
};

TEST_P(LanguageTexts, AreThoseThatTheProgramUsesFinishedAndWithARoleForTranslators) {
    const test::Bytes file = test::readBytes(LANGUAGE_SOURCE_DIR "/" + GetParam() + ".ts");
    const QRegularExpression whole(
        QStringLiteral(R"re(<message id="(\d+)">\s*<source>.*?</source>\s*)re"
                       R"re(<extracomment>[^<]+</extracomment>\s*<translation>)re"),
        QRegularExpression::DotMatchesEverythingOption);
    std::vector<StringId> ids;
    const QString source = QString::fromStdString({file.begin(), file.end()});
    for (auto message = whole.globalMatch(source); message.hasNext();)
        ids.push_back(message.next().captured(1).toInt());
    EXPECT_EQ(ids, std::vector(stringIds().begin(), stringIds().end()));
    for (const auto& [id, text] : texts)
        EXPECT_FALSE(QString::fromStdString(text).trimmed().isEmpty()) << id;
}

TEST_P(LanguageTexts, HaveTheFormatPlacesThatTheProgramFills) {
    std::map<StringId, std::string> filled = {
        {textid::scriptInsertedUntilFull, "%d%d"},
        {textid::findPosition, "%d%d"},
        {textid::deleteVerbAndObject, "%s%s"},
        {textid::numberRange, "%d%d"},
        {textid::numberOutOfRange, "%s%d%d"},
        {textid::checkNearestLabel, "%s%d"},
        {textid::checkLabelDuplicate, "%s%d"},
        {textid::checkParameterMissing, "%s%s"},
        {textid::checkValueRange, "%s%s%s%s"},
        {textid::checkKeyUnknown, "%s%s"},
        {textid::checkTransferCut, "%d%d"},
        {textid::folderTakesNoFile, "%s%s"},
        {textid::checkBusyLoop, "%d%d"},
        {textid::goToStepRefused, "%s%s"},
        {textid::stepPosition, "%s%s"},
        {textid::insertByNameRow, "%s%s"},
        {textid::problemLine, "%s%s%s"},
        {textid::errorMessage, "%s%s"},
        {textid::warningMessage, "%s%s"},
        {textid::noteMessage, "%s%s"},
        {textid::findBadExpression, "%d%s"},
        {textid::changeRefused, "%d%s%s"},
        {textid::reviewCompareTitle, "%s%s"},
        {textid::reviewHostTypes, "%s%s"},
        {textid::reviewLeftEntry, "%d%s"},
        {textid::reviewRightEntry, "%d%s"},
    };
    for (const StringId id : {textid::scriptCannotBeOpened,
                              textid::insertNamedScriptEvent,
                              textid::insertNamedLuFunction,
                              textid::insertNamedMenuCommand,
                              textid::replaceNamedEntry,
                              textid::editNamedEntry,
                              textid::saveNamedScriptQuestion,
                              textid::scriptOfUnknownVersion,
                              textid::scriptCannotBeRead,
                              textid::scriptCannotBeCreated,
                              textid::scriptCannotBeWritten,
                              textid::undoStepMenuText,
                              textid::redoStepMenuText,
                              textid::undoStepToolTip,
                              textid::redoStepToolTip,
                              textid::deleteStep,
                              textid::cutStep,
                              textid::pasteStep,
                              textid::moveStep,
                              textid::replacementNeedsSelection,
                              textid::insertedScriptOfOtherMode,
                              textid::helpWindowTitle,
                              textid::helpPageMissing,
                              textid::helpManualMissing,
                              textid::replaceChangedFileQuestion,
                              textid::lossInVtQuestion,
                              textid::oldFileKept,
                              textid::convertedKeeping,
                              textid::conversionFailed,
                              textid::scriptIsNotThereYet,
                              textid::replaceRefusedFileQuestion,
                              textid::unsavedChangesKept,
                              textid::checkLabelMissing,
                              textid::checkNoSuchDate,
                              textid::checkMenuCommandUnknown,
                              textid::checkNotInHostType,
                              textid::checkMergeConflict,
                              textid::checkLabelUnused,
                              textid::checkLabelAsAction,
                              textid::checkVariableUnset,
                              textid::checkTimeoutZero,
                              textid::checkWaitForever,
                              textid::cipherFails,
                              textid::savedUnsynced,
                              textid::convertedUnsynced,
                              textid::quickFixStepMenuText,
                              textid::quickFixStepToolTip,
                              textid::goToStepPrompt,
                              textid::insertByNameNothing,
                              textid::errorCount,
                              textid::warningCount,
                              textid::fixChangeLabel,
                              textid::fixAddLabel,
                              textid::fixRemoveLabel,
                              textid::characterCannotBeStored,
                              textid::reviewResolveTitle,
                              textid::reviewSideSaved,
                              textid::reviewSideEditor,
                              textid::reviewStrayMarks,
                              textid::replaceOthersQuestion,
                              textid::replaceRefused,
                              textid::usesTitle,
                              textid::duplicateStep,
                              textid::recentGone,
                              textid::reloadDiscards,
                              textid::exampleOpened,
                              textid::nothingUses})
        filled[id] = "%s";
    for (const StringId id : {textid::reviewChangePosition, textid::reviewConflictPosition,
                              textid::reviewTakesChanged, textid::reviewKeepsSide})
        filled[id] = "%d%d";
    for (const StringId id :
         {textid::fileEndsInsideEntry, textid::fileHasUnknownCommand, textid::fileHasTooLongPrompt,
          textid::fileHasTooDeepActions, textid::fileHasTooManyEntries, textid::fileIsTooLong})
        filled[id] = "%s%d";
    for (const StringId id :
         {textid::entriesCount, textid::findCount, textid::helpFoundPages, textid::entriesInStep,
          textid::atMostCharacters, textid::hiddenTextTooLong, textid::reviewChanges,
          textid::reviewConflicts, textid::reviewMovedAway, textid::reviewMovedHere,
          textid::reviewTakesGone, textid::reviewTakesNew, textid::reviewTakesMoved,
          textid::reviewTakesSelected, textid::replacedCount, textid::renameLabelChanges,
          textid::renameLabelExists, textid::reviewTooManyEntries})
        filled[id] = "%d";
    for (const auto& [id, text] : texts)
        EXPECT_EQ(places(text), filled[id]) << id << ": " << text;
}

TEST_P(LanguageTexts, CarryAMnemonicWhereTheOtherLanguagesDo) {
    for (const auto& [id, text] : textsOf("qdstring")) {
        const auto count = std::ranges::count(texts.at(id), '&');
        EXPECT_EQ(count, mnemonic(text).isNull() ? 0 : 1) << id << ": " << texts.at(id);
    }
}

TEST_P(LanguageTexts, GiveItemsOfAMenuAMnemonicOfTheirOwnEach) {
    const std::vector<StringId> menus[] = {
        {textid::fileMenu, textid::editMenu, textid::viewMenu, textid::entryMenu, textid::modeMenu,
         textid::helpMenu},
        {textid::newMenuText, textid::openMenuText, textid::saveMenuText, textid::saveAsMenuText,
         textid::compareFileMenuText, textid::compareSavedMenuText,
         textid::resolveConflictsMenuText, textid::exitMenuText},
        {textid::reviewKeepOurs, textid::reviewKeepTheirs, textid::reviewKeepBoth},
        {textid::undoMenuText, textid::redoMenuText, textid::cutMenuText, textid::copyMenuText,
         textid::pasteMenuText, textid::copyAsTextMenuText, textid::findMenuText,
         textid::goToStepMenuText, textid::insertByNameMenuText, textid::quickFixMenuText},
        {textid::problemsMenuText, textid::gutterMenuText, textid::nextProblemMenuText,
         textid::previousProblemMenuText, textid::nextListMenuText, textid::previousListMenuText},
        {textid::undoStepMenuText, textid::redoStepMenuText, textid::cutMenuText,
         textid::copyMenuText, textid::pasteMenuText, textid::copyAsTextMenuText,
         textid::findMenuText, textid::goToStepMenuText, textid::insertByNameMenuText,
         textid::quickFixStepMenuText},
        {textid::insertScriptEventMenuText, textid::insertLuFunctionMenuText,
         textid::insertMenuCommandMenuText, textid::insertScriptMenuText, textid::editEntryMenuText,
         textid::deleteEntriesMenuText},
        {textid::mainframeModeMenuText, textid::iSeriesModeMenuText, textid::vtModeMenuText},
        {textid::helpMenuText, textid::helpOnSelectionMenuText, textid::aboutMenuText},
    };
    for (const auto& menu : menus) {
        std::set<QChar> taken;
        // Items that the program names itself, the same in every language: "&UTS", "&T27", "IC&L".
        if (menu[0] == textid::mainframeModeMenuText) taken = {u'u', u't', u'l'};
        for (const StringId id : menu) {
            const QChar letter = mnemonic(texts.at(id));
            EXPECT_TRUE(letter.isLetterOrNumber() && taken.insert(letter).second) << id;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Libraries, LanguageTexts, testing::Values("qdstring", "qdstring_de"),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace quendra
