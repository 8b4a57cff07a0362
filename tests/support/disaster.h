#pragma once

#include "store/file/database_file.h"
#include "support/child.h"
#include "support/desk.h"
#include "support/told_prompts.h"

namespace kurbo::test {

// How a child's write ends.
enum WriteEnd { Written = 0, NoRoom = 1, OtherRefusal = 2, Died = -1 };

struct Disaster {
    std::function<void()> restore;
    // Runs in a process of its own; false when it was refused, with a message.
    std::function<bool(const Context&)> write;
    // Whether everything has been written; anything but everything or nothing is a failure of the test.
    std::function<bool()> isWritten;
};

// Fails at every call of the disk in turn: the process dies before it or within it, or the disk is full from there on.
inline void failEverywhere(const Desk& desk, const Disaster& disaster, int fewestCalls) {
    for (const auto failure : {DiskFailure::Killed, DiskFailure::KilledHalfway, DiskFailure::Full}) {
        int end = Died;
        int call = 0;
        bool committed = false;
        while (end != Written) {
            disaster.restore();
            ++call;
            end = endOf(startChild([&] {
                failAtCall(failure, call);
                ToldPrompts prompts;
                NoProgress progress;
                if (disaster.write({prompts, desk.clock, desk.paths, progress})) return Written;
                const bool noRoom = std::ranges::any_of(prompts.messages, [](const Message& told) {
                    return told.text.contains(u"ディスクの空き容量が不足しているため"_q);
                });
                return noRoom ? NoRoom : OtherRefusal;
            }));
            const bool written = disaster.isWritten();
            ASSERT_FALSE(::testing::Test::HasFailure()) << "call " << call;
            ASSERT_TRUE(written || !committed) << "call " << call;
            committed = written;
            ASSERT_TRUE(end == Written ? committed : end == (failure == DiskFailure::Full ? NoRoom : Died))
                << "call " << call << " ends with " << end;
            ASSERT_TRUE(!committed || end == Written || failure != DiskFailure::Full) << "call " << call;
        }
        ::testing::Test::RecordProperty("calls", call);
        EXPECT_GT(call, fewestCalls) << "it writes to many places";
    }
}

} // namespace kurbo::test
