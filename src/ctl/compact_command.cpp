#include "ctl/commands.h"
#include "ctl/console.h"
#include "store/file/database_file.h"

#include <array>

namespace kurbo {
namespace {

Exit runCompact(const Options& options) {
    const Console console(options);
    const OptimizeResult result = OptimizeDB(console.context(), options.argument(0), databasePassword());
    say(wordOf(result));
    if (result == OptimizeResult::OK) return Exit::Done;
    return result == OptimizeResult::Error ? Exit::Fault : Exit::Refused;
}

} // namespace

QString wordOf(OptimizeResult result) {
    // In the order of the results.
    constexpr std::array words{u"OK", u"NoFile", u"NoDrive", u"NoPath", u"NotMdb", u"Opened", u"ExistLdb", u"Error"};
    return QString::fromUtf16(words[static_cast<std::size_t>(result)]);
}

const Command compactCommand{
    .name = u"compact",
    .run = runCompact,
    .arguments = u"FILE",
    .summary = u"Compacts the database and prints the result.",
    .more = u"The result is OK, NoFile, NoDrive, NoPath, NotMdb, Opened, ExistLdb or Error.\n"
            u"It needs the file for itself.",
    .options = {},
    .example = u"compact store.mdb",
};

} // namespace kurbo
