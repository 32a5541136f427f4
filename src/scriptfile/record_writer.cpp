#include "scriptfile/record_writer.h"

#include "scriptfile/record_layout.h"
#include "scriptfile/record_reader.h"

#include <string_view>

namespace quendra {

void RecordWriter::word(const std::uint32_t& value) {
    for (int shift = 0; shift < 32; shift += 8) {
        byte(static_cast<std::uint8_t>(value >> shift));
    }
}

void RecordWriter::luKey(const std::uint8_t& group, const std::uint8_t& number) {
    byte(group);
    byte(number);
}

void RecordWriter::menuCommand(const std::uint32_t& commandId) {
    word(menuCommandToFile(commandId, format_));
}

void RecordWriter::dateTime(const DateTime& value) {
    for (const std::uint16_t field : {value.year, value.month, value.dayOfWeek, value.day,
                                      value.hour, value.minute, value.second, value.milliseconds}) {
        byte(static_cast<std::uint8_t>(field));
        byte(static_cast<std::uint8_t>(field >> 8));
    }
}

void RecordWriter::text(const std::uint8_t& length, const TextField& field) {
    byte(length);
    append(std::string_view(field.data(), length));
}

void RecordWriter::prompt(const std::uint32_t& length, const PromptField& field) {
    const std::uint32_t written = length > maxPromptLength ? maxPromptLength : length;
    word(written);
    append(std::string_view(field.data(), written));
}

void RecordWriter::typeText(const Step& f) {
    if (isHiddenText(f)) {
        hiddenText(f);
    } else {
        text(f.textLength, f.text);
    }
    byte(f.hidden);
}

void RecordWriter::hiddenText(const Step& f) {
    auto enciphered = f.kept;
    if (!enciphered) {
        if (f.textLength > maxHiddenTextLength) return fail(WriteFault::HiddenTextTooLong);
        if (cipher_) enciphered = cipher_->encipher(textOf(f));
        if (!enciphered) return fail(WriteFault::CannotEncipher);
    }
    byte(static_cast<std::uint8_t>(enciphered->size()));
    append(*enciphered);
}

void RecordWriter::transferBlock(const std::uint8_t& host, const FileTransferSettings& settings) {
    byte(transferBlockMark);
    byte(host);
    append(settings.bytes);
}

namespace {

// The command of a slot as a foreign file had it, from the bytes that were kept of it.
void readKept(const Step& f, ScriptEntry& whole) {
    whole.code = f.code;
    RecordReader reader(*f.kept, 0, memoryForm, nullptr);
    layout::fieldsAfterCode(reader, whole, Slot::Entry);
}

}  // namespace

void RecordWriter::watchedTimeout(const ScriptEntry& entry, const Step& f) {
    if (!f.kept) return byte(0);
    ScriptEntry whole;
    readKept(f, whole);
    const bool isEdited = textOf(whole) != textOf(f) ||
                          layout::searchOptionsOf(whole) != layout::searchOptionsOf(entry);
    if (isEdited) return byte(0);
    layout::timeout(*this, std::as_const(whole));
}

void RecordWriter::foreignAction(const Step& f) {
    if (!f.kept) {
        // Only a record read from a file has bytes to carry; anything else would be a mistake of
        // ours: no action.
        bytes_.back() = static_cast<std::uint8_t>(CommandCode::None);
        return;
    }
    ScriptEntry whole;
    readKept(f, whole);
    layout::fieldsAfterCode(*this, std::as_const(whole), Slot::Entry);
}

}  // namespace quendra
