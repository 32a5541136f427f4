// Writing records into memory.
#pragma once

#include "model/script_entry.h"
#include "scriptfile/format_version.h"
#include "scriptfile/hidden_text.h"

#include <cstdint>
#include <vector>

namespace quendra {

/// Why an entry cannot be stored.
enum class WriteFault : std::uint8_t {
    None,
    /// The enciphered form of a hidden text is longer than its length byte can say.
    HiddenTextTooLong,
    /// No key, or the cipher failed.
    CannotEncipher,
};

/// Appends the records of entries in the current version of the format.
class RecordWriter {
  public:
    /// Hidden texts are enciphered with `cipher`; without one only those can be written whose
    /// enciphered bytes were kept.
    RecordWriter(RecordFormat format, const HiddenTextCipher* cipher)
        : format_(format), cipher_(cipher) {}

    [[nodiscard]] const RecordFormat& format() const { return format_; }
    [[nodiscard]] WriteFault fault() const { return fault_; }
    [[nodiscard]] const std::vector<std::uint8_t>& bytes() const& { return bytes_; }
    [[nodiscard]] std::vector<std::uint8_t>&& bytes() && { return std::move(bytes_); }
    /// Room for so many bytes in all before the memory has to grow.
    void reserve(std::size_t size) { bytes_.reserve(size); }
    /// Starts an empty piece of output, keeping the memory.
    void clear() { bytes_.clear(); }

    bool code(const CommandCode& code) {
        byte(static_cast<std::uint8_t>(code));
        return true;
    }
    void byte(const std::uint8_t& value) { bytes_.push_back(value); }
    void word(const std::uint32_t& value);
    void luKey(const std::uint8_t& group, const std::uint8_t& number);
    void menuCommand(const std::uint32_t& commandId);
    void dateTime(const DateTime& value);
    void text(const std::uint8_t& length, const TextField& field);
    void prompt(const std::uint32_t& length, const PromptField& field);
    void typeText(const Step& f);
    void transferBlock(const std::uint8_t& host, const FileTransferSettings& settings);
    void watchedTimeout(const ScriptEntry& entry, const Step& f);
    void foreignAction(const Step& f);

  private:
    void fail(WriteFault fault) {
        if (fault_ == WriteFault::None) fault_ = fault;
    }
    void hiddenText(const Step& f);
    template <class Bytes>
    void append(const Bytes& added) {
        bytes_.insert(bytes_.end(), added.begin(), added.end());
    }

    RecordFormat format_;
    const HiddenTextCipher* cipher_;
    WriteFault fault_ = WriteFault::None;
    std::vector<std::uint8_t> bytes_;
};

}  // namespace quendra
