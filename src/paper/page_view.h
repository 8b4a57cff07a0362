#pragma once

#include "paper/paper.h"

#include <QPixmap>
#include <QWidget>

namespace kurbo {

// One page at a time, as a sheet with its shadow.
class PageView final : public QWidget {
  public:
    explicit PageView(const PaperDocument& document, QWidget* parent = nullptr);

    void show(int page, int dotsPerInch);
    [[nodiscard]] int dotsPerInch() const { return dotsPerInch_; }
    // The resolution at which the sheet is as wide, or with `whole` at most as large, as the room.
    [[nodiscard]] int fitting(QSize room, bool whole) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void draw();

    const PaperDocument& document_;
    QPixmap picture_;
    int page_ = -1;
    int dotsPerInch_ = 0;
    qreal ratio_ = 0;
};

} // namespace kurbo
