#pragma once

#include "punch/punch_clock.h"
#include "session/login.h"
#include "session/setup_order.h"
#include "store/client.h"

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace kurbo {

class DataCombo;

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

  Q_SIGNALS:
    // The client has been shut down.
    void ended();

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void makeTimers();
    void connectFields();
    void connectButtons();
    void connectMenus();
    void connectSetting(QAction* action, Setting setting, const char16_t* screen);

    [[nodiscard]] bool ReConnect();
    void fillLists();
    void letGo();
    void comeBack();
    void databaseChanged();

    void tick();
    void idleTick();
    void showTime(Moment now);

    void sectionChanged();
    void checkInput();
    void focusMoved(QWidget* from, QWidget* to);
    [[nodiscard]] bool isLoginField(const QWidget* field) const;
    [[nodiscard]] bool refuses(const QWidget* field) const;
    void refuse(DataCombo* field);
    void backTo(DataCombo* field);
    void enterLoginField(QWidget* field);
    void beginAnew();

    void logIn();
    [[nodiscard]] bool endSession();
    [[nodiscard]] bool closeScreens();
    void ShowTimeRecorder();
    void showRecorder(bool shown);
    void setMenusFor(const AccessRights& access, bool loggedIn);
    void fitHeight(int wanted);
    void placeForBothForms();
    void centreAcross();
    void press(Punch kind);

    void openCard(const QString& screen);
    void openSetting(Setting setting, const QString& screen);
    void openMove();
    void openScreen(const QString& screen);
    void showScreen(QMainWindow& form);
    void openParm();
    void showVersion();
    void showTopics();

    const std::unique_ptr<Ui::frmLogin> ui_;
    Client& client_;
    Login login_;
    QTimer* tmrClock_ = nullptr;
    QTimer* tmrTimer_ = nullptr;
    int IdleTicks_ = 0;
    int LastDay_ = 0;
    int tallHeight_ = 0;
    bool loadFailed_ = false;
    bool listsOpen_ = false;
    bool ending_ = false;
    bool connecting_ = false;
    // A field's text is being refused.
    bool refusing_ = false;
    QPointer<QWidget> leftForMenus_;
    // The program moves the focus, not the person.
    bool quietFocus_ = false;
    // The window lost the person's attention to a message box only.
    bool leftForBox_ = false;
};

} // namespace kurbo
