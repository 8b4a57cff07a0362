// From the start of the process to the first painted main window, against a bare window of the toolkit with the same
// font. Run without arguments it starts itself in turn as one and as the other.

#include "bench_company.h"

#include "base/system/files.h"
#include "demo/demo_company.h"
#include "shell/application.h"
#include "shell/start.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>

#include <cstdio>

namespace {

using namespace kurbo;
using namespace kurbo::bench;

// Ends the process when something has painted itself: any window, or the main window.
class FirstPaint final : public QObject {
  public:
    explicit FirstPaint(bool mainWindow) : mainWindow_(mainWindow) {}
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const window = qobject_cast<const QWidget*>(watched);
        const bool painted = event->type() == QEvent::Paint && window && window->isWindow();
        if (painted && (!mainWindow_ || qobject_cast<const QMainWindow*>(window)))
            QMetaObject::invokeMethod(
                qApp, [] { std::_Exit(0); }, Qt::QueuedConnection);
        return false;
    }

  private:
    bool mainWindow_;
};

int bareWindow(int argc, char** argv) {
    QApplication application(argc, argv);
    FirstPaint paint(true);
    application.installEventFilter(&paint);
    QFont font(QStringLiteral("Noto Sans CJK JP"));
    QApplication::setFont(font);
    QMainWindow window;
    window.setCentralWidget(new QLabel(QStringLiteral("ログイン")));
    window.show();
    return QApplication::exec();
}

int ourWindow(int argc, char** argv) {
    QApplication application(argc, argv);
    FirstPaint paint(argc > 3);
    application.installEventFilter(&paint);
    dress(application);
    const SystemClock clock;
    return runClient(QString::fromLocal8Bit(argv[2]), clock);
}

double run(const QString& program, const QStringList& arguments) {
    int status = 0;
    const double time = timed([&] { status = QProcess::execute(program, arguments); });
    if (status == 0) return time;
    std::printf("the window did not come: %s\n", arguments.join(u' ').toUtf8().constData());
    std::exit(1);
}

} // namespace

int main(int argc, char** argv) {
    const QString mode = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (mode == u"bare") return bareWindow(argc, argv);
    if (mode == u"ours" && argc > 2) return ourWindow(argc, argv);

    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("kurbo.mdb"));
    createDatabase(path);
    Connection connection;
    connection.open(path, databasePassword());
    const SystemClock clock;
    DemoOptions demo;
    demo.until = clock.today();
    makeDemoCompany(connection, demo);
    connection.close();
    replaceFile(folder.filePath(QStringLiteral("Parm.dat")), '"' + path.toUtf8() + "\"\r\n");

    const QString self = QString::fromLocal8Bit(argv[0]);
    const QStringList start{QStringLiteral("ours"), folder.path()};
    Samples bare;
    Samples first;
    Samples main;
    for (int i = 0; i < 21; ++i) {
        bare.add(run(self, {QStringLiteral("bare")}));
        first.add(run(self, start));
        main.add(run(self, start + QStringList(QStringLiteral("main"))));
    }
    const double ratio = first.at(50) / bare.at(50);
    std::printf("start to first paint / bare window: %.2f (limit 1.50); to the main window's: %.2f\n", ratio,
                main.at(50) / bare.at(50));
    return ratio <= 1.5 ? 0 : 1;
}
