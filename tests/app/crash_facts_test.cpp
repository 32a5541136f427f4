// The parts of a crash report that need no crash: names, texts, codes and lists.
#include "app/crash_message.h"
#include "platform/crash_mappings.h"

#include <gtest/gtest.h>
#include <sstream>
#include <tuple>

namespace quendra::test {
namespace {

TEST(CrashMessage, NamesTheDumpAfterTheMinute) {
    std::tm time = {};
    time.tm_mon = 2;
    time.tm_mday = 3;
    time.tm_hour = 14;
    time.tm_min = 5;
    EXPECT_EQ(crashDumpPath("/work dir", "editor.exe", time),
              "/work dir/editor.exe.6.1.4.1982.03031405.dmp");
}

TEST(CrashFault, KnowsTheCodesAndTellsSentSignalsApart) {
    const std::tuple<int, int, std::uint32_t> rows[] = {
        {SIGFPE, FPE_INTDIV, 0xC0000094},   {SIGFPE, FPE_INTOVF, 0xC0000095},
        {SIGFPE, FPE_FLTDIV, 0xC000008E},   {SIGFPE, FPE_FLTINV, 0xC0000090},
        {SIGILL, ILL_ILLOPN, 0xC000001D},   {SIGILL, ILL_PRVOPC, 0xC0000096},
        {SIGBUS, BUS_ADRALN, 0x80000002},   {SIGBUS, BUS_ADRERR, 0xC0000006},
        {SIGSEGV, SEGV_ACCERR, 0xC0000005}, {SIGABRT, SI_TKILL, 0x40000015},
        {SIGFPE, SI_USER, 0xE0000008},      {SIGSEGV, SI_TKILL, 0xE000000B},
    };
    for (const auto& [signal, reason, code] : rows) {
        CrashRecord record;
        record.signal.si_signo = signal;
        record.signal.si_code = reason;
        const Fault fault = faultOf(record);
        EXPECT_EQ(fault.code, code) << signal << '/' << reason;
        EXPECT_EQ(fault.access.has_value(), code == accessViolation);
    }
}

TEST(CrashMappings, ReadsNamesWithBlanksAndTheFlagsThatLeaveMemoryOut) {
    std::istringstream smaps(
        "00400000-00452000 r-xp 00001000 08:02 173521      /usr/my lib.so (deleted)\n"
        "Rss:                 10 kB\nSwap:                 0 kB\nVmFlags: rd ex mr mw me\n"
        "7f0000000000-7f0000001000 rw-p 00000000 00:00 0 \n"
        "Rss:                  0 kB\nSwap:                 0 kB\nVmFlags: rd wr mr dd ac\n"
        "7f0000001000-7f0000003000 rw-p 00000000 00:00 0    [heap]\n"
        "Rss:                  0 kB\nSwap:                 4 kB\nVmFlags: rd wr mr\n"
        "7f0000003000-7f0000004000 ---p 00000000 00:00 0 \n"
        "Rss:                  0 kB\nSwap:                 0 kB\nVmFlags: mr io\n");
    const auto mappings = readMappings(smaps);
    ASSERT_EQ(mappings.size(), 4U);
    EXPECT_EQ(mappings[0].name, "/usr/my lib.so (deleted)");
    EXPECT_EQ(mappings[0].fileOffset, 0x1000U);
    EXPECT_EQ(mappings[0].size(), 0x52000U);
    EXPECT_TRUE(mappings[0].isFile() && mappings[0].isDumped() && !mappings[0].untouched);
    EXPECT_TRUE(mappings[1].untouched && !mappings[1].isDumped());
    EXPECT_TRUE(mappings[2].isDumped() && !mappings[2].untouched && !mappings[2].isFile());
    EXPECT_FALSE(mappings[3].isDumped());
}

}  // namespace
}  // namespace quendra::test
