#pragma once

#include "base/clock.h"
#include "shell/login/frmLogin.h"
#include "tour/photographed_prompts.h"

namespace kurbo {

// The road of one working day at the office PC, by keyboard, with a picture at each station.
class WorkingDay final {
  public:
    WorkingDay(Client& client, FixedClock& clock, PhotographedPrompts& prompts, Camera& camera)
        : client_(client), clock_(clock), prompts_(prompts), camera_(camera), window_(client) {}
    void play();

  private:
    void start();
    void morning();
    void mistakes();
    void nightShiftEnds();
    void card();
    void totals();
    void administrator();
    void showSetting(const char* menu, Screen setting);
    void calendar();
    void otherWindows();
    void end();

    void logIn(const QString& section, const QString& staff, const QString& password);
    // What a screen prints, looked at and saved.
    void print(const QWidget& form, const QString& title);
    void shoot(const QString& title) { camera_.shoot(window_, title); }
    [[nodiscard]] QWidget* control(const char* name) const;
    // A screen that is open beside the main window.
    [[nodiscard]] QWidget* screen(Screen screen) const { return window_.screens().window(screen); }

    Client& client_;
    FixedClock& clock_;
    PhotographedPrompts& prompts_;
    Camera& camera_;
    frmLogin window_;
};

} // namespace kurbo
