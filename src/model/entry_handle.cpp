#include "model/entry_handle.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace quendra {

// Lies at the start of its own pages.
struct EntryHandle::Chunk {
    SecretPages pages;
    /// The file whose records lie in place; null in a chunk of stored ones.
    SecretPages file;
    std::size_t size;
    std::size_t used;
    /// Records and others that hold the chunk.
    std::size_t holders;

    static Chunk* make(std::size_t size, SecretPages file = {});
    Header* place(std::size_t bytes);
    void letGo() noexcept;
};

struct EntryHandle::Header {
    Chunk* chunk;
    std::uint8_t* bytes;
    std::uint32_t references;
    std::uint32_t length;
};

namespace {

constexpr std::size_t smallestChunk = std::size_t{64} * 1024;
constexpr std::size_t alignment = 8;

constexpr std::size_t aligned(std::size_t size) {
    return (size + alignment - 1) & ~(alignment - 1);
}

}  // namespace

EntryHandle::EntryHandle(const EntryHandle& other) noexcept : header_(other.header_) {
    if (header_) ++header_->references;
}

EntryHandle& EntryHandle::operator=(EntryHandle other) noexcept {
    std::swap(header_, other.header_);
    return *this;
}

EntryHandle::~EntryHandle() {
    if (header_ && --header_->references == 0) release(header_);
}

std::span<const std::uint8_t> EntryHandle::record() const {
    if (!header_) return {};
    return {header_->bytes, header_->length};
}

CommandCode EntryHandle::code() const {
    return header_ ? static_cast<CommandCode>(record().front()) : CommandCode::None;
}

bool operator==(const EntryHandle& left, const EntryHandle& right) {
    return left.header_ == right.header_ || std::ranges::equal(left.record(), right.record());
}

EntryHandle::Chunk*& EntryHandle::currentChunk() {
    static Chunk* current = nullptr;
    return current;
}

EntryHandle::Chunk* EntryHandle::Chunk::make(std::size_t size, SecretPages file) {
    size += aligned(sizeof(Chunk));
    SecretPages pages(size);
    void* start = pages.data();
    return new (start) Chunk{std::move(pages), std::move(file), size, aligned(sizeof(Chunk)), 0};
}

// The caller has seen that there is room.
EntryHandle::Header* EntryHandle::Chunk::place(std::size_t bytes) {
    auto* header = reinterpret_cast<Header*>(reinterpret_cast<std::uint8_t*>(this) + used);
    used += bytes;
    ++holders;
    return header;
}

void EntryHandle::Chunk::letGo() noexcept {
    if (--holders > 0) return;
    if (this == currentChunk()) {
        used = aligned(sizeof(Chunk));
        return;
    }
    const SecretPages freedLast = std::move(pages);
    this->~Chunk();
}

void EntryHandle::release(Header* header) noexcept {
    wipeMemory(header->bytes, header->length);
    header->chunk->letGo();
}

EntryHandle storeRecord(std::span<const std::uint8_t> record) {
    using Chunk = EntryHandle::Chunk;
    using Header = EntryHandle::Header;
    const std::size_t size = sizeof(Header) + aligned(record.size());
    Chunk*& current = EntryHandle::currentChunk();
    if (!current || current->size - current->used < size) {
        // Before the other goes, which stays if there is no memory.
        Chunk* next = Chunk::make(std::max(smallestChunk, size));
        if (current) ++current->holders;
        Chunk* full = std::exchange(current, next);
        if (full) full->letGo();
    }
    Header* place = current->place(size);
    auto* bytes = reinterpret_cast<std::uint8_t*>(place + 1);
    std::memcpy(bytes, record.data(), record.size());
    return EntryHandle(new (place)
                           Header{current, bytes, 1, static_cast<std::uint32_t>(record.size())});
}

RecordsInPlace::RecordsInPlace(SecretPages bytes, std::size_t mostRecords)
    : chunk_(
          EntryHandle::Chunk::make(mostRecords * sizeof(EntryHandle::Header), std::move(bytes))) {
    chunk_->holders = 1;
}

RecordsInPlace::~RecordsInPlace() {
    chunk_->letGo();
}

EntryHandle RecordsInPlace::record(std::size_t start, std::size_t length) {
    using Header = EntryHandle::Header;
    return EntryHandle(new (chunk_->place(sizeof(Header))) Header{
        chunk_, chunk_->file.data() + start, 1, static_cast<std::uint32_t>(length)});
}

}  // namespace quendra
