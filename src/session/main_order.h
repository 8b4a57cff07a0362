#pragma once

#include "store/client.h"

namespace kurbo {

// The windows that the start-up needs, in its own words.
class StartScreens {
  public:
    virtual ~StartScreens() = default;
    virtual void showSplash(const QString& warning) = 0;
    virtual void hideSplash() = 0;
    // Runs frmParm to its end; it sets the client's path and whether the database is usable.
    virtual void runParm() = 0;
    // Loads the main window.
    virtual void showLogin() = 0;
};

// The start-up from the splash window to the main window. False when the client ends at once, after its message.
[[nodiscard]] bool Main(Client& client, StartScreens& screens);

} // namespace kurbo
