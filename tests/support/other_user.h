// While it lives, this process is an ordinary user: nobody, and a member of one team. Only the
// superuser can become that.
#pragma once

#include <grp.h>
#include <unistd.h>

namespace quendra::test {

class OtherUser {
  public:
    static constexpr uid_t user = 65534;
    static constexpr gid_t group = 65534;
    static constexpr gid_t team = 4242;

    static bool isPossible() { return ::geteuid() == 0; }

    OtherUser() : done_(::setgroups(1, &team) + ::setegid(group) + ::seteuid(user)) {}
    ~OtherUser() { done_ = ::seteuid(0) + ::setegid(0) + ::setgroups(0, nullptr); }
    OtherUser(const OtherUser&) = delete;
    OtherUser& operator=(const OtherUser&) = delete;

    [[nodiscard]] bool isThere() const { return done_ == 0; }

  private:
    int done_;
};

}  // namespace quendra::test
