#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/options.h"
#include "store/file/database_file.h"

namespace kurbo {
namespace {

Exit runCheck(const Options& options) {
    const QStringList wrong = checkDatabase(options.argument(0));
    if (wrong.isEmpty()) {
        say(QStringLiteral("OK"));
        return Exit::Done;
    }
    complain(wrong.join(u'\n'));
    return Exit::Refused;
}

} // namespace

const Command checkCommand{
    .name = u"check",
    .run = runCheck,
    .arguments = u"FILE",
    .summary = u"Prints OK, or what is wrong with the file.",
    .more = u"",
    .options = {},
    .example = u"check store.mdb",
};

} // namespace kurbo
