#include "ctl/commands.h"
#include "ctl/console.h"
#include "store/database_file.h"
#include "store/optimize_db.h"

namespace kurbo {

Exit runCompact(const QStringList& arguments) {
    Options options;
    options.read(arguments, 1);
    const Console console(options);
    const QString result = OptimizeDB(console.context(), options.place(0), databasePassword());
    say(result);
    if (result == u"OK") return Exit::Done;
    return result == u"Error" ? Exit::Fault : Exit::Refused;
}

} // namespace kurbo
