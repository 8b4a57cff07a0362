#include "base/system/files.h"
#include "ctl/commands.h"
#include "ctl/console.h"
#include "maintenance/data_move.h"
#include "store/file/database_file.h"
#include "store/file/lock_file.h"

#include <QFileInfo>

#include <array>

namespace kurbo {
namespace {

Day neededDay(const Options& options, const QString& name) {
    (void)options.needed(name);
    return *options.day(name);
}

MoveOrder orderOf(const Options& options) {
    const QString from = QStringLiteral("month-from");
    const QString to = QStringLiteral("month-to");
    MoveOrder order;
    order.startDay = neededDay(options, QStringLiteral("from"));
    order.endDay = neededDay(options, QStringLiteral("to"));
    order.withMonths = options.has(from) || options.has(to);
    if (order.withMonths) {
        order.startMonth = Day{options.month(from) / 1};
        order.endMonth = Day{options.month(to) / 1};
    }
    order.destination = QFileInfo(options.needed(QStringLiteral("dest"))).absoluteFilePath();
    return order;
}

// Nobody is asked here, so what people still need moves only when told so.
void refuseRunning(const Options& options, const MoveOrder& order, Day today) {
    if (options.has(QStringLiteral("running")) || !QFileInfo::exists(options.argument(0))) return;
    Connection connection;
    connection.openAlone(options.argument(0), databasePassword());
    const QString text = runningDaysText(connection, order, today);
    if (!text.isEmpty()) throw Complaint(lines(text, QStringLiteral("移動するには --running を指定して下さい。")));
}

Exit runMove(const Options& options) {
    const MoveOrder order = orderOf(options);
    const Console console(options);
    const QString database = options.argument(0);
    checkMove(console.context(), database, order);
    refuseRunning(options, order, console.context().clock.today());
    // A killed move has left it, and nobody holds it.
    LockFile::removeStale(realPath(database));
    Connection none;
    const OptimizeResult result = carryOut(console.context(), none, database, order);
    if (result == OptimizeResult::OK) {
        say(QStringLiteral("データ移動が完了しました。"));
        return Exit::Done;
    }
    if (result == OptimizeResult::Error) return Exit::Fault;
    complain(wordOf(result));
    return Exit::Refused;
}

constexpr std::array moveOptions{
    OptionText{.name = u"dest",
               .value = u"DEST.mdb",
               .text = u"the database that gets the days; an older one keeps a name with .old",
               .needed = true},
    OptionText{.name = u"from", .value = u"yyyy/mm/dd", .text = u"first day", .needed = true},
    OptionText{.name = u"to", .value = u"yyyy/mm/dd", .text = u"last day", .needed = true},
    OptionText{.name = u"month-from", .value = u"yyyy/mm", .text = u"first of the saved months that move as well"},
    OptionText{.name = u"month-to", .value = u"yyyy/mm", .text = u"last of them"},
    OptionText{.name = u"running",
               .text = u"also days of a closing period that still runs; nobody can punch on them then"},
};

} // namespace

const Command moveCommand{
    .name = u"move",
    .run = runMove,
    .arguments = u"FILE",
    .summary = u"Moves old days, with their cards and outings, to a database of their own.",
    .more = u"At least 31 days lie between the first and the last. Without the two months the saved months stay.\n"
            u"It needs the database for itself, can't be undone, and leaves every day in one of both files, whatever\n"
            u"happens.",
    .options = moveOptions,
    .example =
        u"move store.mdb --dest 2025.mdb --from 2025/01/01 --to 2025/12/31 --month-from 2025/01 --month-to 2025/12",
};

} // namespace kurbo
