#include "tour/camera.h"

#include <QApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QWidget>

#include <cstdio>

namespace kurbo {

void Camera::shoot(QWidget& window, const QString& title) {
    for (int round = 0; round < 5; ++round) QApplication::processEvents();
    pictures_.append({title, window.grab()});
    const QString name =
        QStringLiteral("%1 %2.png").arg(pictures_.size(), 2, 10, QChar(u'0')).arg(title).replace(u'/', u'-');
    if (!pictures_.last().pixels.save(folder_ + u'/' + name))
        std::fprintf(stderr, "the picture could not be written: %s\n", name.toUtf8().constData());
}

bool Camera::writePdf(const QString& name) const {
    QPdfWriter pdf(folder_ + u'/' + name);
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(15, 15, 15, 15)));
    QPainter painter;
    if (!painter.begin(&pdf)) return false;
    for (qsizetype i = 0; i < pictures_.size(); ++i) {
        if (i > 0) pdf.newPage();
        const QRect page = painter.viewport();
        const int captionHeight = page.height() / 12;
        painter.drawText(QRect(0, 0, page.width(), captionHeight), Qt::AlignLeft | Qt::AlignTop, pictures_[i].title);
        const QPixmap& pixels = pictures_[i].pixels;
        const QRect room = page.adjusted(0, captionHeight, 0, 0);
        const QSize size = pixels.size().scaled(room.size(), Qt::KeepAspectRatio);
        painter.drawPixmap(QRect(room.topLeft(), size), pixels);
    }
    return painter.end();
}

} // namespace kurbo
