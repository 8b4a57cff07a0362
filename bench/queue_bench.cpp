// Many processes that punch without pause on one file: how long the slowest punches take against a lone one, and how
// even the processes come to their turn.

#include "bench_company.h"

#include "punch/punch_clock.h"

#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace kurbo;
using namespace kurbo::bench;

constexpr auto runTime = std::chrono::seconds(20);
constexpr auto loneTime = std::chrono::seconds(6);

// Punches until the time is over, and gives the microseconds of each.
std::vector<double> punchesOf(const QString& path, const QString& folder, int number, std::chrono::seconds length) {
    Office office(folder);
    Connection connection;
    connection.open(path, databasePassword());
    const auto end = std::chrono::steady_clock::now() + length;
    std::vector<double> times;
    while (std::chrono::steady_clock::now() < end) {
        // A new person each time, so that every punch is written.
        const QString staff = QString::number(number) + u'-' + QString::number(times.size());
        times.push_back(timed([&] {
            (void)punch(office.context, connection, {{}, staff, {true, true, false, {}}, {}, {}}, Punch::Enter);
        }));
    }
    return times;
}

int child(const QString& path, const QString& folder, int number) {
    const std::vector<double> times = punchesOf(path, folder, number, runTime);
    std::FILE* file = std::fopen((folder + u'/' + QString::number(number)).toUtf8().constData(), "wb");
    if (!file) return 1;
    std::fwrite(times.data(), sizeof(double), times.size(), file);
    std::fclose(file);
    return 0;
}

std::vector<double> resultOf(const QString& folder, int number) {
    std::vector<double> times;
    std::FILE* file = std::fopen((folder + u'/' + QString::number(number)).toUtf8().constData(), "rb");
    double value = 0;
    while (file && std::fread(&value, sizeof value, 1, file) == 1) times.push_back(value);
    if (file) std::fclose(file);
    return times;
}

} // namespace

// What a perfect queue of so many would have waited, had it met the same disk: sums of consecutive lone punches.
double perfectWait(const std::vector<double>& lone, std::size_t queue) {
    Samples sums;
    double sum = 0;
    for (std::size_t i = 0; i < lone.size(); ++i) {
        sum += lone[i];
        if (i >= queue) sum -= lone[i - queue];
        if (i + 1 >= queue) sums.add(sum);
    }
    return sums.size() > 0 ? sums.at(99) : 0;
}

// The number of processes may be given; the limits are those for 64.
int main(int argc, char** argv) {
    const int processes = argc > 1 ? std::atoi(argv[1]) : 64;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("store.mdb"));
    makeBenchCompany(path, 10);
    const std::vector<double> before = punchesOf(path, folder.path(), processes, loneTime);

    for (int i = 0; i < processes; ++i)
        if (::fork() == 0) ::_exit(child(path, folder.path(), i));
    while (::wait(nullptr) > 0) {
    }

    // The disk changes its speed: the lone punches stand on both sides of the crowd.
    std::vector<double> loneTimes = punchesOf(path, folder.path(), processes + 1, loneTime);
    loneTimes.insert(loneTimes.end(), before.begin(), before.end());
    Samples lone;
    lone.join(loneTimes);

    Samples all;
    std::size_t fewest = SIZE_MAX;
    std::size_t most = 0;
    for (int i = 0; i < processes; ++i) {
        const std::vector<double> times = resultOf(folder.path(), i);
        fewest = std::min(fewest, times.size());
        most = std::max(most, times.size());
        all.join(times);
    }
    const double wait = all.at(99) / (processes * lone.at(50));
    const double evenness = static_cast<double>(most) / static_cast<double>(fewest);
    std::printf("punches a second, all together / lone: %.2f; a perfect queue on the same disk: %.2f\n",
                static_cast<double>(all.size()) / static_cast<double>(runTime.count()) * lone.at(50) / 1e6,
                perfectWait(loneTimes, static_cast<std::size_t>(processes)) / (processes * lone.at(50)));
    std::printf("%d processes: 99th of 100 / (processes x lone punch) %.2f (limit 1.50); "
                "most / fewest punches of a process %zu / %zu = %.2f (limit 1.20)\n",
                processes, wait, most, fewest, evenness);
    return wait <= 1.5 && evenness <= 1.2 ? 0 : 1;
}
