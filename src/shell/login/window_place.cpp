#include "shell/login/window_place.h"

#include <QScreen>

#include <algorithm>

namespace kurbo {

void WindowPlace::placeFor(int higher) {
    constexpr int width = 780;
    const QSize high = window_.sizeHint() + QSize(0, higher);
    const QRect available = window_.screen()->availableGeometry();
    window_.resize(std::max(width, high.width()), window_.height());
    const int above = std::max(available.height() - high.height(), 0) / 2;
    window_.move(available.left() + (available.width() - window_.width()) / 2, available.top() + above);
}

void WindowPlace::keepHeight() {
    if (!window_.isMaximized()) keptHeight_ = window_.height();
}

void WindowPlace::becomeHigh() {
    fit(std::max(window_.minimumSizeHint().height(), keptHeight_));
}

void WindowPlace::fit(int height) {
    if (window_.isMaximized() || window_.isFullScreen()) return;
    window_.resize(window_.width(), height);
    const QRect available = window_.screen()->availableGeometry();
    const int below = window_.frameGeometry().bottom() - available.bottom();
    if (below > 0) window_.move(window_.x(), std::max(available.top(), window_.y() - below));
}

void WindowPlace::centreAcross() {
    if (!window_.isVisible() || window_.isMaximized() || window_.isFullScreen()) return;
    const QRect available = window_.screen()->availableGeometry();
    window_.move(available.left() + (available.width() - window_.frameGeometry().width()) / 2, window_.y());
}

} // namespace kurbo
