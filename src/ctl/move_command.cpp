#include "ctl/commands.h"
#include "ctl/console.h"
#include "maintenance/data_move.h"

#include <QFileInfo>

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

} // namespace

Exit runMove(const QStringList& arguments) {
    Options options;
    options.add(QStringLiteral("dest"), QStringLiteral("the database that gets the days, replaced when it is there"));
    options.add(QStringLiteral("from"), QStringLiteral("first day, yyyy/mm/dd"));
    options.add(QStringLiteral("to"), QStringLiteral("last day, yyyy/mm/dd"));
    options.add(QStringLiteral("month-from"), QStringLiteral("first month of the monthly records, yyyy/mm"));
    options.add(QStringLiteral("month-to"), QStringLiteral("last month of the monthly records, yyyy/mm"));
    options.read(arguments, 1);
    const MoveOrder order = orderOf(options);
    const Console console(options);
    const QString database = options.place(0);
    checkMove(console.context(), database, order);
    Connection none;
    const QString word = carryOut(console.context(), none, database, order);
    if (word == u"OK") {
        say(QStringLiteral("データ移動が完了しました。"));
        return Exit::Done;
    }
    if (word == u"Error") return Exit::Fault;
    complain(word);
    return Exit::Refused;
}

} // namespace kurbo
