#include "base/files.h"
#include "base/public_holidays.h"
#include "ctl/commands.h"

namespace kurbo {

// From the year in which the law took its present form to the last for which the equinoxes are known well enough.
Exit runHolidays(const QStringList& arguments) {
    constexpr int firstYear = 2022;
    constexpr int lastYear = 2099;
    Options options;
    options.add(QStringLiteral("year"), QStringLiteral("the year of the public holidays"));
    options.addSwitch(QStringLiteral("overwrite"), QStringLiteral("replaces a file that is there"));
    options.read(arguments, 1);
    (void)options.needed(QStringLiteral("year"));
    const int year = options.number(QStringLiteral("year"), firstYear, firstYear, lastYear);
    if (!options.has(QStringLiteral("overwrite"))) refuseExisting(options.place(0));
    replaceFile(chosenFile(options.place(0)), holidayFileOf(year));
    return Exit::Done;
}

} // namespace kurbo
