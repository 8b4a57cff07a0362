#include "base/system/file_lock.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace kurbo {
namespace {

struct flock rangeOf(std::int64_t byte, short type) {
    struct flock range {};
    range.l_type = type;
    range.l_whence = SEEK_SET;
    range.l_start = byte;
    range.l_len = 1;
    return range;
}

short typeOf(LockKind kind) {
    return kind == LockKind::Shared ? F_RDLCK : F_WRLCK;
}

// A blocked lock call ends early only when a signal arrives, so a timer sends one to this thread ten times a second.
class Ticker final {
  public:
    Ticker() {
        // SIGRTMAX is not used by Qt, SQLite or the C library.
        struct sigaction action {};
        action.sa_handler = [](int) {};
        sigaction(SIGRTMAX, &action, nullptr);
        struct sigevent event {};
        event.sigev_notify = SIGEV_THREAD_ID;
        event.sigev_signo = SIGRTMAX;
        event._sigev_un._tid = static_cast<pid_t>(::syscall(SYS_gettid));
        armed_ = timer_create(CLOCK_MONOTONIC, &event, &timer_) == 0;
        constexpr long tenthOfSecond = 100'000'000;
        const struct itimerspec every {
            {0, tenthOfSecond}, { 0, tenthOfSecond }
        };
        if (armed_) timer_settime(timer_, 0, &every, nullptr);
    }
    ~Ticker() {
        if (armed_) timer_delete(timer_);
    }
    Ticker(const Ticker&) = delete;
    Ticker& operator=(const Ticker&) = delete;
    [[nodiscard]] bool armed() const { return armed_; }

  private:
    timer_t timer_{};
    bool armed_ = false;
};

} // namespace

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
}

void Descriptor::reset() {
    if (value_ >= 0) ::close(value_);
    value_ = -1;
}

bool tryLock(int descriptor, std::int64_t byte, LockKind kind) {
    struct flock range = rangeOf(byte, typeOf(kind));
    return ::fcntl(descriptor, F_OFD_SETLK, &range) == 0;
}

void unlock(int descriptor, std::int64_t byte) {
    struct flock range = rangeOf(byte, F_UNLCK);
    ::fcntl(descriptor, F_OFD_SETLK, &range);
}

bool lockWithin(int descriptor, std::int64_t byte, LockKind kind, Deadline until, const std::function<void()>& notice) {
    if (tryLock(descriptor, byte, kind)) return true;
    const Ticker ticker;
    if (!ticker.armed()) return false;
    while (std::chrono::steady_clock::now() < until) {
        struct flock range = rangeOf(byte, typeOf(kind));
        if (::fcntl(descriptor, F_OFD_SETLKW, &range) == 0) return true;
        if (errno != EINTR) return false;
        if (notice) notice();
    }
    return false;
}

} // namespace kurbo
