#include "maintenance/move_bar.h"

namespace kurbo {

MoveBar::MoveBar(Progress& progress, std::int64_t bytes)
    : shown_(progress, QStringLiteral("処理中です・・・"), maximum), progress_(progress) {
    constexpr std::int64_t bytesANotice = 600000;
    slowness_ = 1 + bytes / bytesANotice;
}

void MoveBar::reach(int mark, int next) {
    mark_ = mark;
    next_ = next;
    notices_ = 0;
    progress_.step(mark);
}

// How much is still to be done is not known: the way that is left shrinks and never ends.
void MoveBar::creep() {
    ++notices_;
    progress_.step(mark_ + static_cast<int>((next_ - mark_) * notices_ / (notices_ + slowness_)));
}

} // namespace kurbo
