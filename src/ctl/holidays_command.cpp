#include "base/public_holidays.h"
#include "base/system/files.h"
#include "ctl/commands.h"

#include <array>

namespace kurbo {
namespace {

Exit runHolidays(const Options& options) {
    const int year = options.number(QStringLiteral("year"), firstHolidayYear, firstHolidayYear, lastHolidayYear);
    if (!options.has(QStringLiteral("overwrite"))) refuseExisting(options.argument(0));
    replaceFile(chosenFile(options.argument(0)), holidayFileOf(year));
    return Exit::Done;
}

constexpr std::array holidaysOptions{
    OptionText{.name = u"year", .value = u"YYYY", .text = u"2022 to 2099", .needed = true},
    OptionText{.name = u"overwrite", .text = u"replaces a file that is there"},
};

} // namespace

const Command holidaysCommand{
    .name = u"holidays",
    .run = runHolidays,
    .arguments = u"Holiday.txt",
    .summary = u"Writes the public holidays of a year, as the calendar window reads them.",
    .more = u"A file that is there already is refused without --overwrite.",
    .options = holidaysOptions,
    .example = u"holidays Holiday.txt --year 2028",
};

} // namespace kurbo
