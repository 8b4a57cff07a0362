#pragma once

#include "settings/work_time/time_chart.h"

#include <QWidget>

namespace kurbo {

// The bands of a day side by side, each with its name where there is room for it; the tip tells the times.
class DayChart final : public QWidget {
    Q_OBJECT

  public:
    explicit DayChart(QWidget* parent = nullptr) : QWidget(parent) {}
    void setBoxes(const QList<ChartBox>& boxes);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    [[nodiscard]] QRect placeOf(const ChartBox& box) const;
    [[nodiscard]] QRect roomIn(qsizetype index) const;
    [[nodiscard]] QString tipAt(const QPoint& point) const;

    QList<ChartBox> boxes_;
};

// The hours below a chart of the same width: lines, or numbers.
class HourScale final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool lines READ lines WRITE setLines)

  public:
    explicit HourScale(QWidget* parent = nullptr) : QWidget(parent) {}
    [[nodiscard]] bool lines() const { return lines_; }
    void setLines(bool lines) { lines_ = lines; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool lines_ = false;
};

} // namespace kurbo
