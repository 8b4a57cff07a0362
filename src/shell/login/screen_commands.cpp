#include "shell/login/screen_commands.h"

#include <QAbstractButton>
#include <QAction>

namespace kurbo {

ScreenCommands::ScreenCommands(const QWidget& window, const Screens& screens) : screens_(screens) {
    for (const ScreenEntry& entry : screenTable()) {
        for (const char* const command : entry.commands) {
            const QString name = QString::fromLatin1(command);
            if (name.isEmpty()) continue;
            commands_.push_back(
                {entry.screen, window.findChild<QAction*>(name), window.findChild<QAbstractButton*>(name)});
        }
    }
}

void ScreenCommands::onGiven(const QObject& receiver, const std::function<void(Screen)>& open) const {
    for (const Command& command : commands_) {
        const auto given = [open, screen = command.screen] { open(screen); };
        if (command.action) QObject::connect(command.action, &QAction::triggered, &receiver, given);
        if (command.button) QObject::connect(command.button, &QAbstractButton::clicked, &receiver, given);
    }
}

void ScreenCommands::enable(bool loggedIn) const {
    for (const Command& command : commands_) {
        const bool open = loggedIn && screens_.isOffered(command.screen);
        if (command.action) command.action->setEnabled(open);
        if (command.button) command.button->setEnabled(open);
    }
}

} // namespace kurbo
