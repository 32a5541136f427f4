#include "model/entry_handle.h"

#include <algorithm>

namespace quendra {

EntryHandle::Block::Block(std::shared_ptr<const SecretPages> shared)
    : bytes(shared->data()), pages(std::move(shared)) {}

EntryHandle::Block::Block(std::span<const std::uint8_t> record)
    : bytes(new std::uint8_t[record.size()]), size(record.size()) {
    std::ranges::copy(record, bytes);
    mark.emplace(bytes, size);
}

EntryHandle::Block::~Block() {
    if (pages) return;
    wipeMemory(bytes, size);
    delete[] bytes;
}

bool operator==(const EntryHandle& left, const EntryHandle& right) {
    if (left.block_ == right.block_ && left.place_ == right.place_) return true;
    return std::ranges::equal(left.record(), right.record());
}

EntryHandle storeRecord(std::span<const std::uint8_t> record) {
    return {new EntryHandle::Block(record), 0, record.size()};
}

RecordPages::RecordPages(std::shared_ptr<const SecretPages> pages)
    : whole_(new EntryHandle::Block(std::move(pages)), 0, 0) {}

EntryHandle RecordStore::store(std::span<const std::uint8_t> record) {
    if (size_ - used_ < record.size()) {
        const std::size_t size = std::max(blockSize_, record.size());
        auto pages = std::make_shared<const SecretPages>(size);
        free_ = pages->data();
        block_.emplace(std::move(pages));
        size_ = size;
        used_ = 0;
    }
    std::ranges::copy(record, free_ + used_);
    return block_->record(std::exchange(used_, used_ + record.size()), record.size());
}

}  // namespace quendra
