#include "platform/standard_streams.h"

#include "platform/descriptor.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace quendra {

void prepareStandardStreams() {
    int descriptor = 0;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO) {
        descriptor = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    }
    std::signal(SIGPIPE, SIG_IGN);
    ignoreSizeLimitSignal();
}

std::optional<FileFailure> writeToStream(const std::filesystem::path& path,
                                         std::span<const std::uint8_t> bytes) {
    const Descriptor descriptor(::open(path.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC));
    if (descriptor.get() < 0) return FileFailure{errno, std::generic_category().message(errno)};
    DescriptorBuffer buffer(descriptor.get());
    buffer.sputn(reinterpret_cast<const char*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
    static_cast<void>(buffer.pubsync());
    return buffer.failure();
}

bool isTerminal(int descriptor) {
    return isatty(descriptor) != 0;
}

DescriptorBuffer::DescriptorBuffer(int descriptor) : descriptor_(descriptor) {
    setp(buffer_.data(), buffer_.data() + buffer_.size());
}

DescriptorBuffer::int_type DescriptorBuffer::overflow(int_type character) {
    if (sync() != 0) return traits_type::eof();
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        *pptr() = traits_type::to_char_type(character);
        pbump(1);
    }
    return traits_type::not_eof(character);
}

int DescriptorBuffer::sync() {
    const char* next = pbase();
    while (next < pptr() && !failure_) {
        const ssize_t written = ::write(descriptor_, next, static_cast<std::size_t>(pptr() - next));
        if (written >= 0) {
            next += written;
        } else if (errno != EINTR) {
            failure_ = FileFailure{errno, std::generic_category().message(errno)};
        }
    }
    setp(buffer_.data(), buffer_.data() + buffer_.size());
    return failure_ ? -1 : 0;
}

}  // namespace quendra
