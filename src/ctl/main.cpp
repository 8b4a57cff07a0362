#include "base/failure.h"
#include "base/product.h"
#include "ctl/commands.h"
#include "ctl/console.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <memory>

namespace kurbo {
namespace {

struct Command {
    const char16_t* name;
    Exit (*run)(const QStringList&);
    const char16_t* usage;
};

constexpr std::array commands{
    Command{u"new", runNew, u"new FILE"},
    Command{u"demo", runDemo,
            u"demo FILE [--people N] [--sections N] [--months N] [--seed N] [--until yyyy/mm/dd] [--flexible]"},
    Command{u"card", runCard,
            u"card FILE --staff CODE (--month yyyy/mm | --from yyyy/mm/dd --to yyyy/mm/dd) [--format ...]"},
    Command{u"totals", runTotals,
            u"totals FILE (--section CODE | --staff CODE) --from yyyy/mm --to yyyy/mm [--by staff|month] "
            u"[--format ...]"},
    Command{u"export", runExport, u"export FILE --section CODE [--staff CODE] --from yyyy/mm --to yyyy/mm --out X.csv"},
    Command{u"import", runImport, u"import FILE X.csv... [--overwrite]"},
    Command{u"move", runMove,
            u"move FILE --dest DEST.mdb --from yyyy/mm/dd --to yyyy/mm/dd [--month-from yyyy/mm --month-to yyyy/mm]"},
    Command{u"report", runReport,
            u"report FILE card|totals|goout (options as card and totals have them; goout as card) --out X.pdf"},
    Command{u"sql", runSql, u"sql FILE [--format table|tsv|csv|json]  < statements, each ended by \";\""},
    Command{u"punch", runPunch,
            u"punch FILE --staff CODE --password PW enter|leave|out|in [--continued yes|no] [--at \"yyyy/mm/dd "
            u"hh:nn:ss\"]"},
    Command{u"check", runCheck, u"check FILE"},
    Command{u"compact", runCompact, u"compact FILE"},
    Command{u"holidays", runHolidays, u"holidays Holiday.txt --year YYYY [--overwrite]"},
};

QString usage() {
    QString text = QStringLiteral("usage: kurboctl COMMAND FILE ...\n");
    for (const Command& command : commands) text += QStringLiteral("  ") + QString::fromUtf16(command.usage) + u'\n';
    return text + QStringLiteral("every command: --today yyyy/mm/dd, --at \"yyyy/mm/dd hh:nn:ss\", --app-folder DIR\n"
                                 "exit status: 0 done, 1 refused, 2 wrong use, 3 fault");
}

// The failures that reach the top are said here, once.
Exit run(const Command& command, const QStringList& arguments) {
    try {
        return command.run(arguments);
    } catch (const WrongUse& wrong) {
        complain(QStringLiteral("kurboctl: ") + wrong.what + u'\n' + usage());
        return Exit::WrongUse;
    } catch (const Complaint& complaint) {
        complain(complaint.description());
        return Exit::Refused;
    } catch (const Fault& fault) {
        complain(lines(QStringLiteral("エラー番号：") + QString::number(fault.number()), fault.description()));
        return Exit::Fault;
    } catch (const std::exception& error) {
        complain(QString::fromUtf8(error.what()));
        return Exit::Fault;
    }
}

Exit runNamed(const QStringList& arguments) {
    const QString name = arguments.value(1);
    if (name == u"--help" || name == u"help") {
        say(usage());
        return Exit::Done;
    }
    if (name == u"--version") {
        say(QStringLiteral("kurboctl ") + productVersion());
        return Exit::Done;
    }
    const auto known = std::ranges::find_if(commands, [&](const Command& c) { return name == QStringView(c.name); });
    if (known != commands.end()) return run(*known, arguments.mid(2));
    complain(usage());
    return Exit::WrongUse;
}

// What the toolkit misses about the session matters only on a display.
void passOver(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) complain(text);
}

// Letters are drawn without a display; the other commands start without all that.
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv) {
    if (argc < 2 || QByteArrayView(argv[1]) != "report") return std::make_unique<QCoreApplication>(argc, argv);
    qInstallMessageHandler(passOver);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace
} // namespace kurbo

int main(int argc, char** argv) {
    const std::unique_ptr<QCoreApplication> application = kurbo::makeApplication(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kurbo"));
    const kurbo::Exit exit = kurbo::runNamed(QCoreApplication::arguments());
    // Output that could not be written is a fault, whatever came before.
    const bool written = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    return static_cast<int>(written ? exit : kurbo::Exit::Fault);
}
