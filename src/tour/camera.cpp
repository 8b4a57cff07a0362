#include "tour/camera.h"

#include <QApplication>
#include <QWidget>

#include <cstdio>

namespace kurbo {

void Camera::shoot(QWidget& window, const QString& title) {
    for (int round = 0; round < 5; ++round) QApplication::processEvents();
    const QString name = QStringLiteral("%1 %2.png").arg(++count_, 2, 10, QChar(u'0')).arg(title).replace(u'/', u'-');
    if (!window.grab().save(folder_ + u'/' + name))
        std::fprintf(stderr, "the picture could not be written: %s\n", name.toUtf8().constData());
}

} // namespace kurbo
