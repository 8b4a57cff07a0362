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

constexpr std::array commands{&newCommand,    &demoCommand,    &cardCommand,    &totalsCommand, &reportCommand,
                              &exportCommand, &importCommand,  &moveCommand,    &sqlCommand,    &punchCommand,
                              &checkCommand,  &compactCommand, &holidaysCommand};

// The failures that reach the top are said here, once.
Exit run(const Command& command, const QStringList& arguments) {
    try {
        return command.run(Options(command, arguments));
    } catch (const WrongUse& wrong) {
        complain(QStringLiteral("kurboctl: %1\nusage: %2\nkurboctl %3 --help tells more.")
                     .arg(wrong.what, usageOf(command), QString::fromUtf16(command.name)));
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

const Command* commandNamed(const QString& name) {
    const auto* const known =
        std::ranges::find_if(commands, [&](const Command* command) { return name == QStringView(command->name); });
    return known == commands.end() ? nullptr : *known;
}

Exit runNamed(const QStringList& arguments) {
    const bool asksHelp = arguments.value(1) == u"help" || arguments.mid(1).contains(u"--help");
    const QString name = arguments.value(arguments.value(1) == u"help" ? 2 : 1);
    const Command* const command = commandNamed(name);
    if (asksHelp && (command || name.isEmpty() || name == u"--help")) {
        say(command ? helpOf(*command) : helpOf(commands));
        return Exit::Done;
    }
    if (name == u"--version") {
        say(QStringLiteral("kurboctl ") + productVersion());
        return Exit::Done;
    }
    if (command) return run(*command, arguments.mid(2));
    complain(QStringLiteral("kurboctl: no such command: %1\n").arg(name) + helpOf(commands));
    return Exit::WrongUse;
}

// Warnings of the toolkit about a missing desktop are of no use here.
void passOver(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) complain(text);
}

// Only the report draws letters, without a display; the other commands start faster without the graphics.
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
