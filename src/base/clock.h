#pragma once

#include "base/day.h"

namespace kurbo {

// The one way to ask for the time of day.
class Clock {
  public:
    virtual ~Clock() = default;
    // Local wall-clock time, cut to the second.
    [[nodiscard]] virtual Moment now() const = 0;
    [[nodiscard]] Day today() const { return dayOf(now()); }
};

class SystemClock final : public Clock {
  public:
    [[nodiscard]] Moment now() const override;
};

// Stands at one moment until it is set again.
class FixedClock final : public Clock {
  public:
    explicit FixedClock(Moment moment) : now_(moment) {}
    [[nodiscard]] Moment now() const override { return now_; }
    void set(Moment moment) { now_ = moment; }

  private:
    Moment now_;
};

// Runs like the system's clock, but on another day.
class ShiftedClock final : public Clock {
  public:
    explicit ShiftedClock(Day today);
    [[nodiscard]] Moment now() const override;

  private:
    SystemClock system_;
    std::chrono::days shift_;
};

} // namespace kurbo
