#include "card/card_cells.h"
#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/questions.h"
#include "ctl/result_output.h"
#include "store/database_file.h"

namespace kurbo {
namespace {

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
    (void)options.needed(QStringLiteral("staff"));
    const Format format = formatNamed(options.value(QStringLiteral("format")));
    const Console console(options);
    Connection connection;
    connection.open(options.place(0), databasePassword());
    const auto asked = askedCard(console.context(), connection, options);
    if (!asked) return console.refused();
    printCard(asked->card, asked->staff, asked->span, format);
    return Exit::Done;
}

} // namespace kurbo
