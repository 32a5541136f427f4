#include "scriptfile/script_writer.h"

#include "model/script_entry.h"
#include "scriptfile/record_layout.h"
#include "scriptfile/record_reader.h"
#include "scriptfile/record_writer.h"

#include <algorithm>
#include <span>

namespace quendra {

namespace {

// Only menu commands are stored in another way in VT files, as an entry or as an action.
bool mayHoldMenuCommand(const EntryHandle& entry) {
    return entry.code() == CommandCode::MenuCommand || ownsActions(entry.code());
}

constexpr RecordFormat vtForm = {true, currentVersion};

// The records of entries in VT files, one after the other through the same memory.
class VtRecords {
  public:
    /// The record of the entry in a VT file, valid until the next call.
    std::span<const std::uint8_t> of(const EntryHandle& entry) {
        if (!mayHoldMenuCommand(entry)) return entry.record();
        stored_.clear();
        layout::record(stored_, entries_.read(entry.record(), memoryForm, nullptr), Slot::Entry);
        return stored_.bytes();
    }

    /// Written for VT and read back, an entry that VT can store is what it was.
    bool store(const EntryHandle& entry) {
        if (!mayHoldMenuCommand(entry)) return true;
        again_.clear();
        layout::record(again_, readBack_.read(of(entry), vtForm, nullptr), Slot::Entry);
        return std::ranges::equal(again_.bytes(), entry.record());
    }

  private:
    RecordUnpacker entries_;
    RecordWriter stored_{vtForm, nullptr};
    RecordUnpacker readBack_;
    RecordWriter again_{memoryForm, nullptr};
};

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
    VtRecords vtRecords;
    for (const EntryHandle& entry : script.entries) {
        const auto record = hostType == HostType::VT ? vtRecords.of(entry) : entry.record();
        bytes.insert(bytes.end(), record.begin(), record.end());
    }
    return bytes;
}

std::vector<std::size_t> unstorableEntries(const Script& script, HostType hostType) {
    std::vector<std::size_t> indexes;
    if (hostType != HostType::VT) return indexes;
    VtRecords vtRecords;
    for (std::size_t i = 0; i < script.entryCount(); ++i) {
        if (!vtRecords.store(script.entries[i])) indexes.push_back(i);
    }
    return indexes;
}

}  // namespace quendra
