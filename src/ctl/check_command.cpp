#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/options.h"
#include "store/database_file.h"

namespace kurbo {

Exit runCheck(const QStringList& arguments) {
    Options options;
    options.read(arguments, 1);
    const QStringList wrong = checkDatabase(options.place(0));
    if (wrong.isEmpty()) {
        say(QStringLiteral("OK"));
        return Exit::Done;
    }
    complain(wrong.join(u'\n'));
    return Exit::Refused;
}

} // namespace kurbo
