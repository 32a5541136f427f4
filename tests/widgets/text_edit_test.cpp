// The line edit of all texts: its limits, and how it hides a text.
#include "widgets/text_edit.h"

#include "platform/secret_memory.h"
#include "support/dialog_fixture.h"
#include "text/text_ids.h"

#include <QApplication>
#include <QtTest>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <unistd.h>

namespace quendra::test {
namespace {

class TextEditTest : public DialogTest {
  protected:
    [[nodiscard]] TextEdit& edit() { return widget<TextEdit>("text"); }
    [[nodiscard]] std::string stored() { return std::string(textOf(own())); }
    [[nodiscard]] std::string held() { return std::string(edit().bytes().view()); }
    [[nodiscard]] std::string displayed() { return edit().displayText().toStdString(); }
    void typeText(const std::string& text) { typeInto(edit(), text); }
    void paste(const std::string& text) { pasteInto(edit(), text); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&edit(), key, modifiers);
    }
    void openHidden(std::string_view text, std::uint8_t hidden = 1) {
        entry = newCommand(CommandCode::Type);
        entry.hidden = hidden;
        setText(own(), text);
        state.editing = true;
        open();
    }
};

TEST_F(TextEditTest, TakesTheFirstLineUpTo255CharactersThatTheEncodingHas) {
    openNew(CommandCode::Comment);
    paste(QString(300, QChar(0xe4)).toStdString());
    EXPECT_EQ(edit().text().size(), 255);
    EXPECT_EQ(note(), "At most 255 characters fit here.");
    typeText("x");
    EXPECT_EQ(edit().text().size(), 255);
    key(Qt::Key_Backspace);
    EXPECT_EQ(note(), "");

    retype("text", "[]");
    key(Qt::Key_Left);
    paste("\none\r\ntwo\n");
    EXPECT_EQ(shown("text"), "[one]");
    EXPECT_EQ(note(), "Only the first line was taken.");
    paste("!\n");
    EXPECT_EQ(note(), "") << "a line end alone is no further line";
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(shown("text"), "[one]");
    retype("text", "a");
    for (const auto& [character, named] : {std::pair{"\u4e2d", "\u4e2d (U+4E2D)"},
                                           {"\U0001f511", "\U0001f511 (U+1F511)"},
                                           {"\u200b", "U+200B (zero width space)"},
                                           {"\u2003", "U+2003 (space)"},
                                           {"\u0332", "U+0332 (combining mark)"},
                                           {"\ue000", "U+E000 (invisible character)"}}) {
        key(Qt::Key_End);
        paste(character);
        EXPECT_EQ(note(), "The character " + std::string(named) + " cannot be stored in a script.");
        typeText("\u20ac");
        EXPECT_EQ(note(), "");
        key(Qt::Key_Backspace);
    }
    paste("whole \U0001f511 or not at all\nand nothing of this");
    EXPECT_EQ(shown("text"), "a");
    EXPECT_EQ(note(), "The character \U0001f511 (U+1F511) cannot be stored in a script.");
    click("ok");
    EXPECT_EQ(stored(), "a");
}

TEST_F(TextEditTest, ALetterAndItsMarkAreOneCharacterWhereThereIsOne) {
    const std::string apart = "u\u0308";
    for (const bool masked : {false, true}) {
        openNew(CommandCode::Type);
        if (masked) click("hide");
        paste(apart + "e\u0301");
        EXPECT_EQ(note(), "");
        click("ok");
        EXPECT_EQ(stored(), "\xfc\xe9");
    }
    openNew(CommandCode::Comment);
    typeText("[]");
    key(Qt::Key_Left);
    typeText(apart + "!");
    EXPECT_EQ(shown("text"), "[\u00fc!]") << "the cursor goes on behind it";
    edit().setText(QString(255, u'x'));
    edit().selectAll();
    std::string all;
    for (int i = 0; i < 255; ++i)
        all += apart;
    paste(all);
    EXPECT_EQ(edit().text(), QString(255, QChar(0xfc))) << "and none is cut off for its marks";
}

TEST_F(TextEditTest, EveryByteOfAFileSurvivesAnEditBesideIt) {
    std::string all;
    for (int byte = 0; byte < 254; ++byte)
        all += static_cast<char>(byte);
    entry = newCommand(CommandCode::Comment);
    setText(own(), all);
    open();
    key(Qt::Key_End);
    typeText("x");
    click("ok");
    EXPECT_EQ(stored(), all + 'x');
}

TEST_F(TextEditTest, TheBoxOfATypeMasksAndUnmasksAtOnceAndOtherCommandsHaveNone) {
    openNew(CommandCode::Type);
    typeText("logon");
    click("hide");
    EXPECT_EQ(displayed(), "*****");
    EXPECT_EQ(edit().echoMode(), QLineEdit::Password) << "so that screen readers do not read it";
    typeText("!");
    click("hide");
    EXPECT_EQ(displayed(), "logon!");
    click("ok");
    EXPECT_EQ(entry.hidden, 0) << "checked and unchecked again";
    EXPECT_EQ(stored(), "logon!");
    entry.code = CommandCode::Message;
    entry.hidden = 1;
    open();
    EXPECT_FALSE(has("hide"));
    EXPECT_EQ(displayed(), "logon!");
}

TEST_F(TextEditTest, AMaskedTextIsEditedLikeAnyOther) {
    openHidden("abcdef");
    EXPECT_FALSE(has("hide"));
    EXPECT_EQ(edit().selectedText().size(), 6) << "selected when the dialog opens";
    key(Qt::Key_Home);
    typeText("1");
    key(Qt::Key_Right);
    key(Qt::Key_Delete);
    EXPECT_EQ(held(), "1acdef");
    key(Qt::Key_Backspace);
    key(Qt::Key_Right, Qt::ShiftModifier);
    key(Qt::Key_Right, Qt::ShiftModifier);
    typeText("\u00fc");
    EXPECT_EQ(held(), std::string("1\xfc") + "ef");
    paste("xyz\nnext");
    EXPECT_EQ(held(), "1\xfcxyzef");
    EXPECT_EQ(note(), "Only the first line was taken.");
    key(Qt::Key_Left, Qt::ShiftModifier);
    key(Qt::Key_X, Qt::ControlModifier);
    key(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(held(), "1\xfcxyzef") << "cut out, it would be nowhere";
    key(Qt::Key_Delete);
    edit().backspace();
    EXPECT_EQ(displayed(), "*****");
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(held(), "1\xfcxef") << "nothing to undo";
    // As an input method does it.
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral(u"\u00ea"));
    QApplication::sendEvent(&edit(), &commit);
    typeText("\u4e2d");
    click("ok");
    EXPECT_EQ(stored(),
              "1\xfcx\xea"
              "ef");
    EXPECT_EQ(entry.hidden, 1);
}

TEST_F(TextEditTest, ATypeOfAForeignFileIsMaskedOnlyWhereItIsStoredEnciphered) {
    for (const std::uint8_t hidden : std::initializer_list<std::uint8_t>{2, 255}) {
        openHidden("clear", hidden);
        EXPECT_EQ(displayed(), "clear");
        retype("text", std::string(250, 'r'));
        click("ok");
        EXPECT_EQ(stored(), std::string(250, 'r'));
        EXPECT_EQ(entry.hidden, hidden) << "carried";
        close();
    }
}

TEST_F(TextEditTest, AHiddenTextHasNoMoreThanCanBeEnciphered) {
    const std::string tooLong = "A hidden text can have at most 246 characters.";
    openHidden(std::string(245, 'h'));
    key(Qt::Key_End);
    typeText("12");
    EXPECT_EQ(held(), std::string(245, 'h') + '1');
    EXPECT_EQ(note(), tooLong);
    key(Qt::Key_Backspace);
    EXPECT_EQ(note(), "");
    paste("two");
    EXPECT_EQ(held(), std::string(245, 'h')) << "a secret is not cut unseen";

    state.editing = false;
    openNew(CommandCode::Type);
    paste(std::string(247, 'p'));
    click("hide");
    click("ok");
    expectTold(tooLong, "Type");
    EXPECT_EQ(focused(), "text");
    EXPECT_EQ(stored(), "");
    key(Qt::Key_End);
    key(Qt::Key_Backspace);
    click("ok");
    EXPECT_EQ(stored(), std::string(246, 'p'));
}

TEST_F(TextEditTest, WhatCouldNotBeDecipheredIsKeptUntilTheTextIsEdited) {
    const std::vector<std::uint8_t> sealed{1, 2, 3, 4, 5, 6, 7, 8};
    // The second was deciphered by chance, under another key.
    for (const char* text : {"", "x"}) {
        openHidden(text);
        entry.kept = sealed;
        open();
        EXPECT_EQ(edit().placeholderText().isEmpty(), *text != '\0');
        click("ok");
        EXPECT_EQ(answers.messages.size(), *text == '\0' ? 1U : 0U) << "an empty text is refused";
        EXPECT_EQ(entry.kept, sealed);
        answers.messages.clear();
    }
    open();
    typeText("new");
    click("ok");
    EXPECT_FALSE(entry.kept.has_value());
}

TEST_F(TextEditTest, WithoutAnIdentityTheToolTipSaysWhatTheCipherThatIsUsedDoes) {
    std::string identity;
    state.cipher = HiddenTextCipher([&identity] { return identity; });
    const auto toolTip = [this] {
        openNew(CommandCode::Type);
        EXPECT_EQ(edit().toolTip(), widget("hide").toolTip());
        return edit().toolTip().toStdString();
    };
    EXPECT_EQ(toolTip(), state.language.loadText(textid::hiddenTextOnlyObscured));
    identity = "{1234}";
    EXPECT_EQ(toolTip(), "");
    identity.clear();
    EXPECT_EQ(toolTip(), "") << "the cipher keeps it";
}

// A text that this file never holds as such: every byte is kept with its bits turned over.
const std::string turnedSecret = "\x8e\xa5\xc6\xce\x94\xb0\x89\xc8\x98\xbb\xcc\x85\xae\x95";

char secretCharacter(std::size_t index) {
    return static_cast<char>(~turnedSecret[index]);
}

// Looks through all that this process can write, for the secret in one or two bytes a character.
bool memoryHoldsTheSecret() {
    constexpr std::size_t largest = std::size_t{256} << 20U;
    const auto isTurned = [](char byte, char turned) { return byte == static_cast<char>(~turned); };
    std::string wide;
    for (const char turned : turnedSecret)
        wide += {turned, '\xff'};
    const int memory = ::open("/proc/self/mem", O_RDONLY | O_CLOEXEC);
    std::ifstream maps("/proc/self/maps");
    bool found = false;
    for (std::string line; std::getline(maps, line);) {
        std::size_t start = 0;
        std::size_t end = 0;
        char mode[5] = {};
        if (std::sscanf(line.c_str(), "%zx-%zx %4s", &start, &end, mode) != 3) continue;
        if (mode[0] != 'r' || mode[1] != 'w' || end - start > largest) continue;
        std::string region(end - start, '\0');
        // A region that is gone by now holds nothing.
        if (::pread(memory, region.data(), region.size(), static_cast<off_t>(start)) < 0) continue;
        for (const std::string& turned : {turnedSecret, wide})
            found = found || !std::ranges::search(region, turned, isTurned).empty();
        wipeMemory(region.data(), region.size());
    }
    ::close(memory);
    return found;
}

void typeSecret(QWidget& edit) {
    for (std::size_t i = 0; i < turnedSecret.size(); ++i)
        typeInto(edit, std::string(1, secretCharacter(i)));
}

TEST_F(TextEditTest, NoCopyOfAHiddenTextOutlivesTheDialog) {
    openNew(CommandCode::Type);
    click("hide");
    typeSecret(edit());
    key(Qt::Key_Backspace);
    typeText(std::string(1, secretCharacter(turnedSecret.size() - 1)));
    click("ok");
    ASSERT_EQ(entry.text[3], secretCharacter(3));
    ASSERT_TRUE(memoryHoldsTheSecret()) << "the entry holds it";
    close();
    entry = ScriptEntry();
    EXPECT_FALSE(memoryHoldsTheSecret()) << "typed";

    entry = newCommand(CommandCode::Type);
    entry.hidden = 1;
    entry.textLength = static_cast<std::uint8_t>(turnedSecret.size());
    for (std::size_t i = 0; i < turnedSecret.size(); ++i)
        entry.text[i] = secretCharacter(i);
    open();
    key(Qt::Key_End);
    typeText("more");
    press(Qt::Key_Escape);
    close();
    entry = ScriptEntry();
    EXPECT_FALSE(memoryHoldsTheSecret()) << "shown";

    // Last, for this leaves copies behind: what a line edit holds in the clear is found.
    openNew(CommandCode::Type);
    typeSecret(edit());
    EXPECT_TRUE(memoryHoldsTheSecret()) << "in the clear";
}

}  // namespace
}  // namespace quendra::test
