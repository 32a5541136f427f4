#include "scriptfile/record_reader.h"

#include "scriptfile/record_layout.h"
#include "scriptfile/record_writer.h"

namespace quendra {

std::uint32_t RecordCursor::takeWord() {
    const auto taken = take(4);
    if (taken.empty()) return 0;
    return std::uint32_t{taken[0]} | std::uint32_t{taken[1]} << 8 | std::uint32_t{taken[2]} << 16 |
           std::uint32_t{taken[3]} << 24;
}

void RecordCursor::luKey(std::uint8_t& group, std::uint8_t& number) {
    group = takeByte();
    number = luNumberFromFile(takeByte(), format_);
}

void RecordCursor::menuCommand(std::uint32_t& commandId) {
    commandId = menuCommandFromFile(takeWord(), format_);
}

void RecordCursor::dateTime(DateTime& value) {
    for (std::uint16_t* field : {&value.year, &value.month, &value.dayOfWeek, &value.day,
                                 &value.hour, &value.minute, &value.second, &value.milliseconds}) {
        const auto taken = take(2);
        *field =
            taken.empty() ? std::uint16_t{0} : static_cast<std::uint16_t>(taken[0] | taken[1] << 8);
    }
}

std::span<const std::uint8_t> RecordCursor::takePrompt() {
    const std::size_t start = position_;
    const std::uint32_t length = takeWord();
    if (length > maxPromptLength) {
        fail(RecordFault::PromptTooLong, start);
        return {};
    }
    return take(length);
}

void RecordReader::text(std::uint8_t& length, TextField& field) {
    const auto taken = takeText();
    length = static_cast<std::uint8_t>(taken.size());
    std::ranges::copy(taken, field.begin());
}

void RecordReader::prompt(std::uint32_t& length, PromptField& field) {
    const auto taken = takePrompt();
    length = static_cast<std::uint32_t>(taken.size());
    std::ranges::copy(taken, field.begin());
}

void RecordReader::typeText(Step& f) {
    const auto taken = takeText();
    f.hidden = takeByte();
    if (fault_ != RecordFault::None) return;
    if (!isHiddenText(f)) {
        setText(f, {reinterpret_cast<const char*>(taken.data()), taken.size()});
        return;
    }
    const auto plain = cipher_ ? cipher_->decipher(taken) : std::nullopt;
    setText(f, plain ? plain->text() : std::string_view());
    if (!plain || !plain->exact()) f.kept.emplace(taken.begin(), taken.end());
}

void RecordReader::transferBlock(std::uint8_t& host, FileTransferSettings& settings) {
    static_cast<void>(takeByte());
    host = takeByte();
    std::ranges::copy(take(format_.storedTransferSettings()), settings.bytes.begin());
}

template <class Read>
void RecordReader::keep(Step& f, ScriptEntry& whole, const Read& read) {
    const auto* cipher = std::exchange(cipher_, nullptr);
    whole.code = f.code;
    read();
    cipher_ = cipher;
    if (fault_ != RecordFault::None) return;
    RecordWriter writer(memoryForm, nullptr);
    layout::fieldsAfterCode(writer, std::as_const(whole), Slot::Entry);
    f.kept = std::move(writer).bytes();
}

void RecordReader::watchedTimeout(const ScriptEntry& entry, Step& f) {
    // Mostly there is none, and then no entry is made for it.
    const bool isClaimed = !atEnd() && bytes_[position_] != 0;
    if (!isClaimed) return static_cast<void>(takeByte());
    ScriptEntry whole;
    setText(whole, textOf(f));
    layout::searchOptionsOf(whole) = layout::searchOptionsOf(entry);
    keep(f, whole, [&] { layout::timeout(*this, whole); });
}

void RecordReader::foreignAction(Step& f) {
    if (++nesting_ > maxNesting) fail(RecordFault::NestedTooDeep, position_ - 1);
    if (fault_ == RecordFault::None) {
        ScriptEntry whole;
        keep(f, whole, [&] { layout::fieldsAfterCode(*this, whole, Slot::Entry); });
    }
    --nesting_;
}

namespace {

void resetStep(Step& step) {
    static_cast<StepFields&>(step) = {};
    step.kept.reset();
}

// Reading fills an action only together with its command, so that most need no zeroing.
void resetForReading(ScriptEntry& entry) {
    resetStep(entry);
    static_cast<EntryOptions&>(entry) = {};
    for (Step* action : {&entry.thenAction, &entry.elseAction})
        if (action->code != CommandCode::None) resetStep(*action);
}

}  // namespace

const ScriptEntry& RecordUnpacker::read(std::span<const std::uint8_t> record, RecordFormat format,
                                        const HiddenTextCipher* cipher) {
    resetForReading(entry_);
    RecordReader reader(record, 0, format, cipher);
    layout::record(reader, entry_, Slot::Entry);
    return entry_;
}

void RecordScanner::menuCommand(std::uint32_t& commandId) {
    RecordCursor::menuCommand(commandId);
    if (format_.vt) isMemoryForm_ = false;
}

void RecordScanner::transferBlock(std::uint8_t&, FileTransferSettings&) {
    holdsTransfer_ = true;
    if (takeByte() != transferBlockMark) isMemoryForm_ = false;
    static_cast<void>(take(1 + format_.storedTransferSettings()));
}

void RecordScanner::watchedTimeout(const ScriptEntry&, Step&) {
    if (takeByte() == 0) return;
    static_cast<void>(takeByte());
    ScriptEntry passedOver;
    passedOver.code = CommandCode::WaitFor;
    layout::record(*this, passedOver, Slot::Then);
    layout::record(*this, passedOver, Slot::Else);
}

void RecordScanner::foreignAction(Step& f) {
    if (++nesting_ > maxNesting) fail(RecordFault::NestedTooDeep, position_ - 1);
    if (fault_ == RecordFault::None) {
        ScriptEntry whole;
        whole.code = f.code;
        layout::fieldsAfterCode(*this, whole, Slot::Entry);
    }
    --nesting_;
}

}  // namespace quendra
