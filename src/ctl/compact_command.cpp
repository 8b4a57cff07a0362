#include "ctl/commands.h"
#include "ctl/console.h"
#include "store/file/database_file.h"
#include "store/file/optimize_db.h"

namespace kurbo {
namespace {

Exit runCompact(const Options& options) {
    const Console console(options);
    const QString result = OptimizeDB(console.context(), options.place(0), databasePassword());
    say(result);
    if (result == u"OK") return Exit::Done;
    return result == u"Error" ? Exit::Fault : Exit::Refused;
}

} // namespace

const Command compactCommand{
    .name = u"compact",
    .run = runCompact,
    .places = u"FILE",
    .summary = u"Compacts the database and prints the result.",
    .more = u"The result is OK, NoFile, NoDrive, NoPath, NotMdb, Opened, ExistLdb or Error.\n"
            u"It needs the file for itself.",
    .options = {},
    .example = u"compact store.mdb",
};

} // namespace kurbo
