// The totals of 1,000 people by 12 months, none of them saved, from an open connection to typed rows and to the filled
// grid, against the bare reading of the same card rows into structs in the order of the file; in turn, so that a busy
// machine slows both. Then the same with the months that the company has saved, and the memory. At last 20 of 3,600
// people, against the bare reading of their own rows by the index on people; the limit is 3 times.

#include "bench_company.h"
#include "kept_company.h"

#include "demo/demo_company.h"
#include "store/readers.h"
#include "totals/total_sheet.h"

#include <QDir>
#include <QFile>

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace {

using namespace kurbo;
using namespace kurbo::bench;

constexpr int people = 1000;
constexpr int rounds = 31;

constexpr int manyPeople = 3600;
constexpr int manySections = 180;

QString companyFile(int staff, int sections) {
    DemoOptions options;
    options.people = staff;
    options.sections = sections;
    options.months = 12;
    options.until = *makeDay(2026, 6, 1);
    return keptCompany(QStringLiteral("kurbo-totals-bench-%1x12.mdb").arg(staff), options);
}

QString withoutSavedMonths(const QString& file, const QString& folder) {
    const QString path = folder + QStringLiteral("/open.mdb");
    QFile::remove(path);
    QFile::copy(file, path);
    Connection connection;
    connection.open(path, databasePassword());
    connection.execute(QStringLiteral("DELETE FROM T05_Approved"));
    // The one who has left is a person like the others here.
    connection.execute(QStringLiteral("UPDATE C03_Staff SET F_Display = True"));
    return path;
}

struct BareRow {
    std::array<char, 9> day;
    std::array<char, 8> staff;
    std::array<char, 20> enter;
    std::array<char, 20> leave;
    char paid;
    char special;
    char compens;
};

const char* const allRows = "SELECT F_DateID, F_User, F_Enter, F_Leave, F_Paid, F_Special, F_Compens FROM T02_Kurbo";

class BareReader final {
  public:
    explicit BareReader(const QString& file, const QByteArray& statement = allRows) {
        sqlite3_open_v2(file.toUtf8().constData(), &database_, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
        sqlite3_exec(database_, "PRAGMA cache_size=-16000", nullptr, nullptr, nullptr);
        sqlite3_prepare_v2(database_, statement.constData(), -1, &rows_, nullptr);
    }
    ~BareReader() {
        sqlite3_finalize(rows_);
        sqlite3_close(database_);
    }
    BareReader(const BareReader&) = delete;
    BareReader& operator=(const BareReader&) = delete;

    std::size_t read(const QByteArray& staff = {}) {
        if (!staff.isEmpty()) sqlite3_bind_text(rows_, 1, staff.constData(), -1, SQLITE_TRANSIENT);
        std::vector<BareRow> rows;
        while (sqlite3_step(rows_) == SQLITE_ROW) {
            BareRow& row = rows.emplace_back();
            copy(0, row.day.data(), row.day.size());
            copy(1, row.staff.data(), row.staff.size());
            copy(2, row.enter.data(), row.enter.size());
            copy(3, row.leave.data(), row.leave.size());
            copy(4, &row.paid, 1);
            copy(5, &row.special, 1);
            copy(6, &row.compens, 1);
        }
        sqlite3_reset(rows_);
        return rows.size();
    }

  private:
    void copy(int column, char* place, std::size_t size) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(rows_, column));
        if (text)
            std::memcpy(place, text, std::min(size, static_cast<std::size_t>(sqlite3_column_bytes(rows_, column))));
    }
    sqlite3* database_ = nullptr;
    sqlite3_stmt* rows_ = nullptr;
};

// In megabytes, by its name in the process's status.
double memory(const std::string& name) {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith(name.c_str())) return line.simplified().split(' ')[1].toDouble() / 1024;
    return 0;
}

void forgetPeak() {
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly)) file.write("5");
}

TotalsQuestion question() {
    using namespace std::chrono;
    return {QStringLiteral("S01"), {}, 2025y / June, 2026y / May, true};
}

void measureMemory(const Context& context, Connection& connection) {
    const double before = memory("VmRSS");
    forgetPeak();
    TotalSheet sheet;
    TotalsQuestion asked = question();
    (void)ShowTotal(context, connection, asked, sheet);
    const double own = memory("VmRSS") - before;
    std::printf("memory: the grid %.1f MB, the peak %.1f MB, %.2f times the grid\n", own, memory("VmHWM") - before,
                (memory("VmHWM") - before) / own);
}

void measure(const char* name, const Context& context, const QString& file) {
    BareReader reader(file);
    Connection connection;
    connection.open(file, databasePassword());
    if (std::strcmp(name, "calculated") == 0) measureMemory(context, connection);
    Samples bare;
    Samples typed;
    Samples filled;
    Samples typedRatio;
    Samples filledRatio;
    std::size_t read = 0;
    std::size_t made = 0;
    for (int i = 0; i < rounds; ++i) {
        const double reading = timed([&] { read = reader.read(); });
        std::optional<Totals> totals;
        const double calculation = timed([&] { totals = calculateTotals(context, connection, question()); });
        TotalSheet sheet;
        const double filling = timed([&] { sheet.show(*totals); });
        made = totals->rows.size();
        bare.add(reading);
        typed.add(calculation);
        filled.add(calculation + filling);
        typedRatio.add(calculation / reading);
        filledRatio.add((calculation + filling) / reading);
    }
    std::printf(
        "%s: %zu months of %zu rows; bare reading %.1f ms, typed rows %.1f ms (%.2f times), filled grid %.1f ms "
        "(%.2f times, at best %.2f)\n",
        name, made, read, bare.at(50) / 1000, typed.at(50) / 1000, typedRatio.at(50), filled.at(50) / 1000,
        filledRatio.at(50), filled.at(0) / bare.at(0));
}

// Of a small section of the large company, again and again.
void measureFew(const Context& context, const QString& file) {
    const QByteArray own = QByteArray(allRows) + " WHERE F_User = ? AND F_DateID BETWEEN '20250601' AND '20260531' "
                                                 "ORDER BY F_DateID";
    BareReader reader(file, own);
    Connection connection;
    connection.open(file, databasePassword());
    const QList<CodeName> staff = displayedStaff(connection, question().section);
    Samples bare;
    Samples typed;
    Samples ratio;
    std::size_t read = 0;
    for (int i = 0; i < rounds; ++i) {
        read = 0;
        const double reading = timed([&] {
            for (const CodeName& person : staff) read += reader.read(person.code.toUtf8());
        });
        const double calculation = timed([&] { (void)calculateTotals(context, connection, question()); });
        bare.add(reading);
        typed.add(calculation);
        ratio.add(calculation / reading);
    }
    std::printf("few: %lld of %d people, %zu rows; bare reading %.1f ms, typed rows %.1f ms (%.2f times)\n",
                static_cast<long long>(staff.size()), manyPeople, read, bare.at(50) / 1000, typed.at(50) / 1000,
                ratio.at(50));
}

} // namespace

int main() {
    const QTemporaryDir folder;
    Office office(folder.path());
    office.clock.set(at(*makeDay(2026, 6, 1), 9, 0));
    const QString file = companyFile(people, 1);
    measure("calculated", office.context, withoutSavedMonths(file, folder.path()));
    measure("saved", office.context, file);
    measureFew(office.context, withoutSavedMonths(companyFile(manyPeople, manySections), folder.path()));
    return 0;
}
