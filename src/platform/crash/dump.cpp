#include "platform/crash/dump.h"

#include "platform/crash/mappings.h"
#include "platform/crash/notes.h"
#include "platform/crash/process.h"
#include "platform/secret_memory.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <link.h>
#include <memory>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace quendra {

namespace {

constexpr std::size_t pageSize = 4096;
constexpr std::size_t chunkSize = std::size_t{256} * 1024;
constexpr std::size_t mostMarks = 65536;

struct Range {
    std::uintptr_t start;
    std::uintptr_t end;
};

// A process that crashed may have spoilt its list, even into a ring.
std::vector<Range> markedRanges(const StoppedProcess& process, std::uintptr_t listAddress) {
    std::vector<Range> ranges;
    std::uintptr_t next = 0;
    if (process.read(listAddress, std::as_writable_bytes(std::span(&next, 1))) != sizeof(next)) {
        return ranges;
    }
    while (next != 0 && ranges.size() < mostMarks) {
        SecretMark::Links links = {};
        const auto bytes = std::as_writable_bytes(std::span(&links, 1));
        if (process.read(next, bytes) != bytes.size()) break;
        const auto start = reinterpret_cast<std::uintptr_t>(links.memory);
        ranges.push_back({start, start + links.size});
        next = reinterpret_cast<std::uintptr_t>(links.next);
    }
    return ranges;
}

// What calls that have returned left behind below the threads' stacks: old copies of anything.
std::vector<Range> deadStacks(const std::vector<StoppedThread>& threads,
                              const std::vector<Mapping>& mappings) {
    std::vector<Range> ranges;
    for (const StoppedThread& thread : threads) {
        const std::optional<std::uintptr_t> end = endOfStack(thread.general);
        const auto stack = std::ranges::find_if(mappings, [&](const Mapping& mapping) {
            return end && mapping.start <= *end && *end < mapping.end;
        });
        if (stack != mappings.end()) ranges.push_back({stack->start, *end});
    }
    return ranges;
}

bool isZero(std::span<const std::byte> page) {
    return page.front() == std::byte{0} &&
           std::memcmp(page.data(), page.data() + 1, page.size() - 1) == 0;
}

class CoreFile {
  public:
    CoreFile(int file, const StoppedProcess& process, std::vector<Range> secrets)
        : file_(file), process_(process), secrets_(std::move(secrets)) {}

    [[nodiscard]] bool write(const std::vector<Mapping>& mappings, const std::string& notes) {
        std::vector<ElfW(Phdr)> parts = layOut(mappings, notes.size());
        const ElfW(Ehdr) header = fileHeader(parts.size());
        if (!put(&header, sizeof(header), 0) ||
            !put(parts.data(), parts.size() * sizeof(parts[0]), sizeof(header)) ||
            !put(notes.data(), notes.size(), parts[0].p_offset)) {
            return false;
        }
        for (std::size_t i = 0; i < mappings.size(); ++i) {
            const bool skipped = parts[i + 1].p_filesz == 0 || isHole(mappings[i]);
            if (!skipped && !copyMemory(mappings[i], parts[i + 1].p_offset)) return false;
        }
        // The last pages may be a hole.
        return ::ftruncate(file_, static_cast<off_t>(end_)) == 0;
    }

  private:
    static bool isHole(const Mapping& mapping) { return mapping.untouched && !mapping.isFile(); }

    std::vector<ElfW(Phdr)> layOut(const std::vector<Mapping>& mappings, std::size_t notesSize) {
        std::vector<ElfW(Phdr)> parts(mappings.size() + 1);
        std::size_t offset = sizeof(ElfW(Ehdr)) + parts.size() * sizeof(parts[0]);
        parts[0].p_type = PT_NOTE;
        parts[0].p_offset = offset;
        parts[0].p_filesz = notesSize;
        parts[0].p_align = 4;
        offset = (offset + notesSize + pageSize - 1) / pageSize * pageSize;
        for (std::size_t i = 0; i < mappings.size(); ++i) {
            const Mapping& mapping = mappings[i];
            ElfW(Phdr)& part = parts[i + 1];
            part.p_type = PT_LOAD;
            part.p_flags = (mapping.readable ? unsigned{PF_R} : 0U) |
                           (mapping.writable ? unsigned{PF_W} : 0U) |
                           (mapping.executable ? unsigned{PF_X} : 0U);
            part.p_offset = offset;
            part.p_vaddr = mapping.start;
            part.p_memsz = mapping.size();
            part.p_filesz = isReadable(mapping) ? mapping.size() : 0;
            part.p_align = pageSize;
            offset += part.p_filesz;
        }
        end_ = offset;
        return parts;
    }

    // The system's own pages and those behind the end of a file refuse although they look readable.
    [[nodiscard]] bool isReadable(const Mapping& mapping) const {
        std::byte first = {};
        return mapping.isDumped() &&
               (isHole(mapping) || process_.read(mapping.start, {&first, 1}) == 1);
    }

    static ElfW(Ehdr) fileHeader(std::size_t parts) {
        ElfW(Ehdr) header = {};
        std::memcpy(header.e_ident, ELFMAG, SELFMAG);
        header.e_ident[EI_CLASS] = sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32;
        header.e_ident[EI_DATA] =
            std::endian::native == std::endian::little ? ELFDATA2LSB : ELFDATA2MSB;
        header.e_ident[EI_VERSION] = EV_CURRENT;
        header.e_type = ET_CORE;
        header.e_machine = machine();
        header.e_version = EV_CURRENT;
        header.e_phoff = sizeof(header);
        header.e_ehsize = sizeof(header);
        header.e_phentsize = sizeof(ElfW(Phdr));
        header.e_phnum = static_cast<ElfW(Half)>(parts);
        return header;
    }

    // The one that this program was built for, as its own file says.
    static ElfW(Half) machine() {
        ElfW(Ehdr) own = {};
        std::ifstream("/proc/self/exe", std::ios::binary)
            .read(reinterpret_cast<char*>(&own), sizeof(own));
        return own.e_machine;
    }

    bool copyMemory(const Mapping& mapping, std::size_t offset) {
        for (std::size_t done = 0; done < mapping.size(); done += chunkSize) {
            const std::uintptr_t address = mapping.start + done;
            const auto chunk = std::span(buffer_).first(std::min(chunkSize, mapping.end - address));
            readChunk(address, chunk);
            if (!putPages(chunk, offset + done)) return false;
        }
        return true;
    }

    // Page by page where a page refuses to be read; its place stays zero.
    void readChunk(std::uintptr_t address, std::span<std::byte> chunk) {
        std::ranges::fill(chunk, std::byte{0});
        if (process_.read(address, chunk) < chunk.size()) {
            for (std::size_t at = 0; at < chunk.size(); at += pageSize) {
                const auto page = chunk.subspan(at, std::min(pageSize, chunk.size() - at));
                static_cast<void>(process_.read(address + at, page));
            }
        }
        for (const Range& secret : secrets_) {
            const std::uintptr_t start = std::max(secret.start, address);
            const std::uintptr_t end = std::min(secret.end, address + chunk.size());
            if (start < end) {
                std::ranges::fill(chunk.subspan(start - address, end - start), std::byte{0});
            }
        }
    }

    bool putPages(std::span<const std::byte> chunk, std::size_t offset) {
        std::size_t runStart = 0;
        for (std::size_t at = 0; at < chunk.size(); at += pageSize) {
            const auto page = chunk.subspan(at, std::min(pageSize, chunk.size() - at));
            if (!isZero(page)) continue;
            if (!put(chunk.data() + runStart, at - runStart, offset + runStart)) return false;
            runStart = at + page.size();
        }
        return put(chunk.data() + runStart, chunk.size() - runStart, offset + runStart);
    }

    bool put(const void* data, std::size_t size, std::size_t offset) {
        const auto* bytes = static_cast<const char*>(data);
        for (std::size_t done = 0; done < size;) {
            const ssize_t put =
                ::pwrite(file_, bytes + done, size - done, static_cast<off_t>(offset + done));
            if (put <= 0 && errno != EINTR) return false;
            if (put > 0) done += static_cast<std::size_t>(put);
        }
        return true;
    }

    int file_;
    const StoppedProcess& process_;
    std::vector<Range> secrets_;
    std::size_t end_ = 0;
    std::array<std::byte, chunkSize> buffer_ = {};
};

std::string systemError() {
    return std::system_category().message(errno);
}

}  // namespace

std::optional<std::string> writeCrashDump(const CrashRecord& record,
                                          const std::filesystem::path& path) {
    StoppedProcess process(record.process);
    if (process.threads().empty()) return "the system does not let the process be looked into";
    ::unlink(path.c_str());
    Descriptor file(
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!file.isOpen() || ::fchmod(file.get(), 0600) != 0) return systemError();

    std::ifstream smaps("/proc/" + std::to_string(record.process) + "/smaps");
    const std::vector<Mapping> mappings = readMappings(smaps);
    for (StoppedThread& thread : process.threads())
        if (thread.id == record.thread) placeFaultRegisters(record.registers, thread.general);
    std::vector<Range> secrets = markedRanges(process, record.secretMarks);
    std::ranges::copy(deadStacks(process.threads(), mappings), std::back_inserter(secrets));
    const auto core = std::make_unique<CoreFile>(file.get(), process, std::move(secrets));
    if (core->write(mappings, crashNotes(record, process, mappings)) && file.close()) {
        return std::nullopt;
    }
    const std::string reason = systemError();
    ::unlink(path.c_str());
    return reason;
}

}  // namespace quendra
