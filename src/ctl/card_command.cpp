#include "card/card_cells.h"
#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/result_output.h"
#include "engine/loaders.h"
#include "store/database_file.h"

namespace kurbo {
namespace {

// "yyyy/mm", or --from and --to.
Period spanOf(const Options& options, int closeDay) {
    const auto from = options.day(QStringLiteral("from"));
    const auto to = options.day(QStringLiteral("to"));
    if (from && to && *from <= *to) return {*from, *to};
    const auto month = parseSlashDate(options.value(QStringLiteral("month")) + QStringLiteral("/01"));
    const auto period =
        month ? periodOfMonth(yearOf(*month), static_cast<int>(static_cast<unsigned>(civil(*month).month())), closeDay)
              : std::nullopt;
    if (!period) throw WrongUse{QStringLiteral("card takes --month yyyy/mm, or --from and --to")};
    return *period;
}

void printCard(const Card& card, const QString& staff, Period span, Format format) {
    QList<QStringList> rows(card.summary.begin(), card.summary.end());
    if (format != Format::Json) return printRows(card.headings, rows + card.days, format);
    say(QStringLiteral("{\"staff\":%1,\"from\":%2,\"to\":%3,\"headings\":%4,\"summary\":%5,\"days\":%6}")
            .arg(jsonText(staff), jsonText(slashDate(span.from)), jsonText(slashDate(span.to)),
                 jsonTexts(card.headings), jsonTable(rows), jsonTable(card.days)));
}

} // namespace

Exit runCard(const QStringList& arguments) {
    Options options;
    options.add(QStringLiteral("staff"), QStringLiteral("staff code"));
    options.add(QStringLiteral("month"), QStringLiteral("the month in which the period ends, yyyy/mm"));
    options.add(QStringLiteral("from"), QStringLiteral("first day, yyyy/mm/dd"));
    options.add(QStringLiteral("to"), QStringLiteral("last day, yyyy/mm/dd"));
    options.read(arguments, 1);
    const Format format = formatNamed(options.value(QStringLiteral("format")));
    const QString staff = options.needed(QStringLiteral("staff"));
    const Console console(options);
    Connection connection;
    connection.open(options.place(0), databasePassword());
    clsWorkTime rules;
    if (!GetWorkStyle(console.context(), connection, rules) ||
        !GetStaffInfo(console.context(), connection, rules, staff) ||
        !GetWorkTime(console.context(), connection, rules, staff))
        return console.refused();
    const Period span = spanOf(options, rules.plngCloseDay());
    const auto card = makeCard(console.context(), connection, rules, staff, span);
    if (!card) return console.refused();
    printCard(*card, staff, span, format);
    return Exit::Done;
}

} // namespace kurbo
