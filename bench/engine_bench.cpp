// Loading, saving, formatting, hidden texts and bulk edits, each beside what the machine can do at
// best.
#include "analysis/entry_display.h"
#include "pair.h"
#include "sample_scripts.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_files.h"
#include "scriptfile/script_writer.h"
#include "work_folder.h"

#include <benchmark/benchmark.h>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <numeric>
#include <openssl/evp.h>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

namespace quendra::bench {

namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;
using MakeScript = Script (*)(const HiddenTextCipher&);

const HiddenTextCipher& cipher() {
    static const HiddenTextCipher made("{01234567-89AB-CDEF-0123-456789ABCDEF}");
    return made;
}

void require(bool done, const char* what) {
    if (!done) throw std::runtime_error(what);
}

void rawWrite(const fs::path& path, const Bytes& bytes) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    require(file >= 0, "open");
    require(write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()), "write");
    require(fsync(file) == 0 && close(file) == 0, "fsync");
}

// What any safe save has to do, with the bytes ready.
void rawAtomicWrite(const fs::path& path, const Bytes& bytes) {
    fs::path temporary = path;
    temporary += ".tmp";
    rawWrite(temporary, bytes);
    fs::rename(temporary, path);
    const int folder = open(path.parent_path().c_str(), O_RDONLY | O_DIRECTORY);
    require(folder >= 0 && fsync(folder) == 0 && close(folder) == 0, "fsync of the folder");
}

void rawRead(const fs::path& path, std::uint8_t* buffer, std::size_t size) {
    const int file = open(path.c_str(), O_RDONLY);
    require(file >= 0, "open");
    require(read(file, buffer, size) == static_cast<ssize_t>(size), "read");
    close(file);
}

// From the system itself: what the heap gives may have been used before, depending on what else the
// program has done.
struct NewMemory {
    explicit NewMemory(std::size_t wanted)
        : size(wanted),
          bytes(static_cast<std::uint8_t*>(
              mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))) {
        require(bytes != MAP_FAILED, "mmap");
    }
    NewMemory(const NewMemory&) = delete;
    NewMemory& operator=(const NewMemory&) = delete;
    ~NewMemory() { munmap(bytes, size); }

    std::size_t size;
    std::uint8_t* bytes;
};

// Load against read() and memcpy of the same bytes. Warm: into memory that was written before;
// fresh: into memory that is new each time, as a load has it.
void load(benchmark::State& state, MakeScript make, bool fresh) {
    const fs::path path = workFolder() / "load.qds";
    const Bytes bytes = writeScript(make(cipher()), HostType::Mainframe);
    rawWrite(path, bytes);
    Bytes first(bytes.size());
    Bytes second(bytes.size());
    LoadedScript loaded;
    comparePair(
        state,
        [&] {
            if (!fresh) {
                rawRead(path, first.data(), bytes.size());
                std::memcpy(second.data(), first.data(), bytes.size());
                benchmark::DoNotOptimize(second.data());
                return;
            }
            const NewMemory from(bytes.size());
            const NewMemory to(bytes.size());
            rawRead(path, from.bytes, bytes.size());
            std::memcpy(to.bytes, from.bytes, bytes.size());
            benchmark::DoNotOptimize(to.bytes);
        },
        [&] {
            loaded = loadScriptFile(path);
            require(loaded.read.script.entryCount() == maxEntries, "load");
        },
        [&] { loaded = {}; });
}

void save(benchmark::State& state, MakeScript make) {
    const fs::path path = workFolder() / "save.qds";
    const Script script = make(cipher());
    const Bytes bytes = writeScript(script, HostType::Mainframe);
    comparePair(
        state, [&] { rawAtomicWrite(path, bytes); },
        [&] {
            require(!saveScriptFile(path, script, HostType::Mainframe, OldFile::Drop).failure,
                    "save");
        });
}

// 4096 display lines against copying 4096 ready lines.
void format(benchmark::State& state, MakeScript make) {
    const Script script = make(cipher());
    const TextSource texts = [](StringId id) { return "Command " + std::to_string(id); };
    const LuCatalogues luFunctions = buildLuCatalogues(texts);
    const MenuCommandCatalogue menuCommands = buildMenuCommandCatalogue(texts);
    const DisplayNames names{luFunctions.of(HostType::Mainframe), menuCommands};
    const auto formatAll = [&] {
        std::vector<std::string> lines;
        lines.reserve(script.entryCount());
        forEachEntry(script, cipher(), [&](const ScriptEntry& entry) {
            lines.push_back(formatEntryLine(entry, names));
        });
        return lines;
    };
    const auto ready = formatAll();
    comparePair(
        state,
        [&] {
            auto copy = ready;
            benchmark::DoNotOptimize(copy.data());
        },
        [&] { benchmark::DoNotOptimize(formatAll().data()); });
}

class BareCipher {
  public:
    explicit BareCipher(bool forEncipher) : context_(EVP_CIPHER_CTX_new()) {
        const auto key = deriveTripleDesKey("bench").value();
        require(EVP_CipherInit_ex(context_, EVP_des_ede3_cbc(), nullptr, key.data(), zeros,
                                  forEncipher ? 1 : 0) == 1,
                "cipher");
    }
    ~BareCipher() { EVP_CIPHER_CTX_free(context_); }
    BareCipher(const BareCipher&) = delete;
    BareCipher& operator=(const BareCipher&) = delete;

    int run(const std::uint8_t* input, int size, std::uint8_t* output) const {
        int written = 0;
        int last = 0;
        require(EVP_CipherInit_ex(context_, nullptr, nullptr, nullptr, zeros, -1) == 1 &&
                    EVP_CipherUpdate(context_, output, &written, input, size) == 1 &&
                    EVP_CipherFinal_ex(context_, output + written, &last) == 1,
                "cipher");
        return written + last;
    }

  private:
    static constexpr std::uint8_t zeros[8] = {};
    EVP_CIPHER_CTX* context_;
};

// 4096 hidden texts into entries or out of them, against the bare cipher over the same texts.
void hidden(benchmark::State& state, bool encipher) {
    const auto length = static_cast<std::size_t>(state.range(0));
    const Script script = hiddenScript(cipher(), length);
    const ScriptEntry entry = unpackEntry(script.entries[0], cipher());
    const Bytes plain(length + 1, 'x');
    Bytes enciphered(length + 17);
    Bytes output(length + 17);
    const int encipheredSize =
        BareCipher(true).run(plain.data(), static_cast<int>(plain.size()), enciphered.data());
    comparePair(
        state,
        [&] {
            const BareCipher bare(encipher);
            for (std::size_t i = 0; i < maxEntries; ++i) {
                const int size = encipher ? static_cast<int>(plain.size()) : encipheredSize;
                bare.run(encipher ? plain.data() : enciphered.data(), size, output.data());
            }
        },
        [&] {
            // One key derivation for all of them, as for a file.
            const HiddenTextCipher mine("{01234567-89AB-CDEF-0123-456789ABCDEF}");
            for (const EntryHandle& handle : script.entries) {
                if (encipher) {
                    require(packEntry(entry, mine).ok(), "pack");
                } else {
                    require(unpackEntry(handle, mine).textLength == length, "unpack");
                }
            }
        });
}

enum class Edit { Insert, Delete, Move };

// Half of a full script at once, against one memcpy of the twenty megabytes that plain records
// would be.
void bulk(benchmark::State& state, Edit edit) {
    const Bytes from(20'000'000, 1);
    Bytes to(from.size());
    const Script full = largestScript(cipher());
    Script half;
    half.entries.assign(full.entries.begin(), full.entries.begin() + maxEntries / 2);
    std::vector<std::size_t> every2nd;
    std::vector<EntryMove> moves;
    for (std::size_t i = 0; i < maxEntries / 2; ++i) {
        every2nd.push_back(2 * i);
        moves.push_back({2 * i, maxEntries / 2 + i});
    }
    Script script;
    comparePair(
        state,
        [&] {
            std::memcpy(to.data(), from.data(), from.size());
            benchmark::DoNotOptimize(to.data());
        },
        [&] {
            switch (edit) {
                case Edit::Insert: insertEntries(script, 1000, half.entries); break;
                case Edit::Delete: removeEntries(script, every2nd); break;
                case Edit::Move: moveEntries(script, moves); break;
            }
        },
        [&] { script = edit == Edit::Insert ? half : full; });
}

}  // namespace

BENCHMARK_CAPTURE(load, typical_warm, typicalScript, false)->UseManualTime();
BENCHMARK_CAPTURE(load, typical_fresh, typicalScript, true)->UseManualTime();
BENCHMARK_CAPTURE(load, largest_warm, largestScript, false)->UseManualTime();
BENCHMARK_CAPTURE(load, largest_fresh, largestScript, true)->UseManualTime();
BENCHMARK_CAPTURE(save, typical, typicalScript)->UseManualTime();
BENCHMARK_CAPTURE(save, largest, largestScript)->UseManualTime();
BENCHMARK_CAPTURE(format, typical, typicalScript)->UseManualTime();
BENCHMARK_CAPTURE(hidden, encipher, true)->Arg(16)->Arg(246)->UseManualTime();
BENCHMARK_CAPTURE(hidden, decipher, false)->Arg(16)->Arg(246)->UseManualTime();
BENCHMARK_CAPTURE(bulk, insert, Edit::Insert)->UseManualTime();
BENCHMARK_CAPTURE(bulk, delete, Edit::Delete)->UseManualTime();
BENCHMARK_CAPTURE(bulk, move, Edit::Move)->UseManualTime();

}  // namespace quendra::bench
