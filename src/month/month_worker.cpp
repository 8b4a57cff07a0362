#include "month/month_worker.h"

namespace kurbo {
namespace {

constexpr std::size_t mostAhead = 1024;
// Below it a thread costs more than it takes over.
constexpr std::size_t worthAThread = 1000;

void calculate(MonthJob& job, Day today) {
    Figures sum = calculateDays(job.person->rules, job.days, job.next, job.carry, today).sum;
    roundSums(job.person->rules, sum);
    job.person->sums[job.period] = sum;
}

} // namespace

MonthWorker::MonthWorker(Day today, std::size_t months) : today_(today) {
    if (months >= worthAThread) thread_ = std::thread([this] { work(); });
}

MonthWorker::~MonthWorker() {
    {
        const std::lock_guard lock(mutex_);
        jobs_.clear();
        ended_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) thread_.join();
}

void MonthWorker::add(MonthJob job) {
    if (!thread_.joinable()) return calculate(job, today_);
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return jobs_.size() < mostAhead; });
    if (failure_) return;
    jobs_.push_back(std::move(job));
    if (jobs_.size() == 1) changed_.notify_all();
}

void MonthWorker::finish() {
    {
        const std::lock_guard lock(mutex_);
        ended_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) thread_.join();
    if (failure_) std::rethrow_exception(failure_);
}

std::optional<MonthJob> MonthWorker::take() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return !jobs_.empty() || ended_; });
    if (jobs_.empty()) return {};
    MonthJob job = std::move(jobs_.front());
    jobs_.pop_front();
    if (jobs_.size() + 1 == mostAhead) changed_.notify_all();
    return job;
}

void MonthWorker::work() {
    while (auto job = take()) {
        try {
            calculate(*job, today_);
        } catch (...) {
            const std::lock_guard lock(mutex_);
            failure_ = std::current_exception();
            jobs_.clear();
            ended_ = true;
            changed_.notify_all();
        }
    }
}

} // namespace kurbo
