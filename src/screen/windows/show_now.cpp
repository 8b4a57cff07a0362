#include "screen/windows/show_now.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace kurbo {

void placeInMiddle(QWidget* window) {
    window->adjustSize();
    QRect frame(QPoint(), window->size());
    frame.moveCenter(window->screen()->availableGeometry().center());
    window->move(frame.topLeft());
}

void fillScreen(QWidget* window, QSize most) {
    // What a window's frame takes.
    constexpr QSize frame(4, 34);
    const QRect room = window->screen()->availableGeometry();
    const QSize size = most.boundedTo(room.size() - frame);
    window->resize(size);
    window->move(room.left() + (room.width() - size.width()) / 2,
                 room.top() + (room.height() - size.height() - frame.height()) / 2);
}

// Desktops keep a dialog above its owner, and no other kind of window.
void stayAbove(QWidget* window, const QWidget* below) {
    window->setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                           Qt::WindowCloseButtonHint);
    window->winId();
    window->windowHandle()->setTransientParent(below->windowHandle());
    constexpr int frame = 34;
    const QRect room = below->geometry();
    window->move(std::max(room.left(), room.right() - window->width() - frame),
                 std::max(room.top(), room.bottom() - window->height() - frame));
}

void paintNow(QWidget* window) {
    constexpr int patience = 200;
    QElapsedTimer waited;
    waited.start();
    // A new window paints when the screen says that it is there, which takes a moment.
    do {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    } while (window->windowHandle() && !window->windowHandle()->isExposed() && waited.elapsed() < patience);
    window->repaint();
}

} // namespace kurbo
