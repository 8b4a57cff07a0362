#include "ctl/commands.h"
#include "ctl/console.h"
#include "demo/demo_company.h"
#include "store/connection.h"
#include "store/file/database_file.h"

#include <QFile>

#include <array>

namespace kurbo {
namespace {

DemoOptions demoOf(const Options& options) {
    DemoOptions demo;
    demo.people = options.number(QStringLiteral("people"), demo.people, 1, 3600);
    demo.sections = options.number(QStringLiteral("sections"), demo.sections, 1, 200);
    demo.months = options.number(QStringLiteral("months"), demo.months, 0, 240);
    demo.seed = static_cast<std::uint32_t>(options.number(QStringLiteral("seed"), 1, 0, 1'000'000'000));
    demo.until = options.day(QStringLiteral("until")).value_or(options.clock()->today());
    demo.flexible = options.has(QStringLiteral("flexible"));
    return demo;
}

void fill(const QString& path, const DemoOptions& demo) {
    createDatabase(path);
    try {
        Connection connection;
        connection.open(path, databasePassword());
        makeDemoCompany(connection, demo);
    } catch (...) {
        QFile::remove(path);
        throw;
    }
}

// Who may be logged in as, a line each: section, code, name, password, role.
void sayPeople(const DemoOptions& demo) {
    for (const DemoPerson& person : demoPeopleToTry(demo))
        say(QStringList({person.sectionName, person.code, person.name, person.password, person.role}).join(u'\t'));
    say(QStringLiteral("\tADMIN\tADMIN\tADMIN\t管理者"));
}

Exit runDemo(const Options& options) {
    const DemoOptions demo = demoOf(options);
    refuseExisting(options.argument(0));
    fill(options.argument(0), demo);
    sayPeople(demo);
    return Exit::Done;
}

constexpr std::array demoOptions{
    OptionText{.name = u"people", .value = u"N", .text = u"number of people, 1 to 3600; 12 without it"},
    OptionText{.name = u"sections", .value = u"N", .text = u"number of sections, 1 to 200; 3 without it"},
    OptionText{.name = u"months",
               .value = u"N",
               .text = u"whole months of cards before the current one, 0 to 240; 4 without it"},
    OptionText{.name = u"seed", .value = u"N", .text = u"another number makes another company"},
    OptionText{
        .name = u"until", .value = u"yyyy/mm/dd", .text = u"the day before which the cards end; today without it"},
    OptionText{.name = u"flexible", .text = u"a company with flexible working time"},
};

} // namespace

const Command demoCommand{
    .name = u"demo",
    .run = runDemo,
    .arguments = u"FILE",
    .summary = u"Makes a database with a believable company.",
    .more = u"Prints section, code, name, password and role of its people, parted by tabs.\n"
            u"The same options make the same company. A file that is there already is refused.",
    .options = demoOptions,
    .example = u"demo demo.mdb --people 30 --flexible",
};

} // namespace kurbo
