#include "settings/work_time/day_chart.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace kurbo {
namespace {

constexpr int minutesOfHour = 60;

// The first and the last number of the hours stand in the middle of their lines.
QRect dayIn(const QWidget& widget) {
    constexpr int margin = 12;
    return widget.rect().adjusted(margin, 0, -margin, 0);
}

int placeOf(int minute, const QRect& day) {
    return day.left() + minute * (day.width() - 1) / ChartBox::wide;
}

QString clockText(int minute) {
    return QStringLiteral("%1:%2")
        .arg(minute / minutesOfHour, 2, 10, QChar(u'0'))
        .arg(minute % minutesOfHour, 2, 10, QChar(u'0'));
}

} // namespace

void DayChart::setBoxes(const QList<ChartBox>& boxes) {
    if (boxes_ == boxes) return;
    boxes_ = boxes;
    update();
}

// A band whose end lies before its start is seen as well.
QRect DayChart::placeOf(const ChartBox& box) const {
    const QRect day = dayIn(*this);
    const int from = kurbo::placeOf(std::min(box.start, box.end), day);
    const int to = kurbo::placeOf(std::max(box.start, box.end), day);
    return {from, day.top(), std::max(to - from, 1), day.height() * box.height / ChartBox::high};
}

// What the boxes after it leave of a box; none of a high one's upper part, which a lower one may cover.
QRect DayChart::roomIn(qsizetype index) const {
    QRect room = placeOf(boxes_[index]);
    if (boxes_[index].height == ChartBox::high) room.setTop(room.height() * ChartBox::lower / ChartBox::high);
    for (qsizetype later = index + 1; later < boxes_.size(); ++later) {
        const QRect cover = placeOf(boxes_[later]) & room;
        if (cover.isEmpty()) continue;
        if (cover.left() == room.left())
            room.setLeft(cover.right() + 1);
        else
            room.setRight(cover.left() - 1);
    }
    return room;
}

void DayChart::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(dayIn(*this), palette().color(QPalette::Button));
    painter.setPen(Qt::black);
    for (qsizetype i = 0; i < boxes_.size(); ++i) {
        const QRect place = placeOf(boxes_[i]);
        const GridColour& colour = boxes_[i].colour;
        painter.fillRect(place, QColor(colour.red, colour.green, colour.blue));
        painter.drawRect(place.adjusted(0, 0, -1, -1));
        const QRect room = roomIn(i);
        if (fontMetrics().horizontalAdvance(boxes_[i].caption) < room.width())
            painter.drawText(room, Qt::AlignCenter, boxes_[i].caption);
    }
}

bool DayChart::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), tipAt(help->pos()), this);
    return true;
}

// All bands at the point, also covered ones.
QString DayChart::tipAt(const QPoint& point) const {
    QStringList tips;
    for (const ChartBox& box : boxes_)
        if (placeOf(box).contains(point))
            tips.append(QStringLiteral("%1 %2～%3").arg(box.caption, clockText(box.start), clockText(box.end)));
    return tips.join(u'\n');
}

void HourScale::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect day = dayIn(*this);
    for (int minute = 0; minute <= ChartBox::wide; minute += minutesOfHour) {
        const bool even = minute % (2 * minutesOfHour) == 0;
        const int at = placeOf(minute, day);
        if (lines_) {
            painter.drawLine(at, 0, at, even ? height() : height() / 2);
        } else if (even) {
            const QString hour = QString::number(minute / minutesOfHour);
            const int half = fontMetrics().horizontalAdvance(hour) / 2 + 1;
            painter.drawText(QRect(at - half, 0, 2 * half, height()), Qt::AlignHCenter | Qt::AlignTop, hour);
        }
    }
}

} // namespace kurbo
