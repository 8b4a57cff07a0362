// Plays a working day on a demo company of its own and leaves its pictures and its reports in a folder.

#include "demo/demo_company.h"
#include "session/delivery.h"
#include "shell/application.h"
#include "shell/frmWaiting.h"
#include "store/file/database_file.h"
#include "tour/working_day.h"

#include <QDir>
#include <QTemporaryDir>

#include <cstdio>

namespace kurbo {
namespace {

void makeCompany(const QString& path, Day today) {
    createDatabase(path);
    Connection connection;
    connection.open(path, databasePassword());
    DemoOptions options;
    options.until = today;
    makeDemoCompany(connection, options);
}

// What the day must have left: an arrival of today, the night shift's end on yesterday's row, and a corrected plan.
bool punchesStand(const QString& path, Day today) {
    Connection connection;
    connection.open(path, databasePassword());
    const QString yesterday = dateId(today - std::chrono::days(1));
    return connection.hasRow(QStringLiteral("SELECT F_KurboID FROM T02_Kurbo WHERE (F_User = '1003') AND "
                                            "(F_DateID = ?) AND (F_Enter Is Not Null);"),
                             {dateId(today)}) &&
           connection.hasRow(QStringLiteral("SELECT F_KurboID FROM T02_Kurbo WHERE (F_User = '1010') AND "
                                            "(F_DateID = ?) AND (F_Leave > ?);"),
                             {yesterday, today}) &&
           connection.hasRow(QStringLiteral("SELECT F_KurboID FROM T02_Kurbo WHERE (F_User = '1003') AND "
                                            "(F_DateID = '20260601') AND (F_Plan = '大阪へ出張');")) &&
           checkDatabase(path).isEmpty();
}

int tour(const QString& folder) {
    if (!QDir().mkpath(folder)) return 1;
    for (const QString& old : QDir(folder).entryList({QStringLiteral("*.png"), QStringLiteral("*.pdf")}))
        QFile::remove(folder + u'/' + old);
    const QTemporaryDir application;
    FixedClock clock(at(*makeDay(2026, 6, 17), 8, 52, 17));
    Camera camera(folder);
    PhotographedPrompts prompts(camera);
    const Paths paths = pathsIn(application.path());
    deliverFiles(QApplication::applicationDirPath() + QStringLiteral("/../share/kurbo"), paths, yearOf(clock.today()));
    frmWaiting waiting;
    const Context context{prompts, clock, paths, waiting};
    Client client(context);
    client.DbPath = application.filePath(QStringLiteral("kurbo.mdb"));
    makeCompany(client.DbPath, clock.today());
    WorkingDay(client, clock, prompts, camera).play();
    const auto reports = QDir(folder).entryList({QStringLiteral("*.pdf")}).size();
    std::printf("%d pictures, %d reports\n", camera.count(), static_cast<int>(reports));
    return reports == 3 && punchesStand(client.DbPath, clock.today()) ? 0 : 1;
}

// Offscreen there is no window manager to ask for anything; the toolkit says so for every window.
void passOver(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
    if (!text.startsWith(QStringLiteral("This plugin does not support")))
        std::fprintf(stderr, "%s\n", text.toUtf8().constData());
}

} // namespace
} // namespace kurbo

int main(int argc, char** argv) {
    qInstallMessageHandler(kurbo::passOver);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    kurbo::dress(application);
    if (argc != 2) {
        std::fputs("usage: kurbo-tour FOLDER\n", stderr);
        return 2;
    }
    try {
        return kurbo::tour(QString::fromLocal8Bit(argv[1]));
    } catch (const kurbo::Fault& fault) {
        std::fprintf(stderr, "%s\n", fault.description().toUtf8().constData());
        return 3;
    }
}
