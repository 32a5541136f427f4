#include "platform/kept_bytes.h"

#include "platform/access_rights.h"
#include "platform/descriptor.h"
#include "platform/directories.h"
#include "platform/environment.h"
#include "platform/file_bytes.h"
#include "platform/shell_folders.h"

#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <string>
#include <unistd.h>

namespace quendra {

namespace {

namespace fs = std::filesystem;

// Takes the last character of a UTF-8 name away; one that would leave nothing stays.
bool dropLastCharacter(std::string& name) {
    std::size_t end = name.size();
    while (end > 0 && (static_cast<unsigned char>(name[end - 1]) & 0xC0) == 0x80)
        --end;
    if (end <= 1) return false;
    name.resize(end - 1);
    return true;
}

// Has `make` make a file under the first name that is free; the name, empty on failure.
fs::path makeUnderFreeName(const fs::path& folder, std::string name,
                           const std::function<bool(const fs::path&)>& make) {
    for (int number = 1; number < 10'000;) {
        const std::string mark = number == 1 ? "" : std::to_string(number);
        fs::path path = folder / (name + ".bak" + mark);
        if (make(path)) return path;
        if (errno == ENAMETOOLONG && dropLastCharacter(name)) continue;
        if (errno != EEXIST) break;
        ++number;
    }
    return {};
}

// Only what is copied beside the file is for those who may read that.
enum class Place : std::uint8_t { Beside, UsersOwn };

bool fillCopy(Descriptor& copy, const fs::path& file, int source, Place place) {
    struct stat old {};
    if (::fstat(source, &old) != 0 || ::lseek(source, 0, SEEK_SET) != 0 ||
        !copyBytes(source, copy.get())) {
        return false;
    }
    // The copy is its maker's, whoever owns the file.
    if (place == Place::Beside && takeOverRights(copy.get(), file, old) == Rights::Failed)
        return false;
    return ::fsync(copy.get()) == 0 && copy.close();
}

KeptBytes copyInto(const fs::path& folder, const fs::path& file, int source, Place place) {
    Descriptor copy;
    KeptBytes kept;
    kept.path = makeUnderFreeName(folder, file.filename(), [&](const fs::path& path) {
        copy = Descriptor(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
        return copy.isOpen();
    });
    if (kept.path.empty()) {
        kept.failure = lastFailure(folder);
    } else if (!fillCopy(copy, file, source, place)) {
        kept.failure = lastFailure(folder);
        ::unlink(kept.path.c_str());
        kept.path.clear();
    } else if (!syncFolder(folder)) {
        kept.unsynced = lastFailure(folder);
    }
    return kept;
}

std::optional<fs::path> usersOwnFolder() {
    auto folder = stateFolder(processEnvironment());
    if (!folder) return std::nullopt;
    *folder /= "quendra/kept";
    if (!makePrivateDirectoryPath(*folder)) return std::nullopt;
    return folder;
}

}  // namespace

KeptBytes keepUnderOtherName(const fs::path& file) {
    KeptBytes kept;
    kept.path = makeUnderFreeName(file.parent_path(), file.filename(), [&](const fs::path& path) {
        return ::link(file.c_str(), path.c_str()) == 0;
    });
    if (!kept.path.empty()) return kept;
    const Descriptor source(openRegular(file, O_RDONLY));
    if (source.isOpen()) return keepCopy(file, source.get());
    kept.failure = lastFailure();
    return kept;
}

KeptBytes keepCopy(const fs::path& file, int descriptor) {
    KeptBytes beside = copyInto(file.parent_path(), file, descriptor, Place::Beside);
    if (!beside.failure) return beside;
    if (const auto folder = usersOwnFolder()) {
        KeptBytes own = copyInto(*folder, file, descriptor, Place::UsersOwn);
        if (!own.failure) return own;
    }
    return beside;
}

}  // namespace quendra
