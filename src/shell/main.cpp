#include "base/system/paths.h"
#include "shell/application.h"
#include "shell/start.h"

#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>

namespace kurbo {
namespace {

QString appFolderFor(const QApplication& application) {
    const QCommandLineOption folder(QStringLiteral("app-folder"), QStringLiteral("Application folder."),
                                    QStringLiteral("DIR"));
    QCommandLineParser parser;
    parser.addOption(folder);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(application);
    return parser.isSet(folder)
               ? QDir(parser.value(folder)).absolutePath()
               : chooseAppFolder(QApplication::applicationDirPath(),
                                 QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
}

} // namespace
} // namespace kurbo

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    // The client ends after its shutdown, not with its last window: at the start boxes and dialogs come and go.
    QApplication::setQuitOnLastWindowClosed(false);
    kurbo::dress(application);
    const kurbo::SystemClock clock;
    return kurbo::runClient(kurbo::appFolderFor(application), clock);
}
