// How the script keeps an entry: a shared record that never changes.
//
// The record is the entry's own bytes of a current script file (of any host type but VT), so a
// script in memory is about as large as its file, texts marked hidden lie in memory enciphered, and
// saving is copying. Records of 5 KB with every field of every command would need twenty megabytes
// for a full script, most of it zeros.
#pragma once

#include "model/command_catalogue.h"
#include "platform/secret_memory.h"

#include <cstdint>
#include <span>
#include <utility>

namespace quendra {

/// Shared ownership of one stored record; script, clipboard and undo history hold handles to the
/// same record. The last handle that goes wipes the bytes before their memory is used again.
/// Handles live on one thread: the counts are not atomic. A default-made handle holds no record and
/// may only be assigned, compared, or destroyed.
class EntryHandle {
  public:
    EntryHandle() = default;
    EntryHandle(const EntryHandle& other) noexcept;
    EntryHandle(EntryHandle&& other) noexcept : header_(std::exchange(other.header_, nullptr)) {}
    EntryHandle& operator=(EntryHandle other) noexcept;
    ~EntryHandle();

    /// The stored bytes, code first, valid as long as any handle to the record.
    [[nodiscard]] std::span<const std::uint8_t> record() const;
    [[nodiscard]] CommandCode code() const;

    /// Equal records, byte for byte: two entries that a file would store alike.
    friend bool operator==(const EntryHandle& left, const EntryHandle& right);

  private:
    struct Header;
    struct Chunk;
    explicit EntryHandle(Header* header) : header_(header) {}
    static Chunk*& currentChunk();
    static void release(Header* header) noexcept;

    friend EntryHandle storeRecord(std::span<const std::uint8_t> record);
    friend class RecordsInPlace;

    Header* header_ = nullptr;
};

/// Copies a record of at least one byte into the store and gives the first handle to it. The caller
/// has made sure that it is a whole record; nothing later checks again.
[[nodiscard]] EntryHandle storeRecord(std::span<const std::uint8_t> record);

/// The bytes of a file whose records become entries where they lie: what is loaded is not copied.
/// The bytes live as long as this or any of the entries; those of an entry that goes are wiped.
class RecordsInPlace {
  public:
    /// Takes over `bytes`, in which there are up to `mostRecords` records.
    RecordsInPlace(SecretPages bytes, std::size_t mostRecords);
    RecordsInPlace(const RecordsInPlace&) = delete;
    RecordsInPlace& operator=(const RecordsInPlace&) = delete;
    ~RecordsInPlace();

    /// The first handle to the record at `start`, as storeRecord gives it; at most `mostRecords`,
    /// and no two that overlap.
    [[nodiscard]] EntryHandle record(std::size_t start, std::size_t length);

  private:
    EntryHandle::Chunk* chunk_;
};

}  // namespace quendra
