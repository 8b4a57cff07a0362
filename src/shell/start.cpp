#include "shell/start.h"

#include "screen/windows/box_prompts.h"
#include "screen/windows/hourglass.h"
#include "session/delivery.h"
#include "session/main_order.h"
#include "shell/frmParm.h"
#include "shell/frmSplash.h"
#include "shell/frmWaiting.h"
#include "shell/login/frmLogin.h"
#include "shell/single_instance.h"
#include "shell/wait_box.h"

#include <QApplication>
#include <QDir>

#include <optional>

namespace kurbo {
namespace {

// The start's windows. The pointer is an hourglass until somebody can work.
class StartWindows final : public StartScreens {
  public:
    explicit StartWindows(Client& client) : client_(client), hourglass_(std::in_place) {}

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

} // namespace

int runClient(const QString& appFolder, const Clock& clock) {
    BoxPrompts prompts;
    QDir().mkpath(appFolder);
    const SingleInstance instance(appFolder);
    if (!instance.isFirst()) {
        prompts.inform(QStringLiteral("既に起動されています。"));
        return 0;
    }
    QDir::setCurrent(appFolder);
    const Paths paths = pathsIn(appFolder);
    deliverFiles(QApplication::applicationDirPath() + QStringLiteral("/../share/kurbo"), paths, yearOf(clock.today()));
    frmWaiting waiting;
    const Context context{prompts, clock, paths, waiting};
    WaitBox waitBox;
    Client client(context);
    waitBox.watch(client.HomeConnection);
    waitBox.watch(client.OtherConnection);
    StartWindows windows(client);
    return Main(client, windows) ? QApplication::exec() : 1;
}

} // namespace kurbo
