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

using Patience = std::chrono::steady_clock::time_point;

// Waits for the byte until `until`; `notice` runs about ten times a second meanwhile. False when the time is over.
[[nodiscard]] bool lockWithin(int descriptor, std::int64_t byte, LockKind kind, Patience until,
                              const std::function<void()>& notice);

} // namespace kurbo
