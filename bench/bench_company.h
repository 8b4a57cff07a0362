#pragma once

#include "base/guard.h"
#include "store/connection.h"
#include "store/file/database_file.h"

#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace kurbo::bench {

// Says what comes up on standard output: a benchmark in which a message comes up is no benchmark.
class LoudPrompts final : public Prompts {
  public:
    Answer ask(const Message& message) override {
        std::printf("message: %s\n", message.text.toUtf8().constData());
        return message.preset;
    }
    QStringList chooseFiles(const FileQuestion& /*question*/) override { return {}; }
};

struct Office {
    explicit Office(const QString& folder) : paths(pathsIn(folder)) {}
    LoudPrompts prompts;
    FixedClock clock{at(*makeDay(2026, 4, 15), 9, 0)};
    Paths paths;
    NoProgress progress;
    Context context{prompts, clock, paths, progress};
};

inline QString staffCode(int i) {
    return QString::number(10000 + i);
}

// A year's calendar, and `people` with two months of rows each.
inline void makeBenchCompany(const QString& path, int people) {
    createDatabase(path);
    Connection connection;
    connection.open(path, databasePassword());
    Transaction transaction(connection);
    const Day first = *makeDay(2026, 1, 1);
    for (int i = 0; i < 365; ++i)
        connection.execute(QStringLiteral("INSERT INTO T01_Calendar (F_DateID, F_Date) VALUES (?, ?)"),
                           {dateId(first + std::chrono::days(i)), first + std::chrono::days(i)});
    int id = 1000000;
    for (int day = 30; day < 90; ++day)
        for (int i = 0; i < people; ++i)
            connection.execute(QStringLiteral("INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User, F_Enter, F_Leave) "
                                              "VALUES (?, ?, ?, ?, ?)"),
                               {++id, dateId(first + std::chrono::days(day)), staffCode(i),
                                at(first + std::chrono::days(day), 9, 0), at(first + std::chrono::days(day), 17, 30)});
    transaction.commit();
}

template <typename Action>
double timed(Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

class Samples final {
  public:
    void add(double value) { values_.push_back(value); }
    // The value that `percent` of all do not exceed.
    [[nodiscard]] double at(double percent) {
        std::ranges::sort(values_);
        const auto last = static_cast<double>(values_.size() - 1);
        return values_[static_cast<std::size_t>(last * percent / 100)];
    }
    [[nodiscard]] std::size_t size() const { return values_.size(); }
    void join(const std::vector<double>& more) { values_.insert(values_.end(), more.begin(), more.end()); }

  private:
    std::vector<double> values_;
};

} // namespace kurbo::bench
