#include "ctl/commands.h"
#include "ctl/console.h"
#include "demo/demo_company.h"
#include "store/connection.h"
#include "store/database_file.h"

#include <QFile>

namespace kurbo {
namespace {

DemoOptions demoOptions(const Options& options) {
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

} // namespace

Exit runDemo(const QStringList& arguments) {
    Options options;
    for (const auto& [name, description] : {std::pair{u"people", u"number of people"},
                                            {u"sections", u"number of sections"},
                                            {u"months", u"months of cards"},
                                            {u"seed", u"another number makes another company"},
                                            {u"until", u"the day before which the cards end, yyyy/mm/dd"}})
        options.add(QString::fromUtf16(name), QString::fromUtf16(description));
    options.addSwitch(QStringLiteral("flexible"), QStringLiteral("a company with flexible working time"));
    options.read(arguments, 1);
    const DemoOptions demo = demoOptions(options);
    refuseExisting(options.place(0));
    fill(options.place(0), demo);
    sayPeople(demo);
    return Exit::Done;
}

} // namespace kurbo
