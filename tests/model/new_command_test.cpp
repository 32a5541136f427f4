// What a new action starts with, and what it must leave to the entry that it belongs to.
#include "model/new_command.h"

#include <gtest/gtest.h>

namespace quendra {
namespace {

using Code = CommandCode;

TEST(NewCommand, AsAnActionLeavesTheSearchOfAnOwnerThatSearchesItself) {
    const struct {
        Code owner;
        Slot slot;
        int searchRow;
    } rows[] = {{Code::WatchFor, Slot::Then, 1},
                {Code::WaitFor, Slot::Then, 7},
                {Code::WaitFor, Slot::Else, 7},
                {Code::IfInputIs, Slot::Else, 7}};
    for (const auto& row : rows) {
        SCOPED_TRACE(commandKeyword(row.owner));
        ScriptEntry entry = newCommand(row.owner);
        entry.searchRow = 7;
        setCode(slotFields(entry, row.slot), Code::WaitFor);
        startCommand(entry, row.slot);
        EXPECT_EQ(entry.searchRow, row.searchRow);
    }
}

}  // namespace
}  // namespace quendra
