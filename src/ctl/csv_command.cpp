#include "base/system/files.h"
#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/questions.h"
#include "store/file/database_file.h"
#include "store/text_order.h"
#include "totals/csv/csv_exchange.h"
#include "totals/csv/csv_file.h"

#include <array>

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

// Otherwise the lines of a person from elsewhere would carry the section that was asked for.
void refuseOutsider(Connection& connection, const CsvSpan& span) {
    const CodeName home = askedPerson(connection, span.staff).section;
    if (compareText(home.code, span.section) != 0)
        throw Complaint(
            QStringLiteral("社員コード「%1」は部課コード「%2」に所属していません。").arg(span.staff, span.section));
}

Exit runExport(const Options& options) {
    const CsvSpan span = spanOf(options);
    const QString out = options.needed(QStringLiteral("out"));
    if (isSameFile(out, options.argument(0))) throw WrongUse{QStringLiteral("--out is the database itself")};
    const Console console(options);
    Connection connection;
    connection.open(options.argument(0), databasePassword());
    (void)askedSection(connection, span.section);
    if (options.has(QStringLiteral("staff"))) refuseOutsider(connection, span);
    const QList<MonthRecord> months = savedMonths(connection, span);
    connection.close();
    if (months.isEmpty()) throw Complaint(QStringLiteral("更新済の月次集計データがありません。"));
    if (CsvSaveTotal(console.context(), out, months) <= 0) return console.refused();
    say(QString::number(months.size()) + QStringLiteral("件の月次集計データを保存しました。"));
    return Exit::Done;
}

Exit runImport(const Options& options) {
    const Console console(options);
    const auto loaded = loadCsv(console.context(), options.argumentsFrom(1));
    if (!loaded) return console.refused();
    QList<MonthRecord> months;
    for (const LoadedMonth& month : *loaded) months.append(month.record);
    Connection connection;
    connection.open(options.argument(0), databasePassword());
    const bool overwrite = options.has(QStringLiteral("overwrite"));
    const CsvAdded added = addToDatabase(console.context(), connection, months,
                                         overwrite ? OnExisting::Overwrite : OnExisting::Skip, [] { return false; });
    if (added.end != CsvAdded::End::Done) return console.refused();
    say(QStringLiteral("登録：%1件、スキップ：%2件").arg(added.stored).arg(added.skipped));
    return Exit::Done;
}

constexpr std::array exportOptions{
    OptionText{.name = u"section", .value = u"CODE", .text = u"the section", .needed = true},
    OptionText{.name = u"staff", .value = u"CODE", .text = u"one of its people alone"},
    OptionText{.name = u"from", .value = u"yyyy/mm", .text = u"first month", .needed = true},
    OptionText{.name = u"to", .value = u"yyyy/mm", .text = u"last month", .needed = true},
    OptionText{.name = u"out", .value = u"X.csv", .text = u"the CSV file, replaced when it is there", .needed = true},
};

constexpr std::array importOptions{
    OptionText{.name = u"overwrite", .text = u"replaces months that are there already; without it they are skipped"},
};

} // namespace

const Command exportCommand{
    .name = u"export",
    .run = runExport,
    .arguments = u"FILE",
    .summary = u"Writes the saved months of a section to a CSV file.",
    .more = u"The file is in code page 932.",
    .options = exportOptions,
    .example = u"export demo.mdb --section S01 --from 2026/04 --to 2026/09 --out months.csv",
};

const Command importCommand{
    .name = u"import",
    .run = runImport,
    .arguments = u"FILE X.csv...",
    .summary = u"Reads saved months out of CSV files into the database.",
    .more = u"It takes up to 100 files with up to 200 months together: all or nothing.",
    .options = importOptions,
    .example = u"import other.mdb months.csv",
};

} // namespace kurbo
