#pragma once

#include <functional>
#include <sys/types.h>

namespace kurbo::test {

// Runs `body` in a process of its own, which ends with its result. No connection may be open here.
[[nodiscard]] pid_t startChild(const std::function<int()>& body);
// Waits for the end of it: the result, or -1 where it was killed.
[[nodiscard]] int endOf(pid_t child);

// What becomes of this process when the engine writes, truncates or deletes.
enum class DiskFailure {
    Killed,        // just before the call
    KilledHalfway, // with half of the bytes written
    Full,          // this write and all later ones are refused
};
// Lets the n-th such call fail, n from 1. Syncs aren't counted: what the process leaves behind without one is what it
// would leave behind before its next call.
void failAtCall(DiskFailure failure, int n);

} // namespace kurbo::test
