#include "base/paths.h"
#include "shell/application.h"
#include "shell/start.h"

#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>

#include <cstdio>
#include <memory>

namespace kurbo {
namespace {

struct Options {
    QString appFolder;
    std::unique_ptr<Clock> clock;
};

std::unique_ptr<Clock> clockFor(const QString& today, const QString& moment) {
    if (const auto fixed = parseSlashMoment(moment)) return std::make_unique<FixedClock>(*fixed);
    if (const auto day = parseSlashDate(today)) return std::make_unique<ShiftedClock>(*day);
    if (!moment.isEmpty() || !today.isEmpty()) return nullptr;
    return std::make_unique<SystemClock>();
}

Options readOptions(const QApplication& application) {
    const QCommandLineOption folder(QStringLiteral("app-folder"), QStringLiteral("Application folder."),
                                    QStringLiteral("DIR"));
    const QCommandLineOption today(QStringLiteral("today"), QStringLiteral("Works on another day: yyyy/mm/dd."),
                                   QStringLiteral("DATE"));
    const QCommandLineOption moment(QStringLiteral("at"),
                                    QStringLiteral("Stands at one moment: \"yyyy/mm/dd hh:nn:ss\"."),
                                    QStringLiteral("MOMENT"));
    QCommandLineParser parser;
    parser.addOptions({folder, today, moment});
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(application);
    const QString chosen =
        parser.isSet(folder) ? QDir(parser.value(folder)).absolutePath()
                             : chooseAppFolder(QApplication::applicationDirPath(),
                                               QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
    return {chosen, clockFor(parser.value(today), parser.value(moment))};
}

} // namespace
} // namespace kurbo

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    // The client ends after its shutdown, not with its last window: at the start boxes and dialogs come and go.
    QApplication::setQuitOnLastWindowClosed(false);
    kurbo::dress(application);
    const kurbo::Options options = kurbo::readOptions(application);
    if (!options.clock) {
        std::fputs("kurbo: --today yyyy/mm/dd, --at \"yyyy/mm/dd hh:nn:ss\"\n", stderr);
        return 2;
    }
    return kurbo::runClient(options.appFolder, *options.clock);
}
