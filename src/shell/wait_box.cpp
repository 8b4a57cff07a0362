#include "shell/wait_box.h"

namespace kurbo {

WaitBox::WaitBox() {
    constexpr int silence = 300;
    over_.setSingleShot(true);
    over_.setInterval(silence);
    connect(&over_, &QTimer::timeout, this, [this] { window_.end(); });
}

void WaitBox::watch(Connection& connection) {
    connection.setWaitNotice([this] { waiting(); });
}

void WaitBox::waiting() {
    constexpr int newWait = 500;
    constexpr int longWait = 1000;
    const bool fresh = !sinceNotice_.isValid() || sinceNotice_.elapsed() > newWait;
    sinceNotice_.start();
    if (fresh) sinceBegin_.start();
    if (sinceBegin_.elapsed() < longWait) return;
    if (over_.isActive())
        window_.step(0);
    else
        window_.begin(QStringLiteral("他の端末がデータベースを使用中です。お待ち下さい・・・"), 0);
    over_.start();
}

} // namespace kurbo
