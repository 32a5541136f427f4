#include "model/entry_handle.h"

#include "platform/secret_memory.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace quendra {

struct EntryHandle::Chunk {
    std::size_t size;
    std::size_t used;
    std::size_t liveRecords;
};

struct EntryHandle::Header {
    Chunk* chunk;
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
    return {reinterpret_cast<const std::uint8_t*>(header_ + 1), header_->length};
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

void EntryHandle::release(Header* header) noexcept {
    Chunk* chunk = header->chunk;
    wipeMemory(header + 1, header->length);
    if (--chunk->liveRecords > 0) return;
    if (chunk == currentChunk()) {
        chunk->used = aligned(sizeof(Chunk));
    } else {
        freeSecretMemory(chunk, chunk->size);
    }
}

void reserveRecords(std::size_t count, std::size_t bytes) {
    using Chunk = EntryHandle::Chunk;
    const std::size_t needed = bytes + count * (sizeof(EntryHandle::Header) + alignment);
    Chunk*& current = EntryHandle::currentChunk();
    if (current && current->size - current->used >= needed) return;
    const std::size_t size = std::max(smallestChunk, needed + aligned(sizeof(Chunk)));
    auto* chunk = new (allocateSecretMemory(size)) Chunk{size, aligned(sizeof(Chunk)), 0};
    if (current && current->liveRecords == 0) freeSecretMemory(current, current->size);
    current = chunk;
}

EntryHandle storeRecord(std::span<const std::uint8_t> record) {
    using Header = EntryHandle::Header;
    const std::size_t size = sizeof(Header) + aligned(record.size());
    EntryHandle::Chunk* chunk = EntryHandle::currentChunk();
    if (!chunk || chunk->size - chunk->used < size) {
        reserveRecords(1, record.size());
        chunk = EntryHandle::currentChunk();
    }
    auto* place = reinterpret_cast<std::uint8_t*>(chunk) + chunk->used;
    auto* header = new (place) Header{chunk, 1, static_cast<std::uint32_t>(record.size())};
    std::memcpy(header + 1, record.data(), record.size());
    chunk->used += size;
    ++chunk->liveRecords;
    return EntryHandle(header);
}

}  // namespace quendra
