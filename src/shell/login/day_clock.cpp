#include "shell/login/day_clock.h"

#include "store/readers.h"

#include <QLabel>
#include <QLineEdit>

namespace kurbo {
namespace {

QColor colourOf(Day day) {
    const std::chrono::weekday weekday{day};
    if (weekday == std::chrono::Saturday) return {0, 0, 255};
    if (weekday == std::chrono::Sunday) return {255, 0, 0};
    return Qt::black;
}

} // namespace

DayClock::DayClock(Client& client, const Controls& controls, std::function<bool()> isOccupied,
                   std::function<bool()> connects)
    : QObject(controls.time),
      client_(client),
      on_(controls),
      isOccupied_(std::move(isOccupied)),
      connects_(std::move(connects)),
      tmrClock_(new QTimer(this)) {
    tmrClock_->setObjectName(QStringLiteral("tmrClock"));
    tmrClock_->setTimerType(Qt::PreciseTimer);
    tmrClock_->setInterval(std::chrono::seconds(1));
    connect(tmrClock_, &QTimer::timeout, this, &DayClock::tick);
    tmrClock_->start();
    showTime(client_.context.clock.now());
}

void DayClock::tick() {
    if (isOccupied_()) return;
    const Moment now = client_.context.clock.now();
    const Day today = dayOf(now);
    showTime(now);
    if (dayOfMonth(today) == LastDay_ || !connects_()) return;
    const auto name = WhichHoliday(client_.context, client_.HomeConnection, today);
    if (name) on_.name->setText(*name);
    LastDay_ = dayOfMonth(today);
}

void DayClock::showTime(Moment now) {
    QPalette colours = on_.time->palette();
    colours.setColor(QPalette::Text, colourOf(dayOf(now)));
    on_.time->setPalette(colours);
    on_.time->setText(clockText(now));
}

} // namespace kurbo
