// While it lives, this process is an ordinary user, nobody, and a member of one team. Only the
// superuser can become that.
#pragma once

#include <grp.h>
#include <unistd.h>

namespace quendra::test {

struct OtherUser {
    static constexpr uid_t user = 65534;
    static constexpr gid_t group = 65534;
    static constexpr gid_t team = 4242;

    static bool isPossible() { return ::geteuid() == 0; }

    OtherUser() : done(::setgroups(1, &team) + ::setegid(group) + ::seteuid(user)) {}
    ~OtherUser() { done = ::seteuid(0) + ::setegid(0) + ::setgroups(0, nullptr); }
    OtherUser(const OtherUser&) = delete;
    OtherUser& operator=(const OtherUser&) = delete;

    /// 0, unless this user could not be had.
    int done;
};

}  // namespace quendra::test
