// While it lives, files of this process cannot grow past a few bytes, as on a full disk.
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace quendra::test {

class FullDisk {
  public:
    FullDisk() {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit tiny = before_;
        tiny.rlim_cur = 4;
        setrlimit(RLIMIT_FSIZE, &tiny);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
};

}  // namespace quendra::test
