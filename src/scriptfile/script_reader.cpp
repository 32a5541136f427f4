#include "scriptfile/script_reader.h"

#include "model/script_entry.h"
#include "scriptfile/record_layout.h"
#include "scriptfile/record_reader.h"
#include "scriptfile/record_writer.h"

#include <algorithm>
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

// Reads the records one by one. A record that already is in memory form is stored as it stands; any
// other is taken apart under its own version and written anew.
class ScriptLoad {
  public:
    /// `inPlace` takes records of `bytes` where they lie; null when they have to be copied.
    ScriptLoad(std::span<const std::uint8_t> bytes, RecordsInPlace* inPlace, ReadResult& result)
        : bytes_(bytes),
          inPlace_(inPlace),
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
        const std::size_t length = end - start;
        result_.script.entries.push_back(inPlace_ ? inPlace_->record(start, length)
                                                  : storeRecord(bytes_.subspan(start, length)));
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
        if (reader.droppedWatchedActions()) {
            result_.droppedActions.push_back(result_.script.entryCount());
        }
        writer_.clear();
        layout::record(writer_, std::as_const(entry), Slot::Entry);
        result_.script.entries.push_back(storeRecord(writer_.bytes()));
        return reader.position();
    }

    std::span<const std::uint8_t> bytes_;
    RecordsInPlace* inPlace_;
    ReadResult& result_;
    RecordFormat format_;
    RecordScanner scanner_{bytes_, 0, format_};
    ScriptEntry scratch_;
    RecordWriter writer_{memoryForm, nullptr};
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

void readEntries(std::span<const std::uint8_t> bytes, RecordsInPlace* inPlace, ReadResult& result) {
    const bool tooLong = bytes.size() > maxScriptFileSize;
    ScriptLoad(bytes.first(tooLong ? maxScriptFileSize : bytes.size()), inPlace, result).run();
    if (tooLong && (result.stop == ReadStop::None || result.stop == ReadStop::EndInsideRecord)) {
        result.stop = ReadStop::FileTooLong;
        result.stopOffset = maxScriptFileSize;
    }
}

}  // namespace

ReadResult readScript(std::span<const std::uint8_t> bytes) {
    ReadResult result = readSignature(bytes);
    if (!result.refusal) readEntries(bytes, nullptr, result);
    return result;
}

ReadResult readScript(SecretPages pages, std::size_t size) {
    const std::span<const std::uint8_t> bytes(pages.data(), size);
    ReadResult result = readSignature(bytes);
    if (result.refusal) return result;
    RecordsInPlace inPlace(std::move(pages), std::min(maxEntries, size));
    readEntries(bytes, &inPlace, result);
    return result;
}

}  // namespace quendra
