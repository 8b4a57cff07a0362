#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <utility>

namespace kurbo {

// A file descriptor that closes itself.
class Descriptor final {
  public:
    explicit Descriptor(int value = -1) : value_(value) {}
    ~Descriptor() { reset(); }
    Descriptor(Descriptor&& other) noexcept : value_(std::exchange(other.value_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    [[nodiscard]] int get() const { return value_; }
    void reset();

  private:
    int value_;
};

// Byte-range locks on an open file. They belong to the open file itself, not to the process: two openings in one
// process exclude each other, and closing another opening of the file does not drop them. A crash releases them.
enum class LockKind { Shared, Exclusive };

// False when another opening holds the byte.
[[nodiscard]] bool tryLock(int descriptor, std::int64_t byte, LockKind kind);
void unlock(int descriptor, std::int64_t byte);

using Deadline = std::chrono::steady_clock::time_point;

// Waits for the byte until `until`; `notice` runs about ten times a second meanwhile. False when the time is over.
//
// It takes the signal SIGRTMAX, as only a signal ends a blocked lock call early. From the moment it has to wait until
// it returns, a timer sends one to the calling thread ten times a second; no other thread gets any. The handler, which
// does nothing, stays for good, in place of whatever the program had there. For the caller that means: nobody else may
// use SIGRTMAX, a thread that waits must not block it (the wait would not end in time), and a system call made by
// `notice` may end with EINTR.
[[nodiscard]] bool lockWithin(int descriptor, std::int64_t byte, LockKind kind, Deadline until,
                              const std::function<void()>& notice);

} // namespace kurbo
