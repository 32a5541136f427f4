#include "scriptfile/script_writer.h"

#include "model/script_entry.h"
#include "scriptfile/record_layout.h"
#include "scriptfile/record_reader.h"
#include "scriptfile/record_writer.h"

#include <algorithm>

namespace quendra {

namespace {

// Only menu commands are stored in another way in VT files, as an entry or as an action.
bool mayHoldMenuCommand(const EntryHandle& entry) {
    return entry.code() == CommandCode::MenuCommand || ownsActions(entry.code());
}

ScriptEntry takeApart(const EntryHandle& entry) {
    ScriptEntry whole;
    RecordReader reader(entry.record(), 0, memoryForm, nullptr);
    layout::record(reader, whole, Slot::Entry);
    return whole;
}

std::vector<std::uint8_t> vtRecord(const EntryHandle& entry) {
    const ScriptEntry whole = takeApart(entry);
    RecordWriter writer({true, currentVersion}, nullptr);
    layout::record(writer, whole, Slot::Entry);
    return std::move(writer).bytes();
}

// Written for VT and read back, an entry that VT can store is what it was.
bool vtStores(const EntryHandle& entry) {
    if (!mayHoldMenuCommand(entry)) return true;
    const auto stored = vtRecord(entry);
    ScriptEntry readBack;
    RecordReader reader(stored, 0, {true, currentVersion}, nullptr);
    layout::record(reader, readBack, Slot::Entry);
    RecordWriter writer(memoryForm, nullptr);
    layout::record(writer, std::as_const(readBack), Slot::Entry);
    return std::ranges::equal(writer.bytes(), entry.record());
}

}  // namespace

std::vector<std::uint8_t> writeScript(const Script& script, HostType hostType) {
    const auto signature = signatureBytes({hostType, currentVersion});
    std::size_t size = signature.size();
    for (const EntryHandle& entry : script.entries) {
        size += entry.record().size();
    }
    std::vector<std::uint8_t> bytes;
    bytes.reserve(size);
    bytes.assign(signature.begin(), signature.end());
    for (const EntryHandle& entry : script.entries) {
        if (hostType == HostType::VT && mayHoldMenuCommand(entry)) {
            const auto record = vtRecord(entry);
            bytes.insert(bytes.end(), record.begin(), record.end());
        } else {
            bytes.insert(bytes.end(), entry.record().begin(), entry.record().end());
        }
    }
    return bytes;
}

std::vector<std::size_t> unstorableEntries(const Script& script, HostType hostType) {
    std::vector<std::size_t> indexes;
    if (hostType != HostType::VT) return indexes;
    for (std::size_t i = 0; i < script.entryCount(); ++i) {
        if (!vtStores(script.entries[i])) indexes.push_back(i);
    }
    return indexes;
}

}  // namespace quendra
