#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/questions.h"
#include "ctl/result_output.h"
#include "store/database_file.h"
#include "totals/total_lines.h"

namespace kurbo {
namespace {

// Without the signs of the alignment.
QStringList plainHeadings(bool byStaff) {
    return totalHeadings(byStaff).remove(u'^').split(u'|');
}

void printTotals(const Totals& totals, Format format) {
    QList<QStringList> rows;
    for (const TotalLine& line : totalLines(totals)) rows.append(line.cells);
    const QStringList headings = plainHeadings(totals.byStaff);
    if (format != Format::Json) return printRows(headings, rows, format);
    say(QStringLiteral("{\"headings\":%1,\"rows\":%2}").arg(jsonTexts(headings), jsonTable(rows)));
}

} // namespace

Exit runTotals(const QStringList& arguments) {
    Options options;
    options.add(QStringLiteral("section"), QStringLiteral("section code"));
    options.add(QStringLiteral("staff"), QStringLiteral("staff code"));
    options.add(QStringLiteral("from"), QStringLiteral("first month, yyyy/mm"));
    options.add(QStringLiteral("to"), QStringLiteral("last month, yyyy/mm"));
    options.add(QStringLiteral("by"), QStringLiteral("the order of the rows, staff or month"));
    options.read(arguments, 1);
    const TotalsQuestion question = askedTotals(options);
    const Console console(options);
    Connection connection;
    connection.open(options.place(0), databasePassword());
    const auto totals = calculateTotals(console.context(), connection, question);
    if (!totals) return console.refused();
    printTotals(*totals, formatNamed(options.value(QStringLiteral("format"))));
    return Exit::Done;
}

} // namespace kurbo
