#include "shell/login/database_hold.h"

#include "screen/windows/hourglass.h"

#include <QScopedValueRollback>

namespace kurbo {

DatabaseHold::DatabaseHold(Client& client, std::function<bool()> isBusy, QObject* parent)
    : QObject(parent), client_(client), isBusy_(std::move(isBusy)), tmrTimer_(new QTimer(this)) {
    tmrTimer_->setObjectName(QStringLiteral("tmrTimer"));
    tmrTimer_->setInterval(std::chrono::minutes(1));
    connect(tmrTimer_, &QTimer::timeout, this, &DatabaseHold::idleTick);
}

bool DatabaseHold::take(const Reader& read) {
    if (over_ || taking_) return false;
    const QScopedValueRollback taking(taking_, true);
    const Hourglass hourglass;
    const bool taken = guarded(client_.context, u"frmLogin", u"ReConnect", false, [&] {
        const bool reopened = !client_.HomeConnection.isOpen();
        if (reopened) client_.openHome();
        read(reopened);
        return true;
    });
    if (!taken) return false;
    tmrTimer_->start();
    IdleTicks_ = 0;
    return true;
}

void DatabaseHold::end() {
    over_ = true;
    tmrTimer_->stop();
}

void DatabaseHold::idleTick() {
    constexpr int idleAfter = 5;
    if (isBusy_() || ++IdleTicks_ < idleAfter) return;
    client_.HomeConnection.close();
    tmrTimer_->stop();
    Q_EMIT letGo();
}

} // namespace kurbo
