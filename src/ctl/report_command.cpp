#include "base/files.h"
#include "card/card_grid.h"
#include "card/rptGoOut.h"
#include "card/rptKurbo.h"
#include "ctl/commands.h"
#include "ctl/questions.h"
#include "engine/loaders.h"
#include "paper/paper_pdf.h"
#include "store/database_file.h"
#include "totals/rptTotal.h"
#include "totals/total_grid.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

using Document = std::unique_ptr<PaperDocument>;

// Nobody for a code that isn't known.
CodeName knownSection(Connection& connection, const QString& code) {
    const auto name = connection.firstValue(
        QStringLiteral("SELECT F_SectionName FROM C02_Section WHERE (F_SectionCode = ?);"), {code});
    return name ? CodeName{code, name->text()} : CodeName{};
}

CodeName section(Connection& connection, const QString& code) {
    const CodeName known = knownSection(connection, code);
    if (known.code.isEmpty()) throw Complaint(QStringLiteral("部課コード「%1」は登録されていません。").arg(code));
    return known;
}

struct Person {
    CodeName section;
    CodeName staff;
};

Person person(Connection& connection, const QString& code) {
    Rows rows = connection.rows(QStringLiteral("SELECT F_StaffName, F_Section FROM C03_Staff WHERE (F_StaffCode = ?);"),
                                {code});
    if (!rows.next()) throw Complaint(QStringLiteral("社員コード「%1」は登録されていません。").arg(code));
    const CodeName staff{code, rows.text(0)};
    const QString home = rows.text(1);
    return {knownSection(connection, home), staff};
}

Document cardReport(const Context& context, Connection& connection, const Options& options) {
    const Person who = person(connection, options.needed(QStringLiteral("staff")));
    const auto asked = askedCard(context, connection, options);
    if (!asked) return {};
    GridModel grid;
    fillCardGrid(grid, asked->card);
    const CardHeading heading{slashDate(asked->span.from), slashDate(asked->span.to), who.section, who.staff};
    return std::make_unique<rptKurbo>(grid, heading, context.clock.today());
}

Document totalsReport(const Context& context, Connection& connection, const Options& options) {
    if (options.has(QStringLiteral("month")))
        throw WrongUse{QStringLiteral("totals takes --from and --to, no --month")};
    TotalsQuestion question = askedTotals(options);
    const Person who = question.staff.isEmpty() ? Person{section(connection, question.section), {}}
                                                : person(connection, question.staff);
    GridModel grid;
    if (!ShowTotal(context, connection, question, grid)) return {};
    const auto month = [](std::chrono::year_month of) { return slashDate(Day{of / 1}).left(7); };
    return std::make_unique<rptTotal>(
        grid, TotalHeading{month(question.from), month(question.to), who.section, who.staff}, context.clock.today());
}

Document goOutReport(const Context& context, Connection& connection, const Options& options) {
    const Person who = person(connection, options.needed(QStringLiteral("staff")));
    clsWorkTime rules;
    if (!GetWorkStyle(context, connection, rules)) return {};
    return makeGoOutReport(context, connection, who.section, who.staff, askedPeriod(options, rules.plngCloseDay()));
}

struct Kind {
    const char16_t* name;
    Document (*make)(const Context&, Connection&, const Options&);
};
constexpr std::array kinds{Kind{u"card", cardReport}, Kind{u"totals", totalsReport}, Kind{u"goout", goOutReport}};

const Kind& kindNamed(const QString& name) {
    const auto* const kind = std::ranges::find_if(kinds, [&name](const Kind& known) { return name == known.name; });
    if (kind == kinds.end()) throw WrongUse{QStringLiteral("report takes card, totals or goout")};
    return *kind;
}

} // namespace

Exit runReport(const QStringList& arguments) {
    Options options;
    for (const char* const name : {"staff", "section", "month", "from", "to", "by"})
        options.add(QString::fromLatin1(name), QStringLiteral("as card and totals take it"));
    options.add(QStringLiteral("out"), QStringLiteral("the PDF file, replaced when it is there"));
    options.read(arguments, 2);
    const Kind& kind = kindNamed(options.place(1));
    const QString out = options.needed(QStringLiteral("out"));
    if (out.isEmpty()) throw WrongUse{QStringLiteral("--out takes the name of a file")};
    if (isSameFile(out, options.place(0))) throw WrongUse{QStringLiteral("--out is the database itself")};
    const Console console(options);
    Connection connection;
    connection.open(options.place(0), databasePassword());
    const Document document = kind.make(console.context(), connection, options);
    connection.close();
    if (!document || !writePdf(*document, out, console.context().progress)) return console.refused();
    say(QStringLiteral("%1ページを保存しました。").arg(document->pageCount()));
    return Exit::Done;
}

} // namespace kurbo
