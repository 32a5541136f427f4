// Between the two forms of an entry: the stored record that a script holds, and the working form
// with every field.
#pragma once

#include "model/script.h"
#include "model/script_entry.h"
#include "scriptfile/hidden_text.h"
#include "scriptfile/record_reader.h"
#include "scriptfile/record_writer.h"

namespace quendra {

/// A stored entry, or why it cannot be stored.
struct PackResult {
    EntryHandle entry;
    WriteFault fault = WriteFault::None;

    [[nodiscard]] bool ok() const { return fault == WriteFault::None; }
};

/// Stores the fields that the entry's command uses; hidden texts are enciphered here and nowhere
/// else.
[[nodiscard]] PackResult packEntry(const ScriptEntry& entry, const HiddenTextCipher& cipher);

/// The working form of a stored entry, hidden texts deciphered; fields that its command does not
/// use are zero. A hidden text that the key does not open is empty and has its bytes in `kept`, so
/// that packing gives the same record again.
[[nodiscard]] ScriptEntry unpackEntry(const EntryHandle& entry, const HiddenTextCipher& cipher);

/// The same for many entries in turn, each in the place of the one before.
class EntryUnpacker {
  public:
    explicit EntryUnpacker(const HiddenTextCipher& cipher) : cipher_(cipher) {}

    /// Valid until the next call.
    const ScriptEntry& unpack(const EntryHandle& entry) {
        return records_.read(entry.record(), memoryForm, &cipher_);
    }

  private:
    const HiddenTextCipher& cipher_;
    RecordUnpacker records_;
};

/// Calls `function` with the working form of each entry in order; it is valid during the call only,
/// for the next one comes in its place.
template <class Function>
void forEachEntry(const Script& script, const HiddenTextCipher& cipher, const Function& function) {
    EntryUnpacker unpacker(cipher);
    for (const EntryHandle& entry : script.entries)
        function(unpacker.unpack(entry));
}

/// The working form without any key: each hidden text stays enciphered in its slot's `kept`, so
/// that who searches or changes something else never has it in clear.
[[nodiscard]] ScriptEntry unpackSealedEntry(const EntryHandle& entry);

/// Stores an entry that was unpacked in that way. Fails only where a new hidden text came in.
[[nodiscard]] PackResult packSealedEntry(const ScriptEntry& entry);

/// As EntryUnpacker, without any key.
class SealedEntryUnpacker {
  public:
    const ScriptEntry& unpack(const EntryHandle& entry) {
        return records_.read(entry.record(), memoryForm, nullptr);
    }

  private:
    RecordUnpacker records_;
};

/// As forEachEntry, without any key.
template <class Function>
void forEachSealedEntry(const Script& script, const Function& function) {
    SealedEntryUnpacker unpacker;
    for (const EntryHandle& entry : script.entries)
        function(unpacker.unpack(entry));
}

/// Looks for file transfers in many entries, without unpacking them.
class TransferSearch {
  public:
    /// Whether the entry or one of its actions is a file transfer.
    [[nodiscard]] bool isIn(const EntryHandle& entry);

  private:
    /// Kept from one entry to the next: it is large, and made anew is zeroed and wiped each time.
    ScriptEntry passedOver_;
};

}  // namespace quendra
