// How the script keeps an entry: a shared record that never changes.
//
// The record is the entry's own bytes of a current script file (of any host type but VT), so a
// script in memory is about as large as its file, texts marked hidden lie in memory enciphered, and
// saving is copying. Records of 5 KB with every field of every command would need twenty megabytes
// for a full script, most of it zeros.
//
// Records lie in blocks, and a block lives as long as any handle to a record of it: what is loaded
// stays in the file's own bytes, many records made at once share blocks (RecordStore), and a single
// new record has a block to itself, so that an edit keeps nothing but its own record alive. The
// price: a record that is let go is wiped with its block, not before. Until the rest of a file is
// let go too, its bytes stay as they were read, left out of dumps, hidden texts enciphered.
#pragma once

#include "model/command_catalogue.h"
#include "platform/secret_memory.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <utility>

namespace quendra {

/// Shared ownership of one stored record; script, clipboard and undo history hold handles to the
/// same record. Handles live on one thread: the counts are not atomic. A default-made handle holds
/// no record and may only be assigned, compared, or destroyed.
class EntryHandle {
  public:
    EntryHandle() = default;
    EntryHandle(const EntryHandle& other) noexcept : block_(other.block_), place_(other.place_) {
        if (block_) ++block_->handles;
    }
    EntryHandle(EntryHandle&& other) noexcept
        : block_(std::exchange(other.block_, nullptr)), place_(other.place_) {}
    EntryHandle& operator=(EntryHandle other) noexcept {
        std::swap(block_, other.block_);
        place_ = other.place_;
        return *this;
    }
    ~EntryHandle() {
        if (block_ && --block_->handles == 0) delete block_;
    }

    /// The stored bytes, code first, valid as long as any handle to the record.
    [[nodiscard]] std::span<const std::uint8_t> record() const {
        if (!block_) return {};
        return {block_->bytes + (place_ >> 32), place_ & 0xFFFFFFFF};
    }
    [[nodiscard]] CommandCode code() const {
        return block_ ? static_cast<CommandCode>(record().front()) : CommandCode::None;
    }

    /// Equal records, byte for byte: two entries that a file would store alike.
    friend bool operator==(const EntryHandle& left, const EntryHandle& right);

  private:
    // Pages of a file or of a store; or one record in the heap, for pages of its own would cost a
    // system call and 4 KB for each edit.
    struct Block {
        explicit Block(std::shared_ptr<const SecretPages> shared);
        explicit Block(std::span<const std::uint8_t> record);
        Block(const Block&) = delete;
        Block& operator=(const Block&) = delete;
        ~Block();

        std::size_t handles = 0;
        std::uint8_t* bytes;
        /// Null where the bytes are a record of the block's own, marked for its time.
        std::shared_ptr<const SecretPages> pages;
        std::size_t size = 0;
        std::optional<SecretMark> mark;
    };

    EntryHandle(Block* block, std::size_t start, std::size_t length) noexcept
        : block_(block), place_(start << 32 | length) {
        ++block_->handles;
    }

    friend EntryHandle storeRecord(std::span<const std::uint8_t> record);
    friend class RecordPages;

    Block* block_ = nullptr;
    /// Where the record starts in the block, and in the lower half its length. In one word, because
    /// two halves that are copied at once right after they were written hold up the processor.
    std::uint64_t place_ = 0;
};

/// Copies a record of at least one byte into a block of its own and gives the first handle to it.
/// The last handle that goes wipes it. The caller has made sure that it is a whole record; nothing
/// later checks again.
[[nodiscard]] EntryHandle storeRecord(std::span<const std::uint8_t> record);

/// Pages whose records become entries where they lie; this and the entries own them together.
class RecordPages {
  public:
    /// Less than 4 GB. Nobody may write to a record of theirs any more.
    explicit RecordPages(std::shared_ptr<const SecretPages> pages);

    /// A handle to the record of `length` (at least 1) bytes from `start`, all within the pages.
    [[nodiscard]] EntryHandle record(std::size_t start, std::size_t length) const {
        return {whole_.block_, start, length};
    }

  private:
    /// Holds the block and is no record.
    EntryHandle whole_;
};

/// Stores many records that are made at once, one behind the other in blocks that they share.
class RecordStore {
  public:
    /// `blockSize` is about what all the records take: too small a guess costs more blocks, too
    /// large a one next to nothing, for pages that nobody touches never become memory.
    explicit RecordStore(std::size_t blockSize) : blockSize_(blockSize) {}

    /// As storeRecord, but for the block.
    [[nodiscard]] EntryHandle store(std::span<const std::uint8_t> record);

  private:
    std::size_t blockSize_;
    std::optional<RecordPages> block_;
    std::uint8_t* free_ = nullptr;
    std::size_t used_ = 0;
    std::size_t size_ = 0;
};

}  // namespace quendra
