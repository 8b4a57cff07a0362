#pragma once

#include "punch/punch_clock.h"
#include "shell/login/database_hold.h"
#include "shell/login/day_clock.h"
#include "shell/login/login_fields.h"
#include "shell/login/screen_commands.h"
#include "shell/login/window_place.h"
#include "shell/screens.h"

#include <QMainWindow>

#include <memory>

namespace kurbo {

namespace Ui {
class frmLogin;
}

// The main window: the clock, the log-in and the punches. The punch clock's group is on the window exactly while
// somebody is logged in.
class frmLogin final : public QMainWindow {
    Q_OBJECT

  public:
    explicit frmLogin(Client& client);
    ~frmLogin() override;
    frmLogin(const frmLogin&) = delete;
    frmLogin& operator=(const frmLogin&) = delete;

    // Opens the database and fills the lists. After a failure, which is reported, the window can only be closed.
    void load();
    // What is told once the window stands: the name of the day, and that old data should be moved.
    void greet();
    void HideTimeRecorder();
    [[nodiscard]] bool isLoggedIn() const;
    [[nodiscard]] const Screens& screens() const { return screens_; }

  Q_SIGNALS:
    // The client has been shut down.
    void ended();

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void connectFields();
    void connectPunches();
    void connectScreens();
    void connectMenus();

    [[nodiscard]] bool ReConnect();
    void leaveDatabase();
    void changeDatabase();
    void comeBack();

    void logIn();
    void enterFields();
    void beginAnew();
    [[nodiscard]] bool endSession();
    void ShowTimeRecorder();
    void showRecorder(bool shown);
    void enableCommands(bool loggedIn);
    void press(Punch kind);

    const std::unique_ptr<Ui::frmLogin> ui_;
    Client& client_;
    Login login_;
    Screens screens_;
    DatabaseHold hold_;
    WindowPlace place_;
    std::unique_ptr<LoginFields> fields_;
    std::unique_ptr<ScreenCommands> commands_;
    DayClock* clock_ = nullptr;
    bool ending_ = false;
    // The window lost the person's attention to a message box only.
    bool leftForBox_ = false;
};

} // namespace kurbo
