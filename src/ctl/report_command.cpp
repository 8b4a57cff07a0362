#include "base/system/files.h"
#include "card/card_grid.h"
#include "card/outings/rptGoOut.h"
#include "card/rptKurbo.h"
#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/questions.h"
#include "month/loaders.h"
#include "paper/paper_pdf.h"
#include "store/file/database_file.h"
#include "totals/rptTotal.h"
#include "totals/total_sheet.h"
#include "totals/total_update.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

// Nothing after a failure, which has been said; where somebody's rules are at fault the paper isn't whole.
struct Made {
    std::unique_ptr<PaperDocument> document;
    bool whole = true;
};

Made cardReport(const Context& context, Connection& connection, const Options& options) {
    const auto asked = askedCard(context, connection, options);
    if (!asked) return {};
    GridModel grid;
    fillCardGrid(grid, asked->card);
    const CardHeading heading{slashDate(asked->span.from), slashDate(asked->span.to), asked->who.section,
                              asked->who.staff};
    return {std::make_unique<rptKurbo>(grid, heading, context.clock.today())};
}

Made totalsReport(const Context& context, Connection& connection, const Options& options) {
    if (options.has(QStringLiteral("month")))
        throw WrongUse{QStringLiteral("totals takes --from and --to, no --month")};
    TotalsQuestion question = askedTotals(options);
    const AskedPerson who = askedPeople(connection, question);
    TotalSheet sheet;
    const auto totals = ShowTotal(context, connection, question, sheet);
    if (!totals) return {};
    const TotalHeading heading{slashMonth(question.from), slashMonth(question.to), who.section, who.staff};
    return {std::make_unique<rptTotal>(sheet, heading, context.clock.today()), totals->faults.isEmpty()};
}

Made goOutReport(const Context& context, Connection& connection, const Options& options) {
    const AskedPerson who = askedPerson(connection, options.needed(QStringLiteral("staff")));
    clsWorkTime rules;
    if (!GetWorkStyle(context, connection, rules)) return {};
    return {makeGoOutReport(context, connection, who.section, who.staff, askedPeriod(options, rules.plngCloseDay()))};
}

struct Kind {
    const char16_t* name;
    Made (*make)(const Context&, Connection&, const Options&);
};
constexpr std::array kinds{Kind{u"card", cardReport}, Kind{u"totals", totalsReport}, Kind{u"goout", goOutReport}};

const Kind& kindNamed(const QString& name) {
    const auto* const kind = std::ranges::find_if(kinds, [&name](const Kind& known) { return name == known.name; });
    if (kind == kinds.end()) throw WrongUse{QStringLiteral("report takes card, totals or goout")};
    return *kind;
}

Exit runReport(const Options& options) {
    const Kind& kind = kindNamed(options.argument(1));
    const QString out = options.needed(QStringLiteral("out"));
    if (out.isEmpty()) throw WrongUse{QStringLiteral("--out takes the name of a file")};
    if (isSameFile(out, options.argument(0))) throw WrongUse{QStringLiteral("--out is the database itself")};
    const Console console(options);
    Connection connection;
    connection.open(options.argument(0), databasePassword());
    const auto [document, whole] = kind.make(console.context(), connection, options);
    connection.close();
    if (!document || !writePdf(*document, out, console.context().progress)) return console.refused();
    say(QStringLiteral("%1ページを保存しました。").arg(document->pageCount()));
    return whole ? Exit::Done : Exit::Refused;
}

constexpr std::array reportOptions{
    OptionText{.name = u"out", .value = u"X.pdf", .text = u"the PDF file, replaced when it is there", .needed = true},
    OptionText{.name = u"staff", .value = u"CODE", .text = u"the person"},
    OptionText{.name = u"section", .value = u"CODE", .text = u"the section, of totals"},
    OptionText{.name = u"month", .value = u"yyyy/mm", .text = u"the month in which the period ends, of card and goout"},
    OptionText{.name = u"from", .value = u"yyyy/mm/dd", .text = u"first day, or first month of totals"},
    OptionText{.name = u"to", .value = u"yyyy/mm/dd", .text = u"last day, or last month of totals"},
    OptionText{.name = u"by", .value = u"staff|month", .text = u"the order of the rows, of totals; staff without it"},
};

} // namespace

const Command reportCommand{
    .name = u"report",
    .run = runReport,
    .arguments = u"FILE card|totals|goout",
    .summary = u"Writes a report as a PDF file.",
    .more = u"card and goout (a person's outings) take the options of card, totals those of totals.",
    .options = reportOptions,
    .example = u"report demo.mdb totals --section S01 --from 2026/04 --to 2026/09 --out totals.pdf",
};

} // namespace kurbo
