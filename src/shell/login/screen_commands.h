#pragma once

#include "shell/screens.h"

#include <functional>
#include <vector>

class QAbstractButton;
class QAction;

namespace kurbo {

// The buttons and menu entries of the main window that open screens, as the table of screens names them.
class ScreenCommands final {
  public:
    ScreenCommands(const QWidget& window, const Screens& screens);

    void onGiven(const QObject& receiver, const std::function<void(Screen screen)>& open) const;
    // At the log-in those that are for the person; none while nobody is logged in.
    void enable(bool loggedIn) const;

  private:
    // One of the two.
    struct Command {
        Screen screen;
        QAction* action;
        QAbstractButton* button;
    };

    const Screens& screens_;
    std::vector<Command> commands_;
};

} // namespace kurbo
