#pragma once

#include "month/month_pass.h"

#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <thread>

namespace kurbo {

// A month whose days are known; its sums go to their place among those of the person.
struct MonthJob {
    PersonMonths* person = nullptr;
    std::size_t period = 0;
    std::vector<DayFacts> days;
    QChar next;
    std::optional<Moment> carry;
};

// Calculates months one after another; many of them on a thread of its own, while the rows of the next ones are read.
// The jobs of a person come in their order; until finish() has returned nobody else sets a day of their rules or reads
// their sums.
class MonthWorker final {
  public:
    // `months`: how many are to come.
    MonthWorker(Day today, std::size_t months);
    // What has not been calculated yet is given up.
    ~MonthWorker();
    MonthWorker(const MonthWorker&) = delete;
    MonthWorker& operator=(const MonthWorker&) = delete;

    // Waits while many months are ahead. Without a thread it throws what the calculation throws.
    void add(MonthJob job);
    // Returns when all is calculated; throws what the first failed month has thrown.
    void finish();

  private:
    void work();
    [[nodiscard]] std::optional<MonthJob> take();

    const Day today_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<MonthJob> jobs_;
    bool ended_ = false; // no more come
    std::exception_ptr failure_;
    std::thread thread_;
};

} // namespace kurbo
