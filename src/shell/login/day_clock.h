#pragma once

#include "base/day.h"
#include "store/client.h"

#include <QTimer>

#include <functional>

class QLabel;
class QLineEdit;

namespace kurbo {

// The clock of the main window: the time each second, and once a day what the calendar calls the day.
class DayClock final : public QObject {
    Q_OBJECT

  public:
    struct Controls {
        QLineEdit* time;
        QLabel* name;
    };
    // While somebody is occupied the clock waits. The name is asked for where `connects` gives the home database.
    DayClock(Client& client, const Controls& controls, std::function<bool()> isOccupied,
             std::function<bool()> connects);

    void tick();
    void stop() { tmrClock_->stop(); }

  private:
    void showTime(Moment now);

    Client& client_;
    const Controls on_;
    std::function<bool()> isOccupied_;
    std::function<bool()> connects_;
    QTimer* tmrClock_;
    int LastDay_ = 0;
};

} // namespace kurbo
