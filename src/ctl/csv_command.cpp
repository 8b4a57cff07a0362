#include "base/files.h"
#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/options.h"
#include "store/database_file.h"
#include "totals/csv_exchange.h"
#include "totals/csv_file.h"

namespace kurbo {
namespace {

QString monthId(std::chrono::year_month month) {
    return dateId(Day{month / std::chrono::day{1}}).left(6);
}

CsvSpan spanOf(const Options& options) {
    const CsvSpan span{.section = options.needed(QStringLiteral("section")),
                       .staff = options.value(QStringLiteral("staff")),
                       .from = monthId(options.month(QStringLiteral("from"))),
                       .to = monthId(options.month(QStringLiteral("to")))};
    if (span.to < span.from) throw WrongUse{QStringLiteral("--to lies before --from")};
    return span;
}

} // namespace

Exit runExport(const QStringList& arguments) {
    Options options;
    options.add(QStringLiteral("section"), QStringLiteral("section code"));
    options.add(QStringLiteral("staff"), QStringLiteral("staff code, for one person alone"));
    options.add(QStringLiteral("from"), QStringLiteral("first month, yyyy/mm"));
    options.add(QStringLiteral("to"), QStringLiteral("last month, yyyy/mm"));
    options.add(QStringLiteral("out"), QStringLiteral("the CSV file, replaced when it is there"));
    options.read(arguments, 1);
    const CsvSpan span = spanOf(options);
    const QString out = options.needed(QStringLiteral("out"));
    if (isSameFile(out, options.place(0))) throw WrongUse{QStringLiteral("--out is the database itself")};
    const Console console(options);
    Connection connection;
    connection.open(options.place(0), databasePassword());
    const QList<MonthRecord> months = savedMonths(connection, span);
    connection.close();
    if (months.isEmpty()) throw Complaint(QStringLiteral("更新済の月次集計データがありません。"));
    if (CsvSaveTotal(console.context(), out, months) <= 0) return console.refused();
    say(QString::number(months.size()) + QStringLiteral("件の月次集計データを保存しました。"));
    return Exit::Done;
}

Exit runImport(const QStringList& arguments) {
    Options options;
    options.addSwitch(QStringLiteral("overwrite"), QStringLiteral("replace months that are there already"));
    options.readMany(arguments, 2);
    const Console console(options);
    const auto loaded = loadCsv(console.context(), options.placesFrom(1));
    if (!loaded) return console.refused();
    QList<MonthRecord> months;
    for (const LoadedMonth& month : *loaded) months.append(month.record);
    Connection connection;
    connection.open(options.place(0), databasePassword());
    const bool overwrite = options.has(QStringLiteral("overwrite"));
    const CsvAdded added = addToDatabase(console.context(), connection, months,
                                         overwrite ? OnExisting::Overwrite : OnExisting::Skip, [] { return false; });
    if (added.end != CsvAdded::End::Done) return console.refused();
    say(QStringLiteral("登録：%1件、スキップ：%2件").arg(added.stored).arg(added.skipped));
    return Exit::Done;
}

} // namespace kurbo
