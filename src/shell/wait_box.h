#pragma once

#include "shell/frmWaiting.h"
#include "store/connection.h"

#include <QElapsedTimer>
#include <QTimer>

namespace kurbo {

// Shows frmWaiting while a connection waits for a busy database for longer than a second.
class WaitBox final : public QObject {
    Q_OBJECT

  public:
    WaitBox();
    void watch(Connection& connection);

  private:
    // Runs about ten times a second within the wait.
    void waiting();

    frmWaiting window_;
    QElapsedTimer sinceBegin_;
    QElapsedTimer sinceNotice_;
    // Fires when the wait is over and the event loop runs again.
    QTimer over_;
};

} // namespace kurbo
