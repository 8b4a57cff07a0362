#pragma once

#include "store/client.h"

#include <QPointer>
#include <QWidget>

#include <array>
#include <span>

namespace kurbo {

// The windows in which people work beside the main window.
enum class Screen {
    Kurbo,
    Total,
    Corp,
    Section,
    Staff,
    WorkStyle,
    WorkTime,
    Access,
    Asign,
    Calendar,
    Password,
    Maintainance,
    DeleteDest,
    Parm,
};
inline constexpr std::size_t screenCount = static_cast<std::size_t>(Screen::Parm) + 1;

class Screens;

// One row of the table of screens.
struct ScreenEntry {
    Screen screen;
    // Makes and loads it, over the screen that leads to it if there is one.
    QWidget* (*make)(Screens& screens, QWidget* leading);
    // While a modal one is open, nothing else can be worked on.
    Qt::WindowModality modality;
    // Whether it is offered to the person who has logged in.
    bool (*isFor)(const Session& session);
    // Whether all is set that it works on; says so if not. None where nothing need be set.
    bool (*isReady)(const Context& context, Connection& connection);
    // The other screens close before it opens.
    bool alone;
    // The main window's buttons and menu entries that open it.
    std::array<const char*, 2> commands;
};

// In the order of Screen.
[[nodiscard]] std::span<const ScreenEntry, screenCount> screenTable();

// The screens that are open, at most one of a kind. Nothing else opens a screen, brings it forward or closes it.
class Screens final : public QObject {
    Q_OBJECT

  public:
    // Dialogs stand over the main window.
    Screens(Client& client, QWidget& mainWindow) : client_(client), mainWindow_(mainWindow) {}
    ~Screens() override;
    Screens(const Screens&) = delete;
    Screens& operator=(const Screens&) = delete;

    // As the rights stand at the log-in; a card or totals that are open may stand under those of another section.
    [[nodiscard]] bool isOffered(Screen screen) const;
    // Opens it or brings it to the front. The home database is open. What refuses it has been told.
    void open(Screen screen);
    // The same for a screen to which another one leads, and which nothing refuses.
    void openOver(Screen screen, QWidget& leading);
    // None while it isn't open.
    [[nodiscard]] QWidget* window(Screen screen) const;
    [[nodiscard]] bool isAnyOpen() const;
    // False when a person wants to keep one, which comes to the front.
    [[nodiscard]] bool closeAll();

    [[nodiscard]] Client& client() const { return client_; }
    [[nodiscard]] QWidget& mainWindow() const { return mainWindow_; }

  Q_SIGNALS:
    // A screen is closing that may have changed what the login lists show.
    void settingsClosed();
    // The client works on another database now.
    void databaseChosen();

  private:
    [[nodiscard]] bool bringForward(Screen screen) const;
    void show(Screen screen, QWidget* leading);

    Client& client_;
    QWidget& mainWindow_;
    std::array<QPointer<QWidget>, screenCount> windows_;
};

} // namespace kurbo
