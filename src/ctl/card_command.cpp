#include "card/card_cells.h"
#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/questions.h"
#include "ctl/result_output.h"
#include "store/file/database_file.h"

#include <array>

namespace kurbo {
namespace {

void printCard(const Card& card, const QString& staff, Period span, Format format) {
    QList<QStringList> rows(card.summary.begin(), card.summary.end());
    if (format != Format::Json) return printRows(card.headings, rows + card.days, format);
    say(QStringLiteral("{\"staff\":%1,\"from\":%2,\"to\":%3,\"headings\":%4,\"summary\":%5,\"days\":%6}")
            .arg(jsonText(staff), jsonText(slashDate(span.from)), jsonText(slashDate(span.to)),
                 jsonTexts(card.headings), jsonTable(rows), jsonTable(card.days)));
}

Exit runCard(const Options& options) {
    const Format format = formatNamed(options.value(QStringLiteral("format")));
    const Console console(options);
    Connection connection;
    connection.open(options.argument(0), databasePassword());
    const auto asked = askedCard(console.context(), connection, options);
    if (!asked) return console.refused();
    printCard(asked->card, asked->who.staff.code, asked->span, format);
    return Exit::Done;
}

constexpr std::array cardOptions{
    OptionText{.name = u"staff", .value = u"CODE", .text = u"the person", .needed = true},
    OptionText{
        .name = u"month", .value = u"yyyy/mm", .text = u"the month in which the period ends; this, or --from and --to"},
    OptionText{.name = u"from", .value = u"yyyy/mm/dd", .text = u"first day"},
    OptionText{.name = u"to", .value = u"yyyy/mm/dd", .text = u"last day"},
};

} // namespace

const Command cardCommand{
    .name = u"card",
    .run = runCard,
    .arguments = u"FILE",
    .summary = u"Prints the time card of a person, worked out from the stored punches.",
    .more = u"",
    .options = cardOptions,
    .example = u"card demo.mdb --staff 1003 --month 2026/10 --format tsv",
};

} // namespace kurbo
