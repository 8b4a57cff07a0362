// The move of one year out of three of 1,000 people, with its monthly records, against the copying and the compaction
// of the same file, which are the least that a move has to do; in turn, so that a busy machine slows both.

#include "bench_company.h"
#include "kept_company.h"

#include "demo/demo_company.h"
#include "maintenance/data_move.h"
#include "store/file/optimize_db.h"

#include <QDir>
#include <QFile>

#include <set>

namespace {

using namespace kurbo;
using namespace kurbo::bench;

constexpr int people = 1000;
constexpr int rounds = 7;

QString companyFile() {
    DemoOptions options;
    options.people = people;
    options.months = 36;
    options.until = *makeDay(2026, 4, 15);
    return keptCompany(QStringLiteral("kurbo-move-bench-1000x36.mdb"), options);
}

// Where the bar stood, and how long it stood still at most.
class WatchedBar final : public Progress {
  public:
    void begin(const QString& /*text*/, int /*maximum*/) override { last_ = std::chrono::steady_clock::now(); }
    void step(int value) override {
        if (!places_.insert(value).second) return;
        const auto now = std::chrono::steady_clock::now();
        longest_ = std::max(longest_, std::chrono::duration<double, std::milli>(now - last_).count());
        last_ = now;
    }
    void end() override {}
    [[nodiscard]] std::size_t places() const { return places_.size(); }
    [[nodiscard]] double longest() const { return longest_; }

  private:
    std::set<int> places_;
    std::chrono::steady_clock::time_point last_;
    double longest_ = 0;
};

MoveOrder order(const QString& destination) {
    return {makeDay(2023, 4, 1), makeDay(2024, 3, 31), true, makeDay(2023, 4, 1), makeDay(2024, 3, 1), destination};
}

} // namespace

int main() {
    const QTemporaryDir folder;
    Office office(folder.path());
    const QString file = companyFile();
    const QString path = folder.filePath(QStringLiteral("store.mdb"));
    const QString destination = folder.filePath(QStringLiteral("old.mdb"));
    Samples bare;
    Samples moved;
    Samples ratios;
    WatchedBar bar;
    for (int i = 0; i < rounds; ++i) {
        QFile::remove(path);
        QFile::remove(destination);
        const double least = timed([&] {
            copyDatabase(file, path);
            (void)OptimizeDB(office.context, path, databasePassword());
        });
        QFile::remove(path);
        copyDatabase(file, path);
        const Context watched{office.prompts, office.clock, office.paths, bar};
        Connection connection;
        connection.open(path, databasePassword());
        OptimizeResult result{};
        const double move = timed([&] { result = carryOut(watched, connection, path, order(destination)); });
        if (result != OptimizeResult::OK) return 1;
        bare.add(least);
        moved.add(move);
        ratios.add(move / least);
    }
    std::printf(
        "copy and compact %.0f ms, move %.0f ms, %.2f times (at best %.2f); the bar stood at %zu places, at most "
        "%.0f ms at one\n",
        bare.at(50) / 1000, moved.at(50) / 1000, ratios.at(50), moved.at(0) / bare.at(0), bar.places(), bar.longest());
    return 0;
}
