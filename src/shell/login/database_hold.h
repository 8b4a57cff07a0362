#pragma once

#include "store/client.h"

#include <QTimer>

#include <functional>

namespace kurbo {

// The home database in the main window's hands: open while somebody is there, left to others after five idle minutes.
class DatabaseHold final : public QObject {
    Q_OBJECT

  public:
    // While somebody is busy nothing is let go.
    DatabaseHold(Client& client, std::function<bool()> isBusy, QObject* parent);

    using Reader = std::function<void(bool reopened)>;
    // Opens the database if it is closed, lets the reader read, and begins the idle minutes anew. False after a
    // failure, which is reported; within another take(), which waits for a busy file; and after the end.
    [[nodiscard]] bool take(const Reader& read);
    // Nothing is taken from now on.
    void end();
    [[nodiscard]] bool isOver() const { return over_; }

  Q_SIGNALS:
    void letGo();

  private:
    void idleTick();

    Client& client_;
    std::function<bool()> isBusy_;
    QTimer* tmrTimer_;
    int IdleTicks_ = 0;
    bool taking_ = false;
    bool over_ = false;
};

} // namespace kurbo
