#include "scriptfile/entry_codec.h"

#include "scriptfile/record_layout.h"

namespace quendra {

namespace {

// So that most records are written without moving: no copies left behind, and no time lost.
constexpr std::size_t usualRecordSize = 512;

PackResult pack(const ScriptEntry& entry, const HiddenTextCipher* cipher) {
    RecordWriter writer(memoryForm, cipher);
    writer.reserve(usualRecordSize);
    layout::record(writer, entry, Slot::Entry);
    if (writer.fault() != WriteFault::None) return {{}, writer.fault()};
    return {storeRecord(writer.bytes()), WriteFault::None};
}

ScriptEntry unpack(const EntryHandle& entry, const HiddenTextCipher* cipher) {
    ScriptEntry unpacked;
    RecordReader reader(entry.record(), 0, memoryForm, cipher);
    layout::record(reader, unpacked, Slot::Entry);
    return unpacked;
}

}  // namespace

PackResult packEntry(const ScriptEntry& entry, const HiddenTextCipher& cipher) {
    return pack(entry, &cipher);
}

PackResult packSealedEntry(const ScriptEntry& entry) {
    return pack(entry, nullptr);
}

ScriptEntry unpackEntry(const EntryHandle& entry, const HiddenTextCipher& cipher) {
    return unpack(entry, &cipher);
}

ScriptEntry unpackSealedEntry(const EntryHandle& entry) {
    return unpack(entry, nullptr);
}

bool TransferSearch::isIn(const EntryHandle& entry) {
    if (entry.code() != CommandCode::MenuCommand && !ownsActions(entry.code())) return false;
    RecordScanner scanner(entry.record(), 0, memoryForm);
    layout::record(scanner, passedOver_, Slot::Entry);
    return scanner.holdsTransfer();
}

}  // namespace quendra
