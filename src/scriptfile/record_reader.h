// Reading records: a bounded cursor over bytes, and a scanner that only finds where a record ends.
#pragma once

#include "model/script_entry.h"
#include "scriptfile/format_version.h"
#include "scriptfile/hidden_text.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>

namespace quendra {

/// Why a record could not be read to its end.
enum class RecordFault : std::uint8_t {
    None,
    EndOfFile,
    UnknownCode,
    PromptTooLong,
    NestedTooDeep,
};

/// Actions inside actions inside actions never come from an editor; a hostile file may hold
/// thousands.
inline constexpr int maxNesting = 4;

/// The position in the bytes and everything that reading and scanning share. Past the end, or after
/// a fault, every value reads as zero and nothing is written.
class RecordCursor {
  public:
    RecordCursor(std::span<const std::uint8_t> bytes, std::size_t position, RecordFormat format)
        : bytes_(bytes), position_(position), format_(format) {}

    [[nodiscard]] const RecordFormat& format() const { return format_; }
    [[nodiscard]] std::size_t position() const { return position_; }
    [[nodiscard]] bool atEnd() const { return position_ >= bytes_.size(); }
    [[nodiscard]] RecordFault fault() const { return fault_; }
    /// Where the field starts that could not be read.
    [[nodiscard]] std::size_t faultOffset() const { return faultOffset_; }

    bool code(CommandCode& code) {
        const std::size_t start = position_;
        const std::uint32_t value = commandCodeFromFile(takeByte(), format_);
        if (!isCommandCode(value)) fail(RecordFault::UnknownCode, start);
        const bool good = fault_ == RecordFault::None;
        code = good ? static_cast<CommandCode>(value) : CommandCode::None;
        return good;
    }
    void byte(std::uint8_t& value) { value = takeByte(); }
    void word(std::uint32_t& value) { value = takeWord(); }
    void luKey(std::uint8_t& group, std::uint8_t& number);
    void menuCommand(std::uint32_t& commandId);
    void dateTime(DateTime& value);

  protected:
    [[nodiscard]] std::uint8_t takeByte() {
        const auto taken = take(1);
        return taken.empty() ? std::uint8_t{0} : taken.front();
    }
    [[nodiscard]] std::uint32_t takeWord();
    /// The next `count` bytes, or none of them and a fault.
    [[nodiscard]] std::span<const std::uint8_t> take(std::size_t count) {
        if (fault_ != RecordFault::None) return {};
        if (count > bytes_.size() - position_) {
            fail(RecordFault::EndOfFile, position_);
            return {};
        }
        const auto taken = bytes_.subspan(position_, count);
        position_ += count;
        return taken;
    }
    /// The next text by its length byte.
    [[nodiscard]] std::span<const std::uint8_t> takeText() { return take(takeByte()); }
    /// The next prompt by its 32-bit length, which is refused when its field cannot hold it.
    [[nodiscard]] std::span<const std::uint8_t> takePrompt();
    void fail(RecordFault fault, std::size_t offset) {
        if (fault_ != RecordFault::None) return;
        fault_ = fault;
        faultOffset_ = offset;
    }

    std::span<const std::uint8_t> bytes_;
    std::size_t position_;
    RecordFormat format_;
    RecordFault fault_ = RecordFault::None;
    std::size_t faultOffset_ = 0;
    int nesting_ = 0;
};

/// Reads records into entries. Without a cipher hidden texts stay enciphered in the slot's kept
/// bytes; with one they become plain, and those that its key does not open load empty and keep
/// their bytes.
class RecordReader : public RecordCursor {
  public:
    RecordReader(std::span<const std::uint8_t> bytes, std::size_t position, RecordFormat format,
                 const HiddenTextCipher* cipher)
        : RecordCursor(bytes, position, format), cipher_(cipher) {}

    void text(std::uint8_t& length, TextField& field);
    void prompt(std::uint32_t& length, PromptField& field);
    void typeText(Step& f);
    void transferBlock(std::uint8_t& host, FileTransferSettings& settings);
    void watchedTimeout(const ScriptEntry& entry, Step& f);
    void foreignAction(Step& f);

  private:
    /// Keeps what `read` gives the fields of a command that the slot cannot have, hidden texts
    /// enciphered.
    template <class Read>
    void keep(Step& f, ScriptEntry& whole, const Read& read);

    const HiddenTextCipher* cipher_;
};

/// Reads records that are known to be whole, one after the other into the same entry: of the time
/// that reading takes, making and wiping a new one is a large part.
class RecordUnpacker {
  public:
    /// Nothing of the record before stays in the entry, which is valid until the next call. Without
    /// a cipher as above.
    const ScriptEntry& read(std::span<const std::uint8_t> record, RecordFormat format,
                            const HiddenTextCipher* cipher);

  private:
    ScriptEntry entry_;
};

/// Walks over records without taking their texts, and tells whether the bytes are what a writer in
/// memory form would give. Entries that it is driven with hold nothing useful afterwards.
class RecordScanner : public RecordCursor {
  public:
    using RecordCursor::RecordCursor;

    /// Goes to the record that starts at `position`, as after construction.
    void restart(std::size_t position) {
        position_ = position;
        fault_ = RecordFault::None;
        isMemoryForm_ = true;
        holdsTransfer_ = false;
    }

    /// False once a record was met that has to be read and written anew to become memory form.
    [[nodiscard]] bool isMemoryForm() const { return isMemoryForm_; }
    /// True once a file transfer was met, also in an action.
    [[nodiscard]] bool holdsTransfer() const { return holdsTransfer_; }

    void menuCommand(std::uint32_t& commandId);
    void text(std::uint8_t&, TextField&) { static_cast<void>(takeText()); }
    void prompt(std::uint32_t&, PromptField&) { static_cast<void>(takePrompt()); }
    void typeText(Step&) {
        static_cast<void>(takeText());
        static_cast<void>(takeByte());
    }
    void transferBlock(std::uint8_t&, FileTransferSettings&);
    void watchedTimeout(const ScriptEntry&, Step&);
    void foreignAction(Step& f);

  private:
    bool isMemoryForm_ = true;
    bool holdsTransfer_ = false;
};

/// First byte of a transfer block; readers pass over whatever stands there.
inline constexpr std::uint8_t transferBlockMark = 3;

}  // namespace quendra
