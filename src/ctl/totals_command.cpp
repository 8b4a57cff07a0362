#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/questions.h"
#include "ctl/result_output.h"
#include "store/file/database_file.h"
#include "totals/total_lines.h"

#include <array>

namespace kurbo {
namespace {

// "^" is the grid's sign for a centred column.
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

Exit runTotals(const Options& options) {
    const TotalsQuestion question = askedTotals(options);
    const Console console(options);
    Connection connection;
    connection.open(options.argument(0), databasePassword());
    (void)askedPeople(connection, question);
    const auto totals = calculateTotals(console.context(), connection, question);
    if (!totals) return console.refused();
    printTotals(*totals, formatNamed(options.value(QStringLiteral("format"))));
    return totals->faults.isEmpty() ? Exit::Done : Exit::Refused;
}

constexpr std::array totalsOptions{
    OptionText{.name = u"from", .value = u"yyyy/mm", .text = u"first month", .needed = true},
    OptionText{.name = u"to", .value = u"yyyy/mm", .text = u"last month", .needed = true},
    OptionText{.name = u"section", .value = u"CODE", .text = u"the people shown in a section; this or --staff"},
    OptionText{.name = u"staff", .value = u"CODE", .text = u"one person"},
    OptionText{.name = u"by", .value = u"staff|month", .text = u"the order of the rows; staff without it"},
};

} // namespace

const Command totalsCommand{
    .name = u"totals",
    .run = runTotals,
    .arguments = u"FILE",
    .summary = u"Prints the months of a section's people, or of one person.",
    .more = u"Saved months stand as they were saved, the others are calculated. When the rules of somebody are at "
            u"fault, the\n"
            u"months of that person stand empty, the name is told on standard error, and the exit status is 1.",
    .options = totalsOptions,
    .example = u"totals demo.mdb --section S01 --from 2026/04 --to 2026/09 --by month",
};

} // namespace kurbo
