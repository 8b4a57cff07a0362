#include "base/public_holidays.h"
#include "base/system/files.h"
#include "ctl/commands.h"

#include <array>

namespace kurbo {
namespace {

// From the year in which the law took its present form to the last for which the equinoxes are known well enough.
Exit runHolidays(const Options& options) {
    constexpr int firstYear = 2022;
    constexpr int lastYear = 2099;
    const int year = options.number(QStringLiteral("year"), firstYear, firstYear, lastYear);
    if (!options.has(QStringLiteral("overwrite"))) refuseExisting(options.place(0));
    replaceFile(chosenFile(options.place(0)), holidayFileOf(year));
    return Exit::Done;
}

constexpr std::array holidaysOptions{
    OptionText{u"year", u"YYYY", u"2022 to 2099", true},
    OptionText{u"overwrite", u"", u"replaces a file that is there"},
};

} // namespace

const Command holidaysCommand{
    .name = u"holidays",
    .run = runHolidays,
    .places = u"Holiday.txt",
    .summary = u"Writes the public holidays of a year, as the calendar window reads them.",
    .more = u"A file that is there already is refused without --overwrite.",
    .options = holidaysOptions,
    .example = u"holidays Holiday.txt --year 2028",
};

} // namespace kurbo
