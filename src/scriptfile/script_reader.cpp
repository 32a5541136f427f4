#include "scriptfile/script_reader.h"

#include "model/script_entry.h"
#include "scriptfile/record_layout.h"
#include "scriptfile/record_reader.h"
#include "scriptfile/record_writer.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace quendra {

namespace {

ReadStop stopOf(RecordFault fault) {
    switch (fault) {
        case RecordFault::None: return ReadStop::None;
        case RecordFault::EndOfFile: return ReadStop::EndInsideRecord;
        case RecordFault::UnknownCode: return ReadStop::UnknownCode;
        case RecordFault::PromptTooLong: return ReadStop::PromptTooLong;
        case RecordFault::NestedTooDeep: return ReadStop::NestedTooDeep;
    }
    return ReadStop::EndInsideRecord;
}

// Beside the records of an older file, which its own size foretells, what newer versions add.
constexpr std::size_t roomForConversion = std::size_t{64} * 1024;

// Reads the records one by one. A record that already is in memory form becomes an entry where it
// lies; any other is taken apart under its own version and written anew.
class ScriptLoad {
  public:
    ScriptLoad(std::shared_ptr<const SecretPages> pages, std::size_t size, ReadResult& result)
        : bytes_(pages->data(), size),
          inPlace_(std::move(pages)),
          result_(result),
          format_(recordFormat(result.signature)) {}

    void run() {
        std::size_t position = signatureSize;
        result_.script.entries.reserve(std::min(maxEntries, bytes_.size() - position));
        while (position < bytes_.size() && result_.stop == ReadStop::None) {
            if (result_.script.isFull()) {
                stop(ReadStop::TooManyEntries, position);
            } else if (format_.version == currentVersion) {
                position = storeScanned(position);
            } else {
                position = storeConverted(position);
            }
        }
    }

  private:
    void stop(ReadStop reason, std::size_t offset) {
        result_.stop = reason;
        result_.stopOffset = offset;
    }

    std::size_t storeScanned(std::size_t start) {
        scanner_.restart(start);
        layout::record(scanner_, scratch_, Slot::Entry);
        if (scanner_.fault() != RecordFault::None) {
            stop(stopOf(scanner_.fault()), scanner_.faultOffset());
            return start;
        }
        if (!scanner_.isMemoryForm()) return storeConverted(start);
        const std::size_t end = scanner_.position();
        result_.script.entries.push_back(inPlace_.record(start, end - start));
        return end;
    }

    std::size_t storeConverted(std::size_t start) {
        ScriptEntry entry;
        RecordReader reader(bytes_, start, format_, nullptr);
        layout::record(reader, entry, Slot::Entry);
        if (reader.fault() != RecordFault::None) {
            stop(stopOf(reader.fault()), reader.faultOffset());
            return start;
        }
        writer_.clear();
        layout::record(writer_, std::as_const(entry), Slot::Entry);
        result_.script.entries.push_back(converted_.store(writer_.bytes()));
        return reader.position();
    }

    std::span<const std::uint8_t> bytes_;
    RecordPages inPlace_;
    ReadResult& result_;
    RecordFormat format_;
    RecordScanner scanner_{bytes_, 0, format_};
    ScriptEntry scratch_;
    RecordWriter writer_{memoryForm, nullptr};
    RecordStore converted_{bytes_.size() + roomForConversion};
};

// What the signature says, without any entries.
ReadResult readSignature(std::span<const std::uint8_t> bytes) {
    ReadResult result;
    if (bytes.size() < signatureSize) {
        result.refusal = ReadRefusal::TooShort;
    } else if (const auto signature = recogniseSignature(bytes)) {
        result.signature = *signature;
    } else {
        result.refusal = ReadRefusal::UnknownSignature;
    }
    return result;
}

void readEntries(std::shared_ptr<const SecretPages> pages, std::size_t size, ReadResult& result) {
    const bool tooLong = size > maxScriptFileSize;
    ScriptLoad(std::move(pages), tooLong ? maxScriptFileSize : size, result).run();
    if (tooLong && (result.stop == ReadStop::None || result.stop == ReadStop::EndInsideRecord)) {
        result.stop = ReadStop::FileTooLong;
        result.stopOffset = maxScriptFileSize;
    }
}

}  // namespace

ReadResult readScript(std::span<const std::uint8_t> bytes) {
    const auto pages = std::make_shared<const SecretPages>(bytes.size());
    std::ranges::copy(bytes, pages->data());
    return readScript(pages, bytes.size());
}

ReadResult readScript(std::shared_ptr<const SecretPages> pages, std::size_t size) {
    ReadResult result = readSignature({pages->data(), size});
    if (!result.refusal) readEntries(std::move(pages), size, result);
    return result;
}

}  // namespace quendra
