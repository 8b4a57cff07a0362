#include "base/files.h"
#include "screen/box_prompts.h"
#include "screen/hourglass.h"
#include "shell/application.h"
#include "shell/frmLogin.h"
#include "shell/frmParm.h"
#include "shell/frmSplash.h"
#include "shell/main_order.h"
#include "shell/single_instance.h"
#include "shell/wait_box.h"

#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>

#include <cstdio>
#include <optional>

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

// The start's windows. The pointer is an hourglass until somebody can work.
class Screens final : public StartScreens {
  public:
    explicit Screens(Client& client) : client_(client), hourglass_(std::in_place) {}

    void showSplash(const QString& warning) override { splash_.emplace(warning).showAtOnce(); }

    void hideSplash() override {
        splash_.reset();
        hourglass_.reset();
    }

    void runParm() override {
        frmParm form(client_);
        hideSplash();
        form.exec();
    }

    void showLogin() override {
        login_.emplace(client_);
        QObject::connect(&*login_, &frmLogin::ended, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        login_->load();
        hideSplash();
        login_->show();
        login_->activateWindow();
        QMetaObject::invokeMethod(&*login_, &frmLogin::greet, Qt::QueuedConnection);
    }

  private:
    Client& client_;
    std::optional<Hourglass> hourglass_;
    std::optional<frmSplash> splash_;
    std::optional<frmLogin> login_;
};

int run(const Options& options) {
    BoxPrompts prompts;
    const SingleInstance instance(options.appFolder);
    if (!instance.isFirst()) {
        prompts.inform(QStringLiteral("既に起動されています。"));
        return 0;
    }
    QDir::setCurrent(options.appFolder);
    const Paths paths = pathsIn(options.appFolder);
    frmWaiting waiting;
    const Context context{prompts, *options.clock, paths, waiting};
    WaitBox waitBox;
    Client client(context);
    waitBox.watch(client.HomeConnection);
    waitBox.watch(client.OtherConnection);
    Screens screens(client);
    return Main(client, screens) ? QApplication::exec() : 1;
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
    return kurbo::run(options);
}
